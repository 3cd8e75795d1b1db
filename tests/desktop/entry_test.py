"""Types the cards of a contest into the real entry dialogs, with the keyboard alone, and reads what they save."""

import unittest

from desktop_case import NO_CARDS, DesktopTest, wait_for

LOOKUP, PLACINGS, REASONS, QUESTIONS = 32791, 32822, 32823, 32826
NUMBER, NUMBER_TYPED, LETTER, REASONS_SCORE, QUESTIONS_SCORE, CLASSES, GROUPS = 1054, 1026, 1027, 1028, 1056, 1016, 1053


class Entry(DesktopTest):
    def setUp(self):
        super().setUp()
        self.contest = NO_CARDS
        self.file = self.folder / "fair.scv"
        self.file.write_bytes(self.contest)
        self.app = self.start(self.file)
        self.main = self.app.main()

    def expect_file(self, *records):
        """Holds the file against the contest with these records in place of blank ones, from now on."""
        for record in records:
            number, judged, *_ = record.split()
            blank = f"\r\n{number}\t{judged}\t \t0\t0\t0\r\n".encode()
            self.assertIn(blank, self.contest)
            self.contest = self.contest.replace(blank, f"\r\n{record}\r\n".encode())
        self.assertEqual(self.file.read_bytes(), self.contest)

    def choose(self, dialog, class_key, group_key):
        """Takes the lines that begin so; the focus returns to the score field by itself."""
        for key, control, typed in (("alt+c", CLASSES, class_key), ("alt+g", GROUPS, group_key)):
            self.desktop.keys(key)
            self.wait_for_focus(dialog, control)
            dialog.type(typed)

    def wait_for_focus(self, dialog, control):
        """Keys are posted to whatever has the focus, so a change of focus is waited for."""
        wait_for(lambda: dialog.focused() == control, f"the focus in {control}")

    def wait_for_card(self, dialog, number, field):
        wait_for(lambda: (dialog.text(NUMBER), dialog.focused()) == (number, field), f"contestant {number!r}")

    def enter(self, dialog, field, *cards):
        for number, typed in cards:
            self.wait_for_card(dialog, number, field)
            dialog.type(typed)
            dialog.press("Return")
        self.wait_for_card(dialog, "", field)
        self.assertEqual(dialog.selection(CLASSES) + dialog.selection(GROUPS), [])

    def escape(self, dialog):
        self.desktop.keys("Escape")
        self.app.wait_closed(dialog)

    def test_cards_typed_by_group_are_in_the_file(self):
        dialog = self.app.open_dialog(PLACINGS, "Input Placings Scores By Group")
        self.assertEqual(dialog.focused(), LETTER)
        self.choose(dialog, "1", "a")
        self.wait_for_focus(dialog, LETTER)
        dialog.type("b")
        self.enter(dialog, LETTER, ("101", ""), ("103", "Z"), ("105", "x"))
        self.choose(dialog, "2", "B")
        self.wait_for_card(dialog, "102", LETTER)
        dialog.type("w")
        dialog.press("Return")
        self.wait_for_card(dialog, "104", LETTER)
        self.assertEqual([dialog.text(i) for i in (1111, 1112, 1032, 1113)], ["Dee", "Elm", "W", "4-3-1-2"])
        self.desktop.keys("alt+b")
        self.enter(dialog, LETTER, ("102", "x"), ("104", ""))
        # The key of the group that is chosen starts it again.
        self.choose(dialog, "1", "b")
        self.wait_for_card(dialog, "102", LETTER)
        dialog.press("Return")
        self.desktop.keys("alt+g")
        self.wait_for_focus(dialog, GROUPS)
        dialog.type("b")
        self.wait_for_card(dialog, "102", LETTER)
        self.escape(dialog)
        self.expect_file("101\t0\tB\t46\t0\t0", "103\t0\tZ\t0\t0\t0", "105\t0\tX\t20\t0\t0",
                         "102\t1\tX\t50\t0\t0")

        dialog = self.app.open_dialog(REASONS, "Input Reasons Scores By Group")
        self.assertEqual(dialog.lines(CLASSES), [" 2.  Ewes"])
        self.choose(dialog, "2", "1")
        self.enter(dialog, REASONS_SCORE, ("103", "41"), ("101", "50"))
        dialog.finish()

        dialog = self.app.open_dialog(QUESTIONS, "Input Questions Scores By Group")
        self.choose(dialog, "1", "b")
        self.wait_for_focus(dialog, QUESTIONS_SCORE)
        dialog.type("a7")
        self.enter(dialog, QUESTIONS_SCORE, ("102", ""), ("104", "0"))
        self.desktop.keys("alt+d")
        self.app.wait_closed(dialog)
        self.expect_file("103\t1\t \t0\t41\t0", "101\t1\t \t0\t50\t0", "102\t0\t \t0\t0\t7")

    def test_cancelled_corrections_stay_in_the_contest_but_not_in_the_file(self):
        dialog = self.app.open_dialog(LOOKUP, "Lookup/Edit Individual Scores")
        dialog.choose(CLASSES, 1)
        self.assertEqual([dialog.is_enabled(f) for f in (REASONS_SCORE, QUESTIONS_SCORE)], [True, False])
        dialog.type("104")
        dialog.press("Tab")
        self.wait_for_focus(dialog, LETTER)
        dialog.type("x")
        dialog.press("Return")
        self.wait_for_focus(dialog, NUMBER_TYPED)
        self.assertEqual([dialog.text(i) for i in (1031, 1032, 1033, 1034, 1030, 1035, 1036)],
                         ["104", "X", "X", "(5,5,5)", "50", "0", "---"])
        for number in ("102", "101"):  # the second over the first, which is marked
            dialog.type(number)
            self.desktop.keys("alt+l")
            wait_for(lambda: dialog.text(1031) == number, f"the look-up of {number}")
            self.wait_for_focus(dialog, NUMBER_TYPED)
        self.assertEqual(dialog.default_button(), 1004)
        self.escape(dialog)
        self.expect_file()
        dialog = self.app.open_dialog(PLACINGS, "Input Placings Scores By Group")
        dialog.finish()
        self.expect_file("104\t1\tX\t50\t0\t0")


if __name__ == "__main__":
    unittest.main()
