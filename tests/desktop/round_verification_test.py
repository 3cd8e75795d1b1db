"""Verifies a round with the real dialog, and shows every report of its menus."""

import unittest

from desktop_case import IDCANCEL, IDOK, DesktopTest

ROUND_VERIFICATION = 32862
ROUNDS, GROUPS, CLASSES = 1080, 1053, 1016
TITLE = "Round Verification Report"

FIRST_LINES = {
    32837: "     Classes Report", 32838: "             Group Assignments",
    32839: "Round Assignments Report", 32842: "     Official Placings Report",
    32840: "     Teams and Contestants - 3 Contestants - 1 Teams",
    32853: "     Contestant Report - 3 Contestants - 1 Teams",
    32846: "Verify Scores Report", 32847: "Verify Placings Report",
    32848: "Verify Questions Scores Report", 32845: "Reasons Scores By Team Report",
    32849: "Zero Scores Report", 32850: "Zero Reasons Report", 32851: "Zero Questions Report"}


def contest_file(path):
    """Three classes, three groups of one contestant; 101 handed in BCD, 102 EFG and 103 HIJ."""
    lines = ["contestName:\tFair", "startNum:\t101", "numPerTeam:\t3", "numGroups:\t3", "totalNumPerTeam:\t3",
             "categories:\tnone", "~~~~~Classes~~~~~", "3"]
    lines += [f"{name}\tNo\tNo\tA\t2,3,4\t0" for name in ("Heifers", "Wethers", "Gilts")]
    lines += ["~~~~~Contestants~~~~~", "3", "101\tAnn\t-1\t-1", "102\tBob\t-1\t-1", "103\tCy\t-1\t-1"]
    lines += ["~~~~~Teams~~~~~", "1", "Oak\tPat\t101\t102\t103", "~~~~~Scores~~~~~", "9"]
    for number, letters in ((101, "BCD"), (102, "EFG"), (103, "HIJ")):
        lines += [f"{number}\t{k}\t{letter}\t40\t0\t0" for k, letter in enumerate(letters)]
    lines += ["0000-0000-0000-0000"] * 2
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("ascii"))
    return path


def verification(number, row):
    return (f"Round {number} Verification Report\n\n    A    |    B    |    C    |\n"
            f"---------|---------|---------|\n{row}\n\n")


class RoundVerification(DesktopTest):
    def setUp(self):
        super().setUp()
        self.app = self.start(contest_file(self.folder / "fair.scv"))

    def dialog(self):
        self.app.main().command(ROUND_VERIFICATION)
        return self.app.window(TITLE)

    def end(self, dialog, button):
        dialog.command(button)
        self.app.wait_closed(dialog)

    def test_by_round(self):
        dialog = self.dialog()
        self.assertEqual(dialog.lines(ROUNDS), ["         1", "         2", "         3"])
        self.assertEqual(dialog.lines(GROUPS), ["       A", "       B", "       C"])
        self.assertEqual(dialog.lines(CLASSES), [" 1.  Heifers", " 2.  Wethers", " 3.  Gilts"])
        dialog.choose(ROUNDS, 1)
        self.end(dialog, IDOK)
        self.assertEqual(self.app.report(), verification(2, "   101-C |   102-G |   103-H |"))

    def test_by_group_and_class(self):
        dialog = self.dialog()
        dialog.choose(ROUNDS, 0)
        dialog.choose(GROUPS, 1)
        self.assertEqual(dialog.selection(ROUNDS), [])
        dialog.choose(CLASSES, 0)
        self.assertEqual(dialog.selection(ROUNDS), [2])
        self.end(dialog, IDOK)
        self.assertEqual(self.app.report(), verification(3, "   101-D |   102-E |   103-I |"))

    def test_ok_without_a_choice(self):
        before = self.app.report()
        dialog = self.dialog()
        dialog.command(IDOK)
        self.assertEqual(self.app.answer(IDOK, "Information"),
                         "You must select either a round number or a group and class to report on.")
        self.end(dialog, IDCANCEL)
        self.assertEqual(self.app.report(), before)

    def test_every_other_report_is_shown(self):
        for command, first_line in FIRST_LINES.items():
            self.app.main().command(command)
            self.assertEqual(self.app.report().partition("\n")[0], first_line)


if __name__ == "__main__":
    unittest.main()
