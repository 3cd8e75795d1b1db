#!/usr/bin/env python3
"""layout.py CONTEST FOLDER: lays out a contest as other programs import it.

Tables become tab-separated files for SQLite; LibreOffice gets a flat spreadsheet with a row for each
contestant and each team, and formulas for sums, best members and standings.
"""

import pathlib
import sys
from xml.sax.saxutils import escape

LISTED = 21  # places of a standing: those that a report lists, and one more to see ties at its end

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:body><office:spreadsheet>
"""
TAIL = "</office:spreadsheet></office:body></office:document>\n"


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


def words(value):
    return f'<table:table-cell office:value-type="string"><text:p>{escape(value)}</text:p></table:table-cell>'


def number(value):
    return f'<table:table-cell office:value-type="float" office:value="{value}"/>'


def formula(text):
    return f'<table:table-cell table:formula="of:={escape(text)}"/>'


def write_table(sheet, name, rows):
    sheet.write(f'<table:table table:name="{name}">\n')
    for row in rows:
        sheet.write(f"<table:table-row>{''.join(row)}</table:table-row>\n")
    sheet.write("</table:table>\n")


def key(total, reasons, placings):
    """What orders a standing, most important first: none of the later two reaches 1000."""
    return f"{total}*1000000+{reasons}*1000-{placings}"


def score_rows(parts):
    """A row for each contestant: name, total, reasons and placings in classes with reasons, a key that
    orders by them, and three scores a class. Who has no name gets no place."""
    first = 6
    names = {c[0]: c[1] for c in parts["Contestants"]}
    with_reasons = [k for k, c in enumerate(parts["Classes"]) if c[1] == "Yes"]
    last = column(first + 3 * len(parts["Classes"]) - 2)
    for row, (contestant, values) in enumerate(scores_of(parts).items(), 1):
        def over_reasons(shift):
            return "SUM(" + ";".join(f"[.{column(first - 1 + 3 * k + shift)}{row}]" for k in with_reasons) + ")"

        name = names[contestant]
        total = formula(f"SUM([.{column(first - 1)}{row}:.{last}{row}])")
        order = key(f"[.B{row}]", f"[.C{row}]", f"[.D{row}]")
        yield [words(name), total, formula(over_reasons(1)), formula(over_reasons(0)),
               formula(order) if name else number(-1), *map(number, values)]


def team_rows(parts):
    """A row for each team: the same columns, summed over its best three members. The fourth's place
    among the members, the last of equal ones, is in a column of its own."""
    rows = {contestant: row for row, contestant in enumerate(scores_of(parts), 1)}
    for row, team in enumerate(parts["Teams"], 1):
        first, last = rows[team[2]], rows[team[5]]
        scores = [f"[Scores.B{r}]" for r in range(first, last + 1)]
        least = f"MIN({';'.join(scores)})"
        fourth = f"IF({scores[3]}={least};4;IF({scores[2]}={least};3;IF({scores[1]}={least};2;1)))"
        sums = [formula(f"SUM([Scores.{c}{first}:.{c}{last}])-INDEX([Scores.{c}{first}:.{c}{last}];[.F{row}])")
                for c in "BCD"]
        yield [words(team[0]), *sums, formula(key(f"[.B{row}]", f"[.C{row}]", f"[.D{row}]")),
               formula(fourth)]


def standing(table, count):
    """The best rows of a table: name, total, reasons, placings."""
    for place in range(1, LISTED + 1):
        found = f"MATCH(LARGE([{table}.$E$1:.$E${count}];{place});[{table}.$E$1:.$E${count}];0)"
        yield [formula(f"INDEX([{table}.{c}$1:.{c}${count}];{found})") for c in "ABCD"]


def scores_of(parts):
    scores = {}
    for record in parts["Scores"]:
        scores.setdefault(record[0], []).extend(record[3:6])
    return scores


def write_sheet(parts, folder):
    """The standings come first, as only the first table is exported."""
    with open(folder / "contest.fods", "w", encoding="utf-8") as sheet:
        sheet.write(HEAD)
        write_table(sheet, "Standings", [*standing("Scores", len(scores_of(parts))),
                                         *standing("Teams", len(parts["Teams"]))])
        write_table(sheet, "Scores", score_rows(parts))
        write_table(sheet, "Teams", team_rows(parts))
        sheet.write(TAIL)


if __name__ == "__main__":
    everything = sections(pathlib.Path(sys.argv[1]))
    write_tables(everything, pathlib.Path(sys.argv[2]))
    write_sheet(everything, pathlib.Path(sys.argv[2]))
