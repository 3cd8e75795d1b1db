"""Two real programs on one file: cards are typed into both at once, and one is killed now and then."""

import contextlib
import os
import random
import threading
import time
import unittest

from desktop_case import IDOK, IDYES, DesktopTest, contest_file, wait_for, windows_path
from desktop import DesktopError

PLACINGS, VERIFY_LETTERS = 32822, 32846
DONE, SCORE, CLASS, LETTER, LAST_NUMBER, LAST_LETTER, GROUP, NUMBER = 1003, 1004, 1016, 1027, 1031, 1032, 1053, 1054
LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWX"
TITLE = "Input Placings Scores By Group"
GROUPS = 4
CARDS = int(os.environ.get("SCORVANE_CARDS", "64"))


def contest(classes, teams):
    """A contest without cards, of teams of four."""
    return contest_file(["Fair", "Junior", "Today", 101, 4, 3, 0, 10, GROUPS, 4, 1, "none"],
                        [f"Class {k}|No|No|A|2,3,4|0" for k in range(classes)],
                        [f"{n}|Person {n}|-1|-1" for n in range(101, 101 + 4 * teams)],
                        [f"Team {t:03}| |" + "|".join(str(101 + 4 * t + i) for i in range(4)) for t in range(teams)])


class Typist(threading.Thread):
    """Types its groups of cards into a program of its own, which ends without warning now and then."""

    def __init__(self, test, path, groups, cards, seed):
        super().__init__()
        self.test, self.path, self.groups, self.random = test, path, groups, random.Random(seed)
        self.shown, self.kills, self.typed, self.boxes, self.fault = {}, 0, 0, [], None
        self.deaths = set(self.random.sample(range(1, cards), max(1, cards // 100)))
        self.app = test.start_program(path)

    def run(self):
        try:
            while self.groups:
                self.type_groups()
        except BaseException as fault:  # pylint: disable=broad-exception-caught
            self.fault = fault

    def box(self):
        return next((title for _, kind, title, enabled in self.app.windows() if kind == "#32770" and enabled
                     and title not in (TITLE, "Judging Contest")), None)

    def main(self):
        """The main window, once all that the program says is answered."""
        def answered():
            title = self.box()
            if title is not None:
                self.boxes.append(self.app.answer(IDYES if "bring them back" in self.app.message(title)[0] else IDOK,
                                                  title))
            return any(kind == "SCORVANE" and enabled and "fair.scv" in title
                       for _, kind, title, enabled in self.app.windows())
        wait_for(answered, "the main window")
        return self.app.main()

    def entry(self):
        """The dialog for placings; a box that comes just then takes the command away."""
        for _ in range(6):
            self.main().command(PLACINGS)
            with contextlib.suppress(DesktopError):
                return self.app.window(TITLE, deadline=10)
        raise DesktopError("no dialog for placings")

    def type_groups(self):
        dialog = self.entry()
        for _ in range(self.random.randrange(1, 4)):
            if not self.groups:
                break
            judged, group = self.groups[-1]
            dialog.choose(CLASS, judged)
            dialog.choose(GROUP, group)
            if self.box():
                self.app.answer(IDYES, "Information")
            if not self.type_cards(dialog, judged):
                return
            self.groups.pop()
        dialog.finish(DONE)
        self.main()

    def type_cards(self, dialog, judged):
        """Whether the group is done; not when the program was killed."""
        while number := dialog.text(NUMBER):
            letter = self.random.choice(LETTERS)
            dialog.set_text(LETTER, letter)
            dialog.command(SCORE)
            self.typed += 1
            if self.typed in self.deaths:
                time.sleep(self.random.uniform(0, 0.05))
                self.start_again()
                return False
            wait_for(lambda n=number, c=letter: (dialog.text(LAST_NUMBER), dialog.text(LAST_LETTER)) == (n, c), "the card")
            self.shown[number, judged] = letter
        return True

    def start_again(self):
        self.kills += 1
        self.app.tell("kill")
        self.app.close()
        self.app = self.test.start_program(self.path)
        self.main()

    def verified(self):
        """The report of all letters, after a last look at the file."""
        self.main().command(VERIFY_LETTERS)
        return self.app.report()


class TwoCopies(DesktopTest):
    def start_program(self, path):
        app = self.desktop.start(f'"{path}"')
        self.addCleanup(app.close)
        return app

    def type_into_both(self, paths):
        classes = max(2, CARDS // 160)
        teams = max(4, CARDS // classes // 4)
        file = self.folder / "fair.scv"
        file.write_bytes(contest(classes, teams))
        seed = int(os.environ.get("SCORVANE_SEED", random.randrange(1 << 30)))
        groups = [(k, g) for k in range(classes) for g in range(GROUPS)]
        random.Random(seed).shuffle(groups)
        typists = [Typist(self, path, groups[i::2], 4 * teams * classes // 2, seed + i) for i, path in enumerate(paths)]
        for typist in typists:
            typist.start()
        for typist in typists:
            typist.join()
        for typist in typists:
            if typist.fault:
                raise typist.fault
        reports = [typist.verified() for typist in typists]
        self.assertEqual(reports[0], reports[1], f"seed {seed}")
        records = {tuple(f[:2]): f[2] for f in (line.split("\t") for line in file.read_bytes().decode().split("\r\n"))
                   if len(f) == 6}
        lost = {card: (letter, records[card[0], str(card[1])]) for typist in typists
                for card, letter in typist.shown.items() if records[card[0], str(card[1])] != letter}
        self.assertEqual(lost, {}, f"seed {seed}")
        self.assertNotIn(" ", records.values())
        self.assertEqual([f.name for f in self.folder.iterdir() if f.name.startswith("fair")], ["fair.scv"])
        print(f"{sum(len(t.shown) for t in typists)} cards, {[t.kills for t in typists]} kills, "
              f"{[len(t.boxes) for t in typists]} boxes, seed {seed} ", end="")

    def test_every_card_of_both_is_in_the_file(self):
        self.type_into_both([windows_path(self.folder / "fair.scv")] * 2)

    def test_the_same_file_by_two_ways(self):
        drive = self.desktop.prefix / "dosdevices/y:"
        drive.unlink(missing_ok=True)
        drive.symlink_to(self.folder)
        self.addCleanup(drive.unlink, missing_ok=True)
        (self.folder / "link").symlink_to(self.folder)
        self.type_into_both(["Y:\\fair.scv", windows_path(self.folder / "link" / "fair.scv")])


if __name__ == "__main__":
    unittest.main()
