"""Pastes cells into the real Import Roster dialog, mends them there, and imports them."""

import unittest

from desktop_case import DesktopTest, wait_for

IMPORT_ROSTER, FIELD, OPEN_FILE, LIST, SUMMARY, IMPORT = 33001, 1181, 1182, 1183, 1184, 1


class RosterTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.file = self.sample()
        self.app = self.start(self.file)
        self.dialog = self.app.open_dialog(IMPORT_ROSTER, "Import Roster")

    def test_cells_are_pasted_mended_and_imported(self):
        cells = "Team\tContestant\tCoach\r\nYew Grove\t\u0141ukasz O\u2019Day\tPat\r\nYew Grove\tAnn Lee%s\r\n"
        self.dialog.paste(FIELD, cells % "\tPat\tx")
        wait_for(lambda: len(self.dialog.lines(LIST)) == 3, "the list to follow")
        self.assertIn("Problem in line 3: \"x\" is in a column without a heading.", self.dialog.lines(LIST)[0])
        self.assertEqual(self.dialog.text(SUMMARY), "1 team, 1 contestant, 0 alternates; 1 problem")
        self.desktop.keys("BackSpace", "BackSpace", "BackSpace")  # the line end is one of them
        wait_for(lambda: self.dialog.text(SUMMARY) == "1 team, 2 contestants, 0 alternates", "the problem to go")
        self.assertEqual(self.dialog.lines(LIST), [
            "Yew Grove, coach Pat:  149A Lukasz O'Day, 150B Ann Lee",
            "Remark on line 2: A character of \"Lukasz O'Day\" that contests cannot hold became \"L\"."])
        self.dialog.finish(IMPORT)
        self.assertIn("     Yew Grove               149A  Lukasz O'Day", self.app.report())
        self.assertIn(b"149\tLukasz O'Day\t", self.file.read_bytes())

    def test_a_large_sheet_is_opened_whole(self):
        names = [f"Team {i // 4}\tContestant {i}" for i in range(10000)]
        (self.folder / "roster.txt").write_text("Team\tName\n" + "\n".join(names), encoding="utf-16")
        self.dialog.click(OPEN_FILE)
        self.app.choose_file(self.folder / "roster.txt", "Open")
        wait_for(lambda: self.dialog.text(SUMMARY) == "2500 teams, 10000 contestants, 0 alternates", "the sheet")
        self.assertEqual(len(self.dialog.lines(LIST)), 2500)
        self.dialog.finish()


if __name__ == "__main__":
    unittest.main()
