"""Start-up, titles, reports, the file commands with their dialogs and messages, dropped files, and closing."""

import unittest

from desktop_case import BUILD, IDCANCEL, IDOK, DesktopTest, wait_for, windows_path

NEW, OPEN, SAVE, SAVE_AS, EXIT, SETUP_CONTEST = 32771, 32772, 32773, 32774, 105, 32787
SAVE_REPORT, ROUND_VERIFICATION = 32832, 32862
CLASSES, HIGH_INDIVIDUAL, VERIFY_LETTERS = 32837, 32796, 32846
WELCOME = "Welcome to Scorvane!\n"
COUNTY_FAIR = "Tallgrass County Fair Judging Contest"


class ShellTest(DesktopTest):
    def wait_for_title(self, main, title):
        wait_for(lambda: main.title() == title, f"the title {title!r}")

    def test_a_report_of_each_menu_is_copied_and_saved_as_scorvane_report_prints_it(self):
        contest = self.sample("state.scv")
        app = self.start(contest)
        main = app.main()
        for command in (CLASSES, HIGH_INDIVIDUAL, VERIFY_LETTERS):
            main.command(command)
            main.settle()
            self.assertEqual(app.report(), self.expected_report(contest, command))
        dialog = app.open_dialog(ROUND_VERIFICATION, "Round Verification Report")
        dialog.choose(1080, 1)
        dialog.finish(IDOK)
        expected = self.expected_report(contest, ROUND_VERIFICATION, "--round", 2)
        self.assertEqual(app.report(), expected)

        (self.folder / "old.txt").write_bytes(b"x" * 100000)
        for name in ("new", "old.txt"):
            main.command(SAVE_REPORT)
            app.choose_file(self.folder / name)
            main.settle()
        self.assertEqual({file.name: file.read_bytes() for file in self.folder.glob("*.txt")},
                         dict.fromkeys(("new.txt", "old.txt"), expected.replace("\n", "\r\n").encode("latin-1")))

    def test_file_commands_open_save_and_title_contests(self):
        missing = self.folder / "no such contest.scv"
        app = self.start(missing)
        self.assertEqual(app.answer(caption="Information"),
                         f"Invalid file name ({windows_path(missing)}) , or file does not exist.")
        main = app.main()
        self.assertEqual((main.title(), app.report()), ("Scorvane", WELCOME))
        contest, copy = self.sample(), self.folder / "copy.scv"
        before = contest.read_bytes()
        for command, file in ((OPEN, contest), (SAVE_AS, copy), (OPEN, contest), (OPEN, copy)):
            main.command(command)
            app.choose_file(file)
            self.wait_for_title(main, f"Scorvane - {windows_path(file)} - {COUNTY_FAIR}")
        self.assertEqual(copy.read_bytes(), before)
        # A cancelled Save As leaves the contest untitled but whole, a cancelled Open a new contest.
        for command, title in ((SAVE_AS, f"Scorvane -  - {COUNTY_FAIR}"), (OPEN, "Scorvane -  - Judging Contest")):
            main.command(command)
            app.choose_file(None)
            self.wait_for_title(main, title)
        main.command(NEW)
        self.wait_for_title(main, "Scorvane")
        main.command(EXIT)
        self.assertEqual(app.exit_code(), 0)
        self.assertEqual(contest.read_bytes(), before)

    def test_names_beyond_the_code_page_reach_their_own_files(self):
        """By the command line, a drop and both dialogs, with the files beside them that they were bent to once."""
        # Otherwise Wine has file names of ASCII characters only.
        self.addCleanup(self.desktop.environment.update, LC_ALL="C")
        self.desktop.environment["LC_ALL"] = "C.UTF-8"
        decoys = [self.folder / f"{name}.scv" for name in ("O", "L", "A", "copy O", "copy L", "copy A", "?", "e", "copy e")]
        for decoy in decoys:
            decoy.write_bytes(b"a decoy")
        contest = self.sample()
        before = contest.read_bytes()
        names = ["Ω", "Ł", "Ａ", "Ωδ Жщ", "评审", "🐄", "e\u0301", "한국", "שלום", "\u202E", "＼", "Ōé"]
        app = self.start()
        main = app.main()
        for name in names:
            own, copy = self.folder / f"{name}.scv", self.folder / f"copy {name}.scv"
            own.write_bytes(before.replace(b"Tallgrass", b"Our own %03d" % names.index(name)))
            shown = windows_path(own).replace(name, "".join(c if c in "eé " else "?" for c in name))
            title = f" - Our own {names.index(name):03d} County Fair Judging Contest"
            for take in (lambda: main.drop(own), lambda: (main.command(OPEN), app.choose_file(own))):
                main.command(NEW)
                self.wait_for_title(main, "Scorvane")
                take()
                self.wait_for_title(main, f"Scorvane - {shown}{title}")
            main.command(SAVE_AS)
            app.choose_file(copy)
            wait_for(copy.exists, copy)
            main.settle()
            self.assertEqual(copy.read_bytes(), own.read_bytes())
            main.command(SAVE)
            main.settle()
        for name in names[:3]:
            own = self.folder / f"{name}.scv"
            started = self.start(own)
            self.wait_for_title(started.main(), f"Scorvane - {windows_path(own.with_stem('?'))} - "
                                f"Our own {names.index(name):03d} County Fair Judging Contest")
            done = self.desktop.wine(BUILD / "scorvane-report.exe", windows_path(own), CLASSES)
            self.assertEqual(done.stdout.decode("latin-1"), self.expected_report(own, CLASSES))
        self.assertEqual({decoy.read_bytes() for decoy in decoys}, {b"a decoy"})
        self.assertEqual(len(list(self.folder.glob("*"))), len(decoys) + 1 + 2 * len(names))

    def test_drops_commands_and_closing_wait_until_no_dialog_is_open(self):
        contest = self.sample()
        app = self.start()
        main = app.main()
        main.drop(contest)
        title = f"Scorvane - {windows_path(contest)} - {COUNTY_FAIR}"
        self.wait_for_title(main, title)

        dialog = app.open_dialog(SETUP_CONTEST, "Setup Contest")
        main.drop(self.sample("state.scv"))
        main.command(NEW)
        main.close()
        main.settle()
        self.assertEqual(main.title(), title)
        dialog.finish(IDCANCEL)
        for key in ("question", "slash"):
            self.desktop.keys(key)
            about = app.window("About Scorvane")
            about.finish(IDCANCEL)


if __name__ == "__main__":
    unittest.main()
