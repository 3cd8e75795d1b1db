"""Saves the report on screen through the real file dialog."""

import unittest

from desktop_case import DesktopTest


class SaveReport(DesktopTest):
    def save(self, app, name):
        app.main().command(32832)
        app.choose_file(self.folder / name)
        app.main().settle()

    def test_reports_become_text_files_new_and_replaced(self):
        contest = self.sample()
        app = self.start(contest)
        app.main().command(32837)
        app.main().settle()
        expected = self.expected_report(contest, 32837).replace("\n", "\r\n")
        self.save(app, "new")
        self.assertEqual((self.folder / "new.txt").read_bytes().decode("latin-1"), expected)
        (self.folder / "old.txt").write_bytes(b"x" * 100000)
        self.save(app, "old.txt")
        self.assertEqual((self.folder / "old.txt").read_bytes().decode("latin-1"), expected)
        self.assertEqual(sorted(f.name for f in self.folder.iterdir()), ["county.scv", "new.txt", "old.txt"])


if __name__ == "__main__":
    unittest.main()
