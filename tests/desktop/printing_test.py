"""Prints reports of the real program on a printer that makes PDF, and reads the pages."""

import os
import re
import unittest

from desktop_case import BUILD, IDCANCEL, IDOK, DesktopTest, private_cups, wait_for

PRINT, PRINT_SMALL = 32805, 32811
TEAM_REPORT, REASONS_ORDER, TIE_BREAKERS, HIGH_INDIVIDUAL = 32840, 32841, 32855, 32796
ABORT_BUTTON, PROGRESS = 1043, 1042
PAGE_BREAK = " " * 15 + "------- Page Break -------"

# On the test printer's letter paper, 6300 of 600 dots an inch high: the lines of the report that fit on a
# page between seven rows of header and the footer, and the width of a character in points.
NORMAL = {"command": PRINT, "body": 56, "width": 6.0}
SMALL = {"command": PRINT_SMALL, "body": 89, "width": 3.96}


def contest_file(path, teams, reasons_groups, classes=()):
    """Writes a contest with teams of four; every contestant gives reasons and has scores that differ."""
    numbers = range(101, 101 + 4 * teams)
    lines = ["contestName:\tState Fair ~ Final", "divisionName:\tSenior", "contestDate:\tMarch 07, 2026",
             "startNum:\t101", "numPerTeam:\t4", "numToScore:\t3", "reportPercent:\t0", "numToReport:\t75",
             "numGroups:\t5", "totalNumPerTeam:\t4", f"numReasonsGroups:\t{reasons_groups}", "categories:\tnone",
             "~~~~~Classes~~~~~", str(len(classes))]
    lines += [f"{name}\tYes\tNo\tA\t2,3,4\t0" for name in classes]
    lines += ["~~~~~Contestants~~~~~", str(len(numbers))]
    lines += [f"{n}\tPerson {n}\t{i % reasons_groups}\t{i // reasons_groups}" for i, n in enumerate(numbers)]
    lines += ["~~~~~Teams~~~~~", str(teams)]
    lines += ["\t".join([f"Team {t:04}", f"Coach {t}", *map(str, numbers[4 * t:4 * t + 4])]) for t in range(teams)]
    lines += ["~~~~~Scores~~~~~", str(len(classes) * len(numbers))]
    lines += [f"{n}\t{c}\tA\t50\t{(n * 7 + c) % 51}\t0" for n in numbers for c in range(len(classes))]
    lines += ["0000-0000-0000-0000"] * 2
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("ascii"))
    return path


def expected_pages(report, body_lines):
    """What stands on the pages of a report, without empty lines; the time of printing as TIME."""
    lines = [line.replace("\t", " ") for line in report.split("\n")[:-1]]
    head = ["State Fair ~ Final         March 07, 2026", "Senior - Printed TIME"]
    head += [line.replace("~", "-") for line in lines[:4]]
    pages = [[]]
    for line in lines[4:]:
        if line != PAGE_BREAK:
            pages[-1].append(line)
        if line == PAGE_BREAK or len(pages[-1]) == body_lines:
            pages.append([])
    whole = []
    for number, body in enumerate(pages, 1):
        footer = f"        Tabulated by Scorvane       -Page {number:<2}-       visit www.scorvane.example"
        whole.append([line.rstrip() for line in [*head, *body, footer] if line.strip()])
    return whole


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

    def show(self, app, report):
        app.main().command(report)
        app.main().settle()

    def print(self, app, kind):
        """Prints what the program shows; gives the pages, the time of printing replaced."""
        expected = len(self.printer.documents()) + 1
        app.main().command(kind["command"])
        app.window("Print").command(IDOK)
        document = self.printer.wait_for_document(expected)
        app.main()  # answers the operator again
        time = re.compile(r"Printed [A-Z][a-z]{2} [A-Z][a-z]{2} [ 1-3]\d \d\d:\d\d:\d\d \d{4}$")
        return [[time.sub("Printed TIME", line) for line in page]
                for page in private_cups.pages_of(document, kind["width"])]

    def test_pages_hold_header_body_and_footer(self):
        contest = contest_file(self.folder / "fair.scv", teams=24, reasons_groups=10,
                               classes=["Angus Heifers", "Market Lambs"])
        app = self.start(contest)
        for report, kind, pages in ((TEAM_REPORT, NORMAL, 3), (TEAM_REPORT, SMALL, 2),
                                    (HIGH_INDIVIDUAL, NORMAL, 2), (HIGH_INDIVIDUAL, SMALL, 1),
                                    (REASONS_ORDER, NORMAL, 2)):
            with self.subTest(report=report, kind=kind):
                self.show(app, report)
                printed = self.print(app, kind)
                self.assertEqual(printed, expected_pages(app.report(), kind["body"]))
                self.assertEqual(len(printed), pages)

    def test_cancelling_the_print_dialog_prints_nothing(self):
        app = self.start(contest_file(self.folder / "fair.scv", teams=1, reasons_groups=1))
        before = len(self.printer.documents())
        app.main().command(PRINT)
        dialog = app.window("Print")
        dialog.command(IDCANCEL)
        app.wait_closed(dialog)
        self.show(app, TIE_BREAKERS)
        self.assertEqual(self.print(app, NORMAL), expected_pages(app.report(), NORMAL["body"]))
        self.assertEqual(len(self.printer.documents()), before + 1)

    def test_aborting_a_long_job_drops_it_and_the_window_works_on(self):
        app = self.start(contest_file(self.folder / "fair.scv", teams=5000, reasons_groups=1))
        before = len(self.printer.documents())
        self.show(app, TEAM_REPORT)
        main = app.main()
        main.command(PRINT)
        app.window("Print").command(IDOK)
        dialog = app.window("Abort Printing?")
        progress = wait_for(lambda: dialog.text(PROGRESS), "the progress of the job")
        self.assertRegex(progress, r"^Teams and Contestants - 20000 Contestants - 5000 Teams, page \d+ of 536$")
        self.assertFalse(next(enabled for handle, *_, enabled in app.windows() if handle == main.handle))
        self.assertEqual(dialog.text(ABORT_BUTTON), "Abort Print")
        dialog.click(ABORT_BUTTON)
        app.wait_closed(dialog)

        self.show(app, TIE_BREAKERS)
        self.assertEqual(self.print(app, NORMAL), expected_pages(app.report(), NORMAL["body"]))
        self.assertEqual(len(self.printer.documents()), before + 1)


if __name__ == "__main__":
    unittest.main()
