"""Kills the real program while cards are typed, and looks for them when it is started again."""

import os
import random
import time
import unittest

from desktop_case import IDNO, IDYES, NO_CARDS, DesktopTest, wait_for

PLACINGS, REASONS, QUESTIONS, LOOKUP, TEAMS = 32822, 32823, 32826, 32791, 32789
LAST_NUMBER, LAST_LETTER, LAST_REASONS, LAST_QUESTIONS = 1031, 1032, 1035, 1036
ENTRY = {PLACINGS: ("Input Placings Scores By Group", 1027, LAST_LETTER, "ABCDEFGHIJKLMNOPQRSTUVWX"),
         REASONS: ("Input Reasons Scores By Group", 1028, LAST_REASONS, range(1, 51)),
         QUESTIONS: ("Input Questions Scores By Group", 1056, LAST_QUESTIONS, range(1, 51))}


class Recovery(DesktopTest):
    def setUp(self):
        super().setUp()
        self.file = self.folder / "fair.scv"
        self.file.write_bytes(NO_CARDS)
        self.seed = int(os.environ.get("SCORVANE_SEED", random.randrange(1 << 30)))
        self.random = random.Random(self.seed)
        self.shown, self.teams, self.pending, self.cards = {}, set(), None, 0

    def copies(self, kind="Recovery"):
        return [file for folder in self.kept for file in folder.glob(f"{kind}/**/*.scv")]

    def start_again(self, app, answer=None):
        """Kills the program and starts it again; returns it, and what it asked."""
        app.tell("kill")
        app.close()
        app = self.start(self.file)
        wait_for(lambda: any(kind == "#32770" or "fair.scv" in title for _, kind, title, _ in app.windows()),
                 "the contest")
        asked = any(kind == "#32770" for _, kind, _, _ in app.windows())
        text = app.answer(answer, "Information") if asked else None
        wait_for(lambda: any("fair.scv" in title for _, _, title, _ in app.windows()), "the contest's title")
        return app, text

    def look_up_and_score(self, app):
        """Stores a reasons score of 33 for 105 in the second class; returns the dialog, which stays open."""
        dialog = app.open_dialog(LOOKUP, "Lookup/Edit Individual Scores")
        dialog.choose(1016, 1)
        dialog.set_text(1026, "105")
        dialog.set_text(1028, "33")
        dialog.command(1004)
        wait_for(lambda: dialog.text(LAST_NUMBER) == "105", "the score")
        return dialog

    def see(self, dialog, number, judged, field, typed, until):
        """Waits until the card is shown as the last one, or until the time is up, and then believes in it."""
        control = {"letter": LAST_LETTER, "reasons": LAST_REASONS, "questions": LAST_QUESTIONS}[field]
        while time.monotonic() < until:
            if (dialog.text(LAST_NUMBER), dialog.text(control)) == (number, typed):
                self.shown[number, judged, field] = typed
                self.pending = None
                self.cards += 1
                return

    def type_by_group(self, app, command, until):
        title, score, control, scores = ENTRY[command]
        judged = "1" if command == REASONS else "0"
        field = {PLACINGS: "letter", REASONS: "reasons", QUESTIONS: "questions"}[command]
        dialog = app.open_dialog(command, title)
        while time.monotonic() < until:
            if not dialog.text(1054):
                dialog.choose(1016, 0)
                dialog.choose(1053, self.random.randrange(1 if command == REASONS else 2))
                if any(caption == "Information" for _, _, caption, _ in app.settled_windows()):
                    app.answer(IDYES, "Information")
            number, typed = dialog.text(1054), str(self.random.choice(scores))
            self.pending = (number, judged, field, typed)
            dialog.set_text(score, typed)
            dialog.command(1004)
            self.see(dialog, number, judged, field, typed, until)

    def type_by_number(self, app, until):
        dialog = app.open_dialog(LOOKUP, "Lookup/Edit Individual Scores")
        dialog.choose(1016, 1)
        while time.monotonic() < until:
            number, typed = str(self.random.randrange(101, 106)), str(self.random.randrange(1, 51))
            self.pending = (number, "1", "reasons", typed)
            dialog.set_text(1026, number)
            dialog.set_text(1028, typed)
            dialog.command(1004)
            self.see(dialog, number, "1", "reasons", typed, until)

    def set_up_teams(self, app, until):
        dialog = app.open_dialog(TEAMS, "Setup Teams")
        while time.monotonic() < until:
            name = f"Team {self.random.randrange(1 << 30)}"
            before = len(dialog.lines(1019))
            dialog.set_text(1017, name)
            dialog.command(1059)
            while time.monotonic() < until:
                if len(dialog.lines(1019)) > before:
                    dialog.settle()
                    self.teams.add(name)
                    break

    def work_until_killed(self, app):
        seconds = self.random.choice((0.0, 0.2, 0.5, 1.0)) + self.random.uniform(0, 0.3)
        until = time.monotonic() + seconds
        command = self.random.choice((PLACINGS, REASONS, QUESTIONS, LOOKUP, TEAMS))
        if command == LOOKUP:
            self.type_by_number(app, until)
        elif command == TEAMS:
            self.set_up_teams(app, until)
        else:
            self.type_by_group(app, command, until)

    def expect_everything_shown(self):
        lines = self.file.read_bytes().decode("latin-1").split("\r\n")
        self.assertEqual(lines[-3:], ["0000-0000-0000-0000"] * 2 + [""])
        records = {tuple(f[:2]): dict(zip(("letter", "placing", "reasons", "questions"), f[2:]))
                   for f in (line.split("\t") for line in lines) if len(f) == 6 and f[0].isdigit()}
        for (number, judged, field), typed in self.shown.items():
            found = records[number, judged][field]
            if found != typed and self.pending == (number, judged, field, found):
                continue
            self.assertEqual(found, typed, f"{number} in class {judged}, seed {self.seed}")
        for number, judged, field, typed in [self.pending] if self.pending else []:
            if number and records[number, judged][field] == typed:
                self.shown[number, judged, field] = typed
        teams = {line.split("\t")[0] for line in lines}
        self.assertLessEqual(self.teams, teams, f"seed {self.seed}")

    def test_no_card_is_lost_when_the_program_is_killed(self):
        asked = 0
        app = self.start(self.file)
        for _ in range(int(os.environ.get("SCORVANE_KILLS", "8"))):
            self.work_until_killed(app)
            app, text = self.start_again(app, IDYES)
            if text:
                asked += 1
                self.assertRegex(text, r"^Scorvane was ended before its last work on this contest was saved\.\s+"
                                       r"\S.* until \d+:\d\d [AP]M (was|were) kept\.\s+"
                                       r"Would you like to bring them back\?$")
            self.expect_everything_shown()
            self.assertEqual(self.copies(), [])
        print(f"{asked} questions, {self.cards} cards, {len(self.teams)} teams, seed {self.seed} ", end="")
        self.assertGreater(asked, 0)

    def test_escape_leaves_the_file_alone_and_the_end_of_the_program_the_work(self):
        app = self.start(self.file)
        dialog = self.look_up_and_score(app)
        self.assertEqual(len(self.copies()), 1)
        dialog.finish(2)
        app.main().command(105)
        self.assertEqual(app.exit_code(), 0)
        self.assertEqual(self.copies(), [])
        self.assertEqual(len(self.copies("Earlier Saves")), 1)
        self.assertNotIn(b"105\t1\t \t0\t33\t0\r\n", self.file.read_bytes())

    def test_the_end_of_the_session_amid_a_dialog_is_no_orderly_end(self):
        app = self.start(self.file)
        main = app.main()
        dialog = self.look_up_and_score(app)
        main._tell("post", 0x0011, 0, 0)  # WM_QUERYENDSESSION
        main._tell("post", 0x0016, 1, 0)  # WM_ENDSESSION
        dialog.settle()
        app, text = self.start_again(app, IDNO)
        self.assertIn("1 score typed until ", text)
        self.assertNotIn(b"\t33\t", self.file.read_bytes())
        self.assertEqual((len(self.copies()), len(self.copies("Earlier Saves"))), (0, 1))


if __name__ == "__main__":
    unittest.main()
