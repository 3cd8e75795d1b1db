#!/usr/bin/env python3
"""layout.py CONTEST FOLDER: lays out a contest as other programs import it.

Tables become tab-separated files for SQLite, and a flat spreadsheet, with a row for each contestant and
sums and ranks as formulas, serves LibreOffice.
"""

import pathlib
import sys
from xml.sax.saxutils import escape

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:body><office:spreadsheet><table:table table:name="Scores">
"""
TAIL = "</table:table></office:spreadsheet></office:body></office:document>\n"


def sections(contest):
    """The records of a contest file by section, split at TABs."""
    found, current = {}, None
    for line in contest.read_text("latin-1").split("\n"):
        line = line.rstrip("\r")
        if line.startswith("~~~~~"):
            current = found.setdefault(line.strip("~"), [])
        elif current is not None and line and not line.startswith("0000-"):
            current.append(line.split("\t"))
    return {name: records[1:] for name, records in found.items()}


def write_tables(parts, folder):
    def write(name, rows):
        text = "".join("\t".join(map(str, row)) + "\n" for row in rows)
        (folder / f"{name}.tsv").write_text(text, "latin-1")

    write("classes", [(i, int(c[1] == "Yes")) for i, c in enumerate(parts["Classes"])])
    write("contestants", [(c[0], c[1]) for c in parts["Contestants"]])
    write("members", [(n, t[0], slot) for t in parts["Teams"] for slot, n in enumerate(t[2:])])
    write("scores", parts["Scores"])


def column(index):
    """Letters of a column, from 0."""
    return (chr(64 + index // 26) if index >= 26 else "") + chr(65 + index % 26)


def number(value):
    return f'<table:table-cell office:value-type="float" office:value="{value}"/>'


def formula(text):
    return f'<table:table-cell office:value-type="float" table:formula="of:={escape(text)}"/>'


def write_sheet(parts, folder):
    """Columns: name, three scores a class, total, total of reasons, placings in reasons classes, a key
    that orders by them, and the rank of the key."""
    classes = parts["Classes"]
    names = {c[0]: c[1] for c in parts["Contestants"]}
    scores = {}
    for record in parts["Scores"]:
        scores.setdefault(record[0], []).extend(record[3:6])
    last = 3 * len(classes)
    with_reasons = [k for k, c in enumerate(classes) if c[1] == "Yes"]
    total, reasons, placings, key = (column(last + i) for i in (1, 2, 3, 4))
    with open(folder / "contest.fods", "w", encoding="utf-8") as sheet:
        sheet.write(HEAD)
        for row, (contestant, values) in enumerate(scores.items(), 1):
            summed = [";".join(f"[.{column(3 * k + shift)}{row}]" for k in with_reasons) or "0"
                      for shift in (2, 1)]
            cells = [f'<table:table-cell office:value-type="string"><text:p>{escape(names[contestant])}'
                     "</text:p></table:table-cell>", *map(number, values),
                     formula(f"SUM([.B{row}:.{column(last)}{row}])"),
                     formula(f"SUM({summed[0]})"), formula(f"SUM({summed[1]})"),
                     formula(f"[.{total}{row}]*1000000+[.{reasons}{row}]*1000-[.{placings}{row}]"),
                     formula(f"RANK([.{key}{row}];[.{key}1:.{key}{len(scores)}])")]
            sheet.write(f"<table:table-row>{''.join(cells)}</table:table-row>\n")
        sheet.write(TAIL)


if __name__ == "__main__":
    everything = sections(pathlib.Path(sys.argv[1]))
    write_tables(everything, pathlib.Path(sys.argv[2]))
    write_sheet(everything, pathlib.Path(sys.argv[2]))
