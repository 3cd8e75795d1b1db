"""The Custom Report dialog in the real program, held against scorvane-report."""

import unittest

from desktop import IDCANCEL, IDOK, DesktopTest

CUSTOM_REPORT = 32800
TITLE, CATEGORY, NUMBER, PERCENT, TEAM, PLACINGS, CLASSES = 1045, 1075, 1037, 1041, 1057, 1039, 1036


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

    def test_cancel_leaves_the_report(self):
        before = self.app.report()
        self.end(self.dialog(), IDCANCEL)
        self.assertEqual(self.app.report(), before)


if __name__ == "__main__":
    unittest.main()
