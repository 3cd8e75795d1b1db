"""The Custom Report dialog in the real program, held against scorvane-report."""

import unittest

from desktop_case import IDCANCEL, IDOK, DesktopTest, wait_for

CUSTOM_REPORT = 32800
TITLE, CATEGORY, NUMBER, PERCENT, TEAM, CLASSES = 1045, 1075, 1037, 1041, 1057, 1036
OVERALL, PLACINGS, REASONS = 1038, 1039, 1040


class CustomReportTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.contest = self.sample("state.scv")
        self.app = self.start(self.contest)

    def dialog(self):
        self.app.main().command(CUSTOM_REPORT)
        return self.app.window("Custom Report")

    def end(self, dialog, button=IDOK):
        dialog.command(button)
        self.app.wait_closed(dialog)

    def test_a_category_with_a_class_added_by_hand(self):
        dialog = self.dialog()
        self.assertEqual((dialog.text(NUMBER), dialog.selection(CLASSES), dialog.default_button()),
                         ("20", [], IDOK))
        dialog.choose(CATEGORY, "Swine")
        chosen = dialog.selection(CLASSES)
        self.assertTrue(0 < len(chosen) < len(dialog.lines(CLASSES)))
        self.assertEqual(dialog.text(TITLE), "Swine")
        added = next(i for i in range(len(dialog.lines(CLASSES))) if i not in chosen)
        dialog.choose(CLASSES, added)
        self.end(dialog)
        classes = ",".join(str(i + 1) for i in sorted([*chosen, added]))
        self.assertEqual(self.app.report(), self.expected_report(
            self.contest, CUSTOM_REPORT, "--title", "Swine", "--classes", classes))

    def test_teams_of_a_category_by_placings_as_a_percentage(self):
        dialog = self.dialog()
        dialog.choose(CATEGORY, "Beef")
        dialog.set_text(NUMBER, "10")
        for button in (PERCENT, TEAM, PLACINGS):
            dialog.click(button)
        self.end(dialog)
        report = self.app.report()
        self.assertTrue(report.startswith("High Team Placings Beef (scoring the top 3 per team)\n"))
        self.assertEqual(report, self.expected_report(
            self.contest, CUSTOM_REPORT, "--category", "Beef", "--kind", "placings", "--number", 10,
            "--percent", "--team"))

    def test_by_the_keyboard_alone(self):
        dialog = self.dialog()

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
        for key, control in (("Tab", PERCENT), ("Tab", TEAM), ("Tab", OVERALL), ("Down", PLACINGS),
                             ("Down", REASONS), ("Tab", CLASSES)):
            press_to(key, control)
        dialog.press("Home", "Down", "Space", "Down", "Space")  # one out and one in by hand
        wait_for(lambda: dialog.selection(CLASSES) == [2, 5, 9], "the classes chosen by hand")
        self.desktop.keys("Return")
        self.app.wait_closed(dialog)
        self.assertEqual(self.app.report(), self.expected_report(
            self.contest, CUSTOM_REPORT, "--title", "Swine", "--classes", "3,6,10", "--kind", "reasons",
            "--number", 7))

    def test_cancel_leaves_the_report(self):
        before = self.app.report()
        self.end(self.dialog(), IDCANCEL)
        self.assertEqual(self.app.report(), before)


if __name__ == "__main__":
    unittest.main()
