"""Saving through the Windows side of the file port: attributes, links, files in use, kills."""

import os
import random
import subprocess
import time
import unittest

from desktop_case import BUILD, DesktopTest, wait_for, windows_path


class Files(DesktopTest):
    PROGRAM = BUILD / "file_check.exe"

    def setUp(self):
        super().setUp()
        # Otherwise Wine has file names of ASCII characters only.
        self.desktop.environment["LC_ALL"] = "C.UTF-8"

    def test_saving_where_windows_is_peculiar(self):
        drive = self.desktop.prefix / "dosdevices" / "q:"
        drive.symlink_to(self.folder)
        self.addCleanup(drive.unlink)
        done = self.desktop.wine(self.PROGRAM, windows_path(self.folder), check=False)
        self.assertEqual((done.stdout.decode(), done.returncode), ("", 0))

    def test_names_beyond_the_code_page_reach_their_own_files(self):
        done = self.desktop.wine(self.PROGRAM, windows_path(self.folder), windows_path(self.sample()), check=False)
        self.assertEqual((done.stdout.decode(), done.returncode), ("", 0))

    def test_killed_saves_leave_a_whole_file(self):
        wholes = {b"a" * 9000, b"b" * 300000}
        path = self.folder / "contest.scv"
        path.write_bytes(b"a" * 9000)
        seen, spares = set(), 0
        seed = random.randrange(1 << 30)
        moments = random.Random(seed)
        for kill in range(int(os.environ.get("SCORVANE_KILLS", "30"))):
            before = path.stat()
            saver = subprocess.Popen(
                ["wine", self.PROGRAM, windows_path(self.folder), "save"],
                env=self.desktop.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL)
            wait_for(lambda: path.stat() != before, "the first save")
            time.sleep(moments.uniform(0, 0.02))
            saver.kill()
            self.assertEqual(saver.wait(), -9, "it saved until it was killed")
            content = path.read_bytes()
            self.assertIn(content, wholes, f"kill {kill + 1} of seed {seed}")
            seen.add(content)
            for spare in self.folder.glob("*.tmp"):
                spares += 1
                spare.unlink()
        self.assertEqual(seen, wholes)
        self.assertGreater(spares, 0, "no kill met a save")


if __name__ == "__main__":
    unittest.main()
