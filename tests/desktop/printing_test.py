"""Prints reports of the real program on a printer that makes PDF, and reads the pages."""

import os
import re
import subprocess
import unittest

from desktop_case import BUILD, IDCANCEL, IDOK, NATIVE, DesktopTest, private_cups, wait_for

PRINT, PRINT_SMALL = 32805, 32811
TEAM_REPORT, TIE_BREAKERS = 32840, 32855
ABORT_BUTTON, PROGRESS = 1043, 1042

# On the test printer's letter paper, 6300 of 600 dots an inch high: the lines of the report that fit on a
# page between seven rows of header and the footer, and the width of a character in points.
NORMAL = {"command": PRINT, "body": 56, "width": 6.0}
SMALL = {"command": PRINT_SMALL, "body": 89, "width": 3.96}


def expected_pages(report, body_lines):
    """What is on the pages of a report, without empty lines; the time of printing as TIME."""
    lines = report.replace("\t", " ").split("\n")[:-1]
    head = ["State Livestock Judging Championship         October 03, 2026", "Senior Division - Printed TIME"]
    bodies = [lines[i:i + body_lines] for i in range(4, len(lines), body_lines)]
    footer = "        Tabulated by Scorvane       -Page {:<2}-       visit Scorvane"
    return [[line.rstrip() for line in [*head, *lines[:4], *body, footer.format(number)] if line.strip()]
            for number, body in enumerate(bodies, 1)]


class PrintingTest(DesktopTest):
    @classmethod
    def setUpClass(cls):
        missing = private_cups.missing()
        if missing:
            reason = "no printer to test with: this machine lacks " + ", ".join(missing)
            if "SCORVANE_MUST_PRINT" in os.environ:
                raise AssertionError(reason)
            raise unittest.SkipTest(reason)
        super().setUpClass()
        cls.printer = cls.enterClassContext(private_cups.PrivateCups(BUILD / "test-cups"))
        cls.desktop.environment.update(cls.printer.environment())

    def expect_print(self, app, report, kind):
        """Shows a report and prints it: one document, whose pages are as laid out."""
        expected = len(self.printer.documents()) + 1
        app.main().command(report)
        app.main().settle()
        app.main().command(kind["command"])
        app.window("Print").command(IDOK)
        document = self.printer.wait_for_document(expected)
        self.assertEqual(len(self.printer.documents()), expected)
        time = re.compile(r"Printed [A-Z][a-z]{2} [A-Z][a-z]{2} [ 1-3]\d \d\d:\d\d:\d\d \d{4}$")
        printed = [[time.sub("Printed TIME", line) for line in page]
                   for page in private_cups.pages_of(document, kind["width"])]
        self.assertEqual(printed, expected_pages(app.report(), kind["body"]))
        return len(printed)

    def test_pages_hold_header_body_and_footer(self):
        app = self.start(self.sample("state.scv"))
        self.assertEqual(self.expect_print(app, TEAM_REPORT, NORMAL), 7)
        self.assertEqual(self.expect_print(app, TEAM_REPORT, SMALL), 5)

    def test_cancelled_and_aborted_jobs_are_dropped_and_the_window_works_on(self):
        contest = self.folder / "huge.scv"
        subprocess.run([NATIVE / "make_contest", "--contestants", "20000", "--output", contest, "--name",
                        "State Livestock Judging Championship", "--date", "October 03, 2026",
                        "--division", "Senior Division"], check=True)
        app = self.start(contest)
        before = len(self.printer.documents())
        main = app.main()
        main.command(TEAM_REPORT)
        for button in (IDCANCEL, IDOK):
            dialog = app.open_dialog(PRINT, "Print")
            dialog.finish(button)
        dialog = app.window("Abort Printing?")
        progress = wait_for(lambda: dialog.text(PROGRESS), "the progress of the job")
        self.assertRegex(progress, r"^Teams and Contestants - \d+ Contestants - 5000 Teams, page \d+ of \d{3}$")
        self.assertFalse(next(enabled for handle, *_, enabled in app.windows() if handle == main.handle))
        self.assertEqual(dialog.text(ABORT_BUTTON), "Abort Print")
        dialog.click(ABORT_BUTTON)
        app.wait_closed(dialog)
        self.assertEqual(len(self.printer.documents()), before)
        self.expect_print(app, TIE_BREAKERS, NORMAL)


if __name__ == "__main__":
    unittest.main()
