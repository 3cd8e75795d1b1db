"""Dialogs of their own kinds in the real program: Custom Report, Import Roster and Earlier Saves."""

import unittest

from desktop_case import IDCANCEL, IDOK, DesktopTest, wait_for

CUSTOM_REPORT = 32800
TITLE, CATEGORY, NUMBER, PERCENT, TEAM, CLASSES = 1045, 1075, 1037, 1041, 1057, 1036
OVERALL, PLACINGS, REASONS = 1038, 1039, 1040


class CustomReportTest(DesktopTest):
    """By the keyboard alone, held against scorvane-report."""

    def test_category_kind_and_classes_are_chosen_by_the_keyboard(self):
        contest = self.sample("state.scv")
        app = self.start(contest)
        dialog = app.open_dialog(CUSTOM_REPORT, "Custom Report")

        def press_to(key, control):
            dialog.press(key)
            wait_for(lambda: dialog.focused() == control, f"the focus in {control}")

        dialog.type("To be replaced")
        press_to("Tab", CATEGORY)
        dialog.press("Down", "Down")  # the second category
        wait_for(lambda: dialog.selection(CLASSES) == [1, 5, 9], "the classes of the category")
        self.assertEqual(dialog.text(TITLE), "Swine")
        press_to("Tab", NUMBER)
        dialog.type("7")
        for control in (PERCENT, TEAM):
            press_to("Tab", control)
            dialog.press("Space")
        for key, control in (("Tab", OVERALL), ("Down", PLACINGS), ("Down", REASONS), ("Tab", CLASSES)):
            press_to(key, control)
        dialog.press("Home", "Down", "Space", "Down", "Space")  # one out and one in by hand
        wait_for(lambda: dialog.selection(CLASSES) == [2, 5, 9], "the classes chosen by hand")
        self.desktop.keys("Return")
        app.wait_closed(dialog)
        self.assertEqual(app.report(), self.expected_report(
            contest, CUSTOM_REPORT, "--title", "Swine", "--classes", "3,6,10", "--kind", "reasons",
            "--number", 7, "--percent", "--team"))


IMPORT_ROSTER, FIELD, OPEN_FILE, LIST, SUMMARY, IMPORT = 33001, 1181, 1182, 1183, 1184, 1


class RosterTest(DesktopTest):
    """Cells are pasted, mended in the dialog, and imported."""

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


SETUP_TEAMS, TEAMS, REMOVE_TEAM = 32789, 1019, 1005
LOOKUP, CONTESTANT, LETTER, SCORE = 32791, 1026, 1027, 1004
EARLIER_SAVES, TIMES, CONTESTANTS, SCORES, CHANGES = 33023, 1101, 1102, 1103, 1104
GO_BACK, SAVE_AS = 1106, 1107


class EarlierSaves(DesktopTest):
    """The list, Show Differences, Go Back and Save As on a contest that was changed twice."""

    def setUp(self):
        super().setUp()
        self.contest = self.sample()
        self.states = [self.contest.read_bytes()]
        self.app = self.start(self.contest)
        self.main = self.app.main()
        wait_for(lambda: "county.scv" in self.main.title(), "the contest")

    def change_twice(self):
        dialog = self.app.open_dialog(LOOKUP, "Lookup/Edit Individual Scores")
        dialog.choose(1016, 2)
        dialog.set_text(CONTESTANT, "102")
        dialog.set_text(LETTER, "X")
        dialog.click(SCORE)
        dialog.finish()
        self.states.append(self.contest.read_bytes())
        dialog = self.app.open_dialog(SETUP_TEAMS, "Setup Teams")
        dialog.choose(TEAMS, 1)
        dialog.click(REMOVE_TEAM)
        dialog.finish()
        self.states.append(self.contest.read_bytes())

    def test_every_save_can_be_compared_and_gone_back_to(self):
        self.change_twice()
        self.desktop.keys("alt+t", "e")
        dialog = self.app.window("Earlier Saves")
        self.assertEqual([line.split(";")[0] for line in dialog.lines(CHANGES)],
                         ["team Antler County 4-H removed", "1 score changed in class 3"])
        self.assertEqual([line.strip() for line in dialog.lines(CONTESTANTS) + dialog.lines(SCORES)],
                         ["47", "47", "517", "517"])
        self.assertEqual(len(dialog.lines(TIMES)), 2)
        dialog.press("Down")
        self.assertEqual([dialog.selection(i) for i in (TIMES, CONTESTANTS, SCORES, CHANGES)], [[1]] * 4)
        self.desktop.keys("Return")
        self.app.wait_closed(dialog)
        report = self.app.report().splitlines()
        self.assertIn("Team Antler County 4-H               -                     105, 106, 107, 108", report)
        self.assertIn("  102 Delia Ibarra                B   Placing        X (4,3,2,1)   E (1,4,2,3)", report)

        dialog = self.app.open_dialog(EARLIER_SAVES, "Earlier Saves")
        dialog.choose(CHANGES, 1)
        self.desktop.keys("alt+g")
        box = self.app.window("Warning")
        wait_for(lambda: box.focused() == IDCANCEL, "Cancel to have the focus")
        self.app.answer(IDCANCEL, "Warning")
        self.assertEqual(self.contest.read_bytes(), self.states[2])
        dialog.command(GO_BACK)
        self.app.answer(IDOK, "Warning")
        self.app.wait_closed(dialog)
        self.assertEqual(self.contest.read_bytes(), self.states[0])

        # Any save gets a file of its own.
        dialog = self.app.open_dialog(EARLIER_SAVES, "Earlier Saves")
        self.assertEqual(len(dialog.lines(TIMES)), 3)
        dialog.choose(TIMES, 1)
        dialog.command(SAVE_AS)
        copy = self.folder / "copy.scv"
        self.app.choose_file(copy, "Save As")
        wait_for(lambda: copy.exists() and dialog.is_enabled(SAVE_AS), "the copy")
        self.assertEqual(copy.read_bytes(), self.states[1])


if __name__ == "__main__":
    unittest.main()
