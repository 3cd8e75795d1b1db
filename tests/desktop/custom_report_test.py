"""The Custom Report dialog in the real program, by the keyboard alone, held against scorvane-report."""

import unittest

from desktop_case import DesktopTest, wait_for

CUSTOM_REPORT = 32800
TITLE, CATEGORY, NUMBER, PERCENT, TEAM, CLASSES = 1045, 1075, 1037, 1041, 1057, 1036
OVERALL, PLACINGS, REASONS = 1038, 1039, 1040


class CustomReportTest(DesktopTest):
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


if __name__ == "__main__":
    unittest.main()
