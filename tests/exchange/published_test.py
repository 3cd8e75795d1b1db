"""Reads what scorvane-report publishes as others would: usage published_test.py SCORVANE_REPORT.

A workbook through a library, a page through a parser: numbers are numbers, the first sheet is the CSV file,
nothing is fetched from anywhere, and only the page's own style and script may be applied.
"""

import base64
import csv
import hashlib
import html.parser
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import warnings

import openpyxl

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
VOID = {"meta", "input", "br"}
MAY_STAY_OPEN = {"tr", "td", "th", "li", "thead", "tbody"}


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.open, self.ids, self.links, self.inline, self.policy, self.words = [], [], [], {}, "", []
        self.feed(text)
        self.close()
        assert not self.open, self.open

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self.ids += [attributes["id"]] if "id" in attributes else []
        self.links += [attributes["href"]] if "href" in attributes else []
        assert not {"src", "srcset", "data", "action", "style"} & set(attributes), attributes
        assert not any(name.startswith("on") for name in attributes), attributes
        if attributes.get("http-equiv") == "Content-Security-Policy":
            self.policy = attributes["content"]
        if tag not in VOID:
            self.open.append(tag)

    def handle_endtag(self, tag):
        while self.open[-1] != tag and self.open[-1] in MAY_STAY_OPEN:
            self.open.pop()
        assert self.open.pop() == tag, tag

    def handle_data(self, data):
        if self.open and self.open[-1] in {"style", "script"}:
            self.inline[self.open[-1]] = data
        else:
            self.words.append(data)


class Published(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def contest(self):
        """The county sample with a team, a category and people whose names are formulas and markup."""
        text = (SAMPLES / "county.scv").read_bytes()
        for old, new in ((b"Carla Dalton", b"=1+1"), (b"Delia Ibarra", b"<b>&\"'\x80\x81\x07 \xe9"),
                         (b"Alder County 4-H", b"@Alder, \"County\""), (b"\tBeef\t", b"\t-Beef\t")):
            self.assertIn(old, text)
            text = text.replace(old, new)
        path = self.folder / "contest.scv"
        path.write_bytes(text)
        return path

    def make(self, contest, name, *options):
        path = self.folder / name
        option = "--publish" if name.endswith("html") else "--spreadsheet"
        subprocess.run([REPORT, contest, option, path, *options], check=True)
        return path

    def test_the_workbook_is_the_contest_and_its_first_sheet_the_csv(self):
        for contest in (self.contest(), SAMPLES / "state.scv"):
            with warnings.catch_warnings():
                warnings.simplefilter("error")
                book = openpyxl.load_workbook(self.make(contest, "book.xlsx"))
            self.assertEqual(book.sheetnames, ["Contestants", "Teams", "Classes", "Cards"])
            for sheet in book:
                pane = sheet.sheet_view.pane
                self.assertEqual((pane.topLeftCell, pane.ySplit, pane.state), ("A2", 1, "frozen"))
                self.assertTrue(all(cell.font.b for cell in sheet[1]))
                self.assertGreater(sheet.column_dimensions["B"].width, 8)
            raw = self.make(contest, "book.csv").read_bytes()
            self.assertEqual(raw.count(b"\n"), raw.count(b"\r\n"))
            rows = list(csv.reader(raw.decode("utf-8-sig").splitlines(), strict=True))
            sheet = [["" if v is None else str(v) for v in row] for row in book["Contestants"].values]
            guarded = [[t for t in row] for row in sheet]
            for row, cells in zip(guarded, book["Contestants"].rows):
                for i, cell in enumerate(cells):
                    if isinstance(cell.value, str) and cell.value[0] in "=+-@":
                        row[i] = "'" + row[i]
                    self.assertNotEqual(cell.data_type, "f")
            self.assertEqual(rows, guarded)
            headings, *people = book["Contestants"].values
            for column, heading in enumerate(headings):
                wanted = str if re.fullmatch(r"Name|Team|Coach|Group|Alternate|.* Placing", heading) else int
                for row in people:
                    self.assertIsInstance(row[column], (wanted, type(None)), heading)
            cards = sum(1 for row in people for h, v in zip(headings, row) if "Placing" in h[-7:] and v)
            self.assertGreater(cards, 300)
            self.assertEqual(sum(1 for row in list(book["Cards"].values)[1:] if row[3]), cards)

    def test_the_page_needs_nothing_and_runs_nothing_else(self):
        for content in ("awards", "teams", "cards"):
            text = self.make(self.contest(), "page.html", "--show", content).read_text(encoding="utf-8")
            page = Page(text)
            self.assertEqual(len(page.ids), len(set(page.ids)))
            self.assertTrue(page.links)
            for link in page.links:
                self.assertIn(link[1:], page.ids)
                self.assertEqual(link[0], "#")
            self.assertNotRegex(text, r"https?:|url\(|@import")
            self.assertIn("default-src 'none'", page.policy)
            self.assertEqual(set(page.inline), {"style", "script"} if content == "cards" else {"style"})
            for kind, inline in page.inline.items():
                digest = base64.b64encode(hashlib.sha256(inline.encode()).digest()).decode()
                self.assertIn(f"{kind}-src 'sha256-{digest}'", page.policy)
            self.assertEqual("101 =1+1" in page.words, content == "cards")
            if content == "cards":
                self.assertTrue(any("<b>&\"'\u20ac\ufffd  \u00e9" in word for word in page.words))


if __name__ == "__main__":
    REPORT = sys.argv.pop(1)
    unittest.main()
