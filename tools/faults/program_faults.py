#!/usr/bin/env python3
"""Injects faults around saving under the real scorvane.exe: nothing is lost, half-written or silent.

usage: program_faults.py [-v] [Faults.test_locked_file ...]     all faults when none is named

What this machine does not allow is skipped.
"""

import os
import pathlib
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests" / "desktop"))

from desktop_case import IDOK, NATIVE, DesktopTest, wait_for, windows_path  # noqa: E402

SAVE, SAVE_AS, SETUP_CONTEST, CONTEST_NAME, CONTESTANTS_REPORT = 32773, 32774, 32787, 1001, 32853
NOT_SAVED = "Your file did NOT save!"
PAGE = 4096


class Faults(DesktopTest):
    def setUp(self):
        super().setUp()
        self.contest = self.sample().rename(self.folder / "contest.scv")
        self.before = self.contest.read_bytes()

    def system(self, *command):
        done = subprocess.run(command, stderr=subprocess.PIPE, check=False)
        if done.returncode != 0:
            self.skipTest(f"not allowed here: {' '.join(map(str, command[:2]))}")

    def small_disk(self, size):
        """A disk of its own and the contest on it."""
        place = self.folder / "disk"
        place.mkdir()
        self.system("mount", "-t", "tmpfs", "-o", f"size={size}", "scorvane", place)
        self.addCleanup(subprocess.run, ["umount", "-l", place], check=False)
        contest = place / "contest.scv"
        contest.write_bytes(self.before)
        return place, contest

    def opened(self, contest):
        """The program with the contest, once it is read."""
        app = self.start(contest)
        self.wait_opened(app)
        return app

    @staticmethod
    def wait_opened(app):
        wait_for(lambda: app.main().title().startswith("Scorvane - "), "the contest to be open")

    @staticmethod
    def typed_name(app, name):
        """Setup Contest with a name typed in; closing it saves."""
        app.main().command(SETUP_CONTEST)
        dialog = app.window("Setup Contest")
        dialog.set_text(CONTEST_NAME, name)
        return dialog

    def rename_contest(self, app, name):
        self.typed_name(app, name).command(IDOK)

    def with_name(self, name):
        """The bytes of the contest under another name."""
        first, rest = self.before.split(b"\r\n", 1)
        self.assertTrue(first.startswith(b"contestName:\t"))
        return b"contestName:\t" + name.encode() + b"\r\n" + rest

    def expect_saved(self, path, name):
        wait_for(lambda: path.exists() and path.read_bytes() == self.with_name(name),
                         f"{path} to hold {name}")

    def expect_refused(self, app, path, leftover=()):
        """The message, and the old file whole with nothing beside it; all is in the program still."""
        self.assertIn(NOT_SAVED, app.answer(caption="File Save Error"))
        self.assertEqual(path.read_bytes(), self.before)
        self.assertEqual(sorted(f.name for f in path.parent.iterdir()), sorted([path.name, *leftover]))

    def save_as(self, app, path):
        app.main().command(SAVE_AS)
        app.choose_file(path)

    def expect_saved_elsewhere(self, app, name):
        path = self.folder / "elsewhere.scv"
        self.save_as(app, path)
        self.expect_saved(path, name)

    def test_locked_file(self):
        app = self.opened(self.contest)
        app.tell("hold", windows_path(self.contest))
        self.rename_contest(app, "Held Fair")
        self.expect_refused(app, self.contest)
        app.tell("hold", "")
        app.main().command(SAVE)
        self.expect_saved(self.contest, "Held Fair")

    def test_protected_folder(self):
        app = self.opened(self.contest)
        self.system("chattr", "+i", self.folder)
        self.addCleanup(subprocess.run, ["chattr", "-i", self.folder], check=False)
        self.rename_contest(app, "Protected Fair")
        self.expect_saved(self.contest, "Protected Fair")
        self.assertEqual([f.name for f in self.folder.iterdir()], [self.contest.name])

    def test_disk_full(self):
        disk, contest = self.small_disk(1 << 20)
        app = self.opened(contest)
        self.rename_contest(app, "Full Fair")
        self.expect_saved(contest, "Full Fair")
        needed = -(-len(self.with_name("Full Fair 00")) // PAGE)
        for free in range(needed + 2):
            self.before = contest.read_bytes()
            room = os.statvfs(disk)
            (disk / "ballast").write_bytes(b"x" * ((room.f_bavail - free) * PAGE))
            name = f"Full Fair {free:02}"
            self.rename_contest(app, name)
            if free < needed:
                self.expect_refused(app, contest, ["ballast"])
            else:
                self.expect_saved(contest, name)
            (disk / "ballast").unlink()

    def test_drive_gone(self):
        letter = self.desktop.prefix / "dosdevices/x:"
        stick = self.folder / "stick"
        stick.mkdir()
        contest = self.contest.rename(stick / "contest.scv")
        letter.symlink_to(stick)
        self.addCleanup(letter.unlink, missing_ok=True)
        app = self.desktop.start(r'"X:\contest.scv"')
        self.addCleanup(app.close)
        self.wait_opened(app)
        letter.unlink()
        self.rename_contest(app, "Lost Fair")
        self.expect_refused(app, contest)
        letter.symlink_to(stick)
        app.main().command(SAVE)
        self.expect_saved(contest, "Lost Fair")
        letter.unlink()
        self.expect_saved_elsewhere(app, "Lost Fair")

    def test_every_byte(self):
        printable = bytes(range(0x20, 0x7F)) + bytes(range(0x80, 0x100))
        commands = [b"bytes", b"name " + printable, b"save_as " + os.fsencode(self.contest)]
        done = subprocess.run([NATIVE / "contest_session"], input=b"\n".join(commands), check=True,
                              stdout=subprocess.PIPE)
        self.assertEqual(done.stdout, b"ok\nok\nok\n")
        before = self.contest.read_bytes()
        self.assertIn(printable, before)
        app = self.opened(self.contest)
        self.contest.unlink()
        # The dialog shows its texts in fields, reads them again and saves.
        app.main().command(SETUP_CONTEST)
        app.window("Setup Contest").command(IDOK)
        wait_for(lambda: self.contest.exists() and self.contest.read_bytes() == before, "the same bytes")
        self.assertIn("gone", app.answer(IDOK, "Information"))
        app.main().command(CONTESTANTS_REPORT)
        app.main().settle()
        expected = self.expected_report(self.contest, "Contestants Report")
        self.assertEqual(app.report().replace("\r\n", "\n"), expected)

    def test_two_copies_at_once(self):
        apps = {"First Fair": self.opened(self.contest), "Second " + "Fair " * 90: self.opened(self.contest)}
        for _ in range(10):
            self.contest.write_bytes(self.before)
            dialogs = [self.renaming(app, name) for name, app in apps.items()]
            for dialog in dialogs:
                dialog.command(IDOK)
            told = wait_for(lambda: [app for app in apps.values() if self.is_told(app)], "the news of two names")
            self.assertEqual(len(told), 1)
            self.assertIn("1 value differs; yours was saved.", told[0].answer(IDOK, "Information"))
            for app in apps.values():
                app.main()
            name = next(name for name, app in apps.items() if app is told[0])
            self.expect_saved(self.contest, name)
        self.assertEqual([file.name for file in self.folder.iterdir()], [self.contest.name])

    def renaming(self, app, name):
        """The program's Setup Contest, where the contest has another name but is not saved yet."""
        app.main().drop(self.contest)
        wait_for(lambda: app.main().title().endswith("Judging Contest"), "the contest to be open again")
        return self.typed_name(app, name)

    @staticmethod
    def is_told(app):
        return any(title == "Information" for _, _, title, _ in app.windows())


if __name__ == "__main__":
    unittest.main()
