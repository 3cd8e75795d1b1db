"""Saving through the Windows side of the file port: attributes, links, files in use, kills."""

import random
import subprocess
import time
import unittest

from desktop_case import BUILD, IDOK, ROOT, DesktopTest, wait_for, windows_path

SAVE, SETUP_CONTEST, CONTEST_NAME = 32773, 32787, 1001


class Files(DesktopTest):
    PROGRAM = BUILD / "file_check.exe"

    def test_saving_where_windows_is_peculiar(self):
        done = self.desktop.wine(self.PROGRAM, windows_path(self.folder), check=False)
        self.assertEqual(done.stdout.decode(), "")
        self.assertEqual(done.returncode, 0)

    def test_killed_saves_leave_a_whole_file(self):
        wholes = {b"a" * 9000, b"b" * 300000}
        path = self.folder / "contest.scv"
        path.write_bytes(b"a" * 9000)
        seen, spares = set(), 0
        seed = random.randrange(1 << 30)
        moments = random.Random(seed)
        for kill in range(30):
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

    def test_a_file_that_another_process_holds_is_said_and_stays(self):
        contest = self.folder / "contest.scv"
        contest.write_bytes((ROOT / "samples/county.scv").read_bytes())
        before = contest.read_bytes()
        app = self.start(contest)
        main = app.main()
        holder = subprocess.Popen(["wine", self.PROGRAM, windows_path(self.folder), "hold"],
                                  env=self.desktop.environment, stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.assertEqual(holder.stdout.readline().strip(), b"holding")
        self.rename_contest(app, main, "Held Fair")
        self.assertIn("Your file did NOT save!", app.answer(caption="File Save Error"))
        self.assertEqual(contest.read_bytes(), before)
        self.assertEqual([file.name for file in self.folder.iterdir()], ["contest.scv"])
        holder.communicate()
        main.command(SAVE)
        wait_for(lambda: b"Held Fair" in contest.read_bytes(), "the save once the file is free")

    def test_of_two_programs_with_one_contest_the_last_to_save_wins(self):
        contest = self.sample()
        first, second = self.start(contest), self.start(contest)
        for app, name in ((first, "First Fair"), (second, "Second Fair"), (first, "Third Fair")):
            self.rename_contest(app, app.main(), name)
            wait_for(lambda: app.main().title().endswith(name), f"the title of {name}")
            self.assertEqual(contest.read_bytes().split(b"\r\n")[0], f"contestName:\t{name}".encode())
        self.assertEqual([file.name for file in self.folder.iterdir()], [contest.name])

    @staticmethod
    def rename_contest(app, main, name):
        main.command(SETUP_CONTEST)
        dialog = app.window("Setup Contest")
        dialog.set_text(CONTEST_NAME, name)
        dialog.command(IDOK)


if __name__ == "__main__":
    unittest.main()
