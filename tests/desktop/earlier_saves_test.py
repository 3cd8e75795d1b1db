"""Tools, Earlier Saves: the list, Show Differences, Go Back and Save As on a contest that was changed twice."""

import unittest

from desktop_case import IDCANCEL, IDOK, DesktopTest, wait_for

SETUP_TEAMS, TEAMS, REMOVE_TEAM = 32789, 1019, 1005
LOOKUP, NUMBER, LETTER, SCORE = 32791, 1026, 1027, 1004
EARLIER_SAVES, TIMES, CONTESTANTS, SCORES, CHANGES = 33023, 1101, 1102, 1103, 1104
GO_BACK, SAVE_AS = 1106, 1107


class EarlierSaves(DesktopTest):
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
        dialog.set_text(NUMBER, "102")
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
