"""Start-up, titles, the file commands and their messages, and reports read back from the window."""

import unittest

from desktop_case import IDCANCEL, DesktopTest, wait_for, windows_path

NEW, OPEN, SAVE, SAVE_AS, EXIT, ABOUT, SETUP_CONTEST = 32771, 32772, 32773, 32774, 105, 104, 32787
HIGH_INDIVIDUAL = {"Overall": 32796, "Placings": 32799, "Reasons": 32798, "Questions": 32827}
WELCOME = "Welcome to Scorvane!\n"


class ShellTest(DesktopTest):
    def test_reports_read_back_equal_what_scorvane_report_prints(self):
        contest = self.sample()
        app = self.start(contest)
        main = app.main()
        self.assertEqual(main.title(),
                         f"Scorvane - {windows_path(contest)} - Tallgrass County Fair Judging Contest")
        self.assertEqual(app.report(), WELCOME)
        for kind, command in HIGH_INDIVIDUAL.items():
            main.command(command)
            main.settle()
            shown = app.report()
            self.assertTrue(shown.startswith(f"High Individual {kind} \n\n"), shown[:60])
            self.assertEqual(shown, self.expected_report(contest, command))

    def test_every_report_command_shows_what_scorvane_report_prints(self):
        contest = self.sample("state.scv")
        app = self.start(contest)
        main = app.main()
        asking = {32800, 32843, 32844, 32862}
        listed = [int(line.split("\t")[0])
                  for line in self.expected_report("--list").splitlines()]
        self.assertGreater(len(listed), 25)
        for command in listed:
            if command in asking:
                continue
            with self.subTest(command=command):
                main.command(command)
                main.settle()
                self.assertEqual(app.report(), self.expected_report(contest, command))

    def test_a_file_that_cannot_be_opened_is_said_and_leaves_a_new_contest(self):
        missing = self.folder / "no such contest.scv"
        app = self.start(missing)
        self.assertEqual(app.answer(caption="Information"),
                         f"Invalid file name ({windows_path(missing)}) , or file does not exist.")
        self.assertEqual(app.main().title(), "Scorvane")
        self.assertEqual(app.report(), WELCOME)

    def test_a_corrupt_file_is_refused(self):
        broken = self.folder / "with blanks in its name.scv"
        broken.write_bytes(b"no contest at all\r\n" * 40)
        app = self.start(broken)
        self.assertEqual(app.answer(caption="Error!"), "Illegal or corrupt data file.")
        self.assertEqual(app.main().title(), "Scorvane")

    def test_new_open_and_save_as(self):
        contest = self.sample()
        before = contest.read_bytes()
        copy = self.folder / "copy.scv"
        app = self.start(contest)
        main = app.main()

        main.command(SAVE_AS)
        app.choose_file(copy)
        title = f"Scorvane - {windows_path(copy)} - Tallgrass County Fair Judging Contest"
        wait_for(lambda: main.title() == title, "the title of the copy")
        self.assertEqual(copy.read_bytes(), before)

        main.command(OPEN)
        app.choose_file(contest)
        wait_for(lambda: str(contest.name) in main.title(), "the title of the contest")

        # A cancelled Save As leaves the contest untitled but whole.
        main.command(SAVE_AS)
        app.choose_file(None)
        wait_for(lambda: main.title() == "Scorvane -  - Tallgrass County Fair Judging Contest",
                 "the title of the untitled contest")

        # A cancelled Open leaves a new contest.
        main.command(OPEN)
        app.choose_file(None)
        wait_for(lambda: main.title() == "Scorvane -  - Judging Contest", "the new contest's title")

        main.command(NEW)
        wait_for(lambda: main.title() == "Scorvane", "the program's title alone")
        self.assertEqual(app.report(), WELCOME)

        main.command(EXIT)
        self.assertEqual(app.exit_code(), 0)
        self.assertEqual(contest.read_bytes(), before)

    def test_a_save_that_fails_is_said_and_leaves_the_old_file(self):
        contest = self.sample()
        before = contest.read_bytes()
        app = self.start(contest)
        main = app.main()
        elsewhere = self.folder / "gone"
        elsewhere.mkdir()
        main.command(SAVE_AS)
        app.choose_file(elsewhere / "contest.scv")
        wait_for(lambda: (elsewhere / "contest.scv").exists(), "the saved file")
        for file in elsewhere.iterdir():
            file.unlink()
        elsewhere.rmdir()
        main.command(SAVE)
        text = app.answer(caption="File Save Error")
        self.assertEqual(text.replace("\r", ""), (
            "Your file did NOT save!\n"
            "Perhaps you previously saved to removable media like a thumb drive.\n"
            "Select File->Save As and save your file to another location.\n"
            "Again, your file did NOT save!  Please use File->Save As to ensure your work is saved.\n"))
        self.assertEqual(contest.read_bytes(), before)

    def test_drops_commands_and_closing_wait_until_no_dialog_is_open(self):
        contest = self.sample()
        app = self.start()
        main = app.main()
        main.drop(contest)
        title = f"Scorvane - {windows_path(contest)} - Tallgrass County Fair Judging Contest"
        wait_for(lambda: main.title() == title, "the dropped contest")

        main.command(SETUP_CONTEST)
        dialog = app.window("Setup Contest")
        main.drop(self.sample("state.scv"))
        main.command(NEW)
        main.close()
        main.settle()
        self.assertEqual(main.title(), title)
        dialog.command(IDCANCEL)
        app.wait_closed(dialog)

        main.drop(self.folder / "gone.scv")
        self.assertIn("or file does not exist.", app.answer(caption="Information"))

    def test_keys_open_the_about_box_and_close_it(self):
        app = self.start()
        main = app.main()
        for key in ("question", "slash"):
            self.desktop.keys(key)
            about = app.window("About Scorvane")
            about.command(IDCANCEL)
            app.wait_closed(about)
        self.assertEqual(main.title(), "Scorvane")


if __name__ == "__main__":
    unittest.main()
