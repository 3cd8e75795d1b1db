"""The reasons order from the menu: generated, edited by hand, kept in the file, and on the officials' sheets."""

import re
import unittest

from desktop_case import DesktopTest

GENERATE, EDIT, ORDER_REPORT, ORDER_SHEET, VERIFICATION_SHEET = 32867, 32864, 32841, 32843, 32844
GROUPS, MOVE_UP, ORDER, UNASSIGNED, REMOVE, DONE = 1081, 1082, 1083, 1084, 1088, 1086
CLASSES, OK, EXIT = 1052, 1, 105


def first_group(report):
    """The numbers in the first column of the reasons order report."""
    grid = report.partition("Contestants Not")[0].partition("Reasons Class Order")[0]
    return [int(n) for n in re.findall(r"^    (\d+)", grid, re.MULTILINE)]


class Reasons(DesktopTest):
    def sheet(self, app, command, line):
        app.main().command(command)
        dialog = app.window("Reasons Class to Score")
        dialog.choose(CLASSES, line)
        dialog.command(OK)
        app.wait_closed(dialog)
        return app.report()

    def test_generated_edited_saved_and_printed(self):
        contest = self.sample()
        app = self.start(contest)
        app.main().command(GENERATE)
        self.assertIn("overwrite any previous edits", app.answer(OK, "Warning"))
        generated = first_group(app.report())
        self.assertGreater(len(generated), 4)

        app.main().command(EDIT)
        editor = app.window("Reasons Order Edit")
        editor.choose(GROUPS, 0)
        editor.choose(ORDER, 1)
        editor.click(MOVE_UP)
        self.assertEqual(editor.selection(ORDER), [0])
        editor.choose(ORDER, 2)
        editor.click(REMOVE)
        editor.choose(UNASSIGNED, 0)
        first, second, third, *rest = generated
        edited = [second, first, *rest, third]
        self.assertEqual([int(line.split()[0]) for line in editor.lines(ORDER)], edited)
        editor.command(DONE)
        app.wait_closed(editor)
        report = app.report()
        self.assertEqual(first_group(report), edited)
        app.main().command(EXIT)
        self.assertEqual(app.exit_code(), 0)

        app = self.start(contest)
        app.main().command(ORDER_REPORT)
        self.assertEqual(app.report(), report)
        order = self.sheet(app, ORDER_SHEET, " 8.  Duroc Boars")
        self.assertIn("8. Duroc Boars, Official Score B (1243), Cuts (4,8,2)\n", order)
        self.assertEqual([int(n) for n in re.findall(r"^ (\d+) +_____", order, re.MULTILINE)], edited)
        verification = self.sheet(app, VERIFICATION_SHEET, 1)
        self.assertEqual([int(n) for n in re.findall(r"^ (\d+) +__.\d_", verification, re.MULTILINE)], edited)


if __name__ == "__main__":
    unittest.main()
