"""The reasons order from the menu: generated, edited by hand, kept in the file, and on the officials' sheets."""

import unittest

from desktop_case import IDOK, DesktopTest

GENERATE, EDIT, ORDER_REPORT, ORDER_SHEET, VERIFICATION_SHEET = 32867, 32864, 32841, 32843, 32844
GROUPS, MOVE_UP, ORDER, UNASSIGNED, REMOVE, DONE = 1081, 1082, 1083, 1084, 1088, 1086
CLASSES = 1052


class Reasons(DesktopTest):
    def test_generated_edited_and_saved(self):
        contest = self.sample()
        app = self.start(contest)
        app.main().command(GENERATE)
        self.assertIn("overwrite any previous edits", app.answer(IDOK, "Warning"))
        app.main().command(EDIT)
        editor = app.window("Reasons Order Edit")
        editor.choose(GROUPS, 0)
        first, second, third, *rest = editor.lines(ORDER)
        editor.choose(ORDER, 1)
        editor.click(MOVE_UP)
        self.assertEqual(editor.selection(ORDER), [0])
        editor.choose(ORDER, 2)
        editor.click(REMOVE)
        editor.choose(UNASSIGNED, third)
        self.assertEqual(editor.lines(ORDER), [second, first, *rest, third])
        editor.command(DONE)
        app.wait_closed(editor)
        self.assertEqual(app.report(), self.expected_report(contest, ORDER_REPORT))
        for command in (ORDER_SHEET, VERIFICATION_SHEET):
            app.main().command(command)
            dialog = app.window("Reasons Class to Score")
            dialog.choose(CLASSES, " 8.  Duroc Boars")
            dialog.command(IDOK)
            app.wait_closed(dialog)
            self.assertEqual(app.report(), self.expected_report(contest, command, "--class", 8))


if __name__ == "__main__":
    unittest.main()
