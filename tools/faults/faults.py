#!/usr/bin/env python3
"""Injects faults around saving and loading, and says what was seen.

usage: faults.py [--build FOLDER] [FAULT[=COUNT]...]     all faults when none is named; --list names them

Each fault ends in a line "FAULT: what was seen", or in "FAULT: FAILED, ..." and exit status 1. Faults that
this machine does not allow are skipped with the reason; when all were, the exit status is 77.
"""

import collections
import contextlib
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time

from damaged import damaged_files
from session import Session, Skipped, check_order, expect, known_as, traced

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_SAVED = "File Save Error: Your file did NOT save!"
PAGE = 4096
NOBODY = 65534
# How a contest is saved: beside the old file and then in its place; in place where the file has a second
# name, with a spare copy beside it; in place where the folder takes no file, with a spare copy in the folder
# for temporary files.
WAYS = ["beside", "two names", "protected folder"]


class Faults:
    def __init__(self, build):
        self.build = build
        self.stack = contextlib.ExitStack()
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="scorvane-faults-"))
        self.folder.chmod(0o755)
        self.stack.callback(shutil.rmtree, self.folder, ignore_errors=True)
        self.spares = self.new_folder()
        self.spares.chmod(0o777)

    def new_folder(self):
        folder = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        folder.chmod(0o755)
        return folder

    def session(self, environment=(), **options):
        # Where everybody may run it, also when the build folder is private.
        program = self.folder / "contest_session"
        if not program.exists():
            shutil.copy(self.build / "contest_session", program)
        session = Session(program, env=dict(os.environ, TMPDIR=str(self.spares), **dict(environment)), **options)
        self.stack.callback(session.close)
        return session

    def contest(self, path, size=40):
        """A contest file of so many contestants; returns its bytes."""
        subprocess.run([self.build / "make_contest", "--contestants", str(size), "--output", path], check=True)
        return path.read_bytes()

    def opened(self, way, place):
        """A contest in a folder, open in a session that will save it in one of the WAYS; it is larger by now."""
        path = place / "contest.scv"
        self.contest(path)
        user = None
        if way == "two names":
            (place / "twin.scv").hardlink_to(path)
        elif way == "protected folder":
            if os.geteuid() != 0:
                raise Skipped("only the superuser can act as somebody else")
            path.chmod(0o666)
            place.chmod(0o555)
            user = NOBODY
        session = self.session(user=user)
        expect(session("open", path) == "ok", "opening")
        session("size", b"800")
        return session, path

    def spare_copies(self, place):
        return [*place.glob("*.tmp"), *self.spares.glob("*.tmp")]

    def small_disk(self, size):
        """A file system of its own in memory."""
        place = self.new_folder()
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size},mode=755", "scorvane", place],
                                 stderr=subprocess.PIPE, check=False)
        if mounted.returncode != 0:
            raise Skipped("mounting a small disk is not allowed here")
        self.stack.callback(subprocess.run, ["umount", "-l", place], check=False, stderr=subprocess.DEVNULL)
        return place

    def disk_full(self):
        """The disk is full after each number of pages, from none free to room for two copies and more."""
        new = self.contest(self.folder / "new.scv", 800)
        seen = []
        for way in [*WAYS, "a new file"]:
            disk = self.small_disk(2 << 20)
            session, path = self.opened(way, disk)
            old = path.read_bytes()
            ballast = disk / "ballast"
            count = {True: 0, False: 0}
            for free in range(2 * len(new) // PAGE + 4):
                if way == "a new file":
                    path.unlink(missing_ok=True)
                else:
                    path.write_bytes(old)
                ballast.write_bytes(b"x" * ((os.statvfs(disk).f_bavail - free) * PAGE))
                answer = session("save_as", path) if way == "a new file" else session("save_over")
                expect(answer in ("ok", NOT_SAVED), f"unknown answer {answer!r}")
                content = path.read_bytes() if path.exists() else None
                kept = None if way == "a new file" else old
                expect(content == (new if answer == "ok" else kept),
                       f"{way}, {free} pages free, answer {answer!r}: {len(content or b'')} bytes in the file")
                expect(not self.spare_copies(disk), "a spare copy was left")
                count[answer == "ok"] += 1
                ballast.unlink()
            expect(all(count.values()), "the disk was never full, or always")
            seen.append(f"{way}: {count[False]} saves refused, {count[True]} done")
        return "; ".join(seen)

    def call_order(self):
        """What a save asks of the system reaches the medium in the right order, in every way of saving."""
        for way in WAYS:
            folder = self.new_folder()
            session, path = self.opened(way, folder)
            copies = [folder / f"~scorvane-{session.process.pid}-1.tmp", folder / f"~scorvane-{known_as(path.name)}-1.tmp",
                      self.spares / f"~scorvane-{known_as(path)}-1.tmp"]
            calls = traced(session, [folder, path, *copies], self.folder / "trace")
            check_order(way, calls)
            session.close()
        return "the copy is flushed before it replaces the old file or that is overwritten, and the result after it"

    def protected_folder(self):
        """A folder that takes no new file."""
        session, path = self.opened("protected folder", self.new_folder())
        old = path.read_bytes()
        expect(session("save") == "ok" and path.read_bytes() != old, "in place")
        expect(len(list(path.parent.iterdir())) == 1 and not list(self.spares.iterdir()), "something was left")
        return "saved in place, nothing left"

    def read_only_file(self):
        """The folder would let the file be replaced, but the file is marked as not to be written."""
        session, path = self.opened("beside", self.new_folder())
        old = path.read_bytes()
        path.chmod(0o444)
        expect(session("save") == NOT_SAVED, "no message")
        expect(path.read_bytes() == old, "the old file is replaced")
        return self.saved_elsewhere(session)

    def read_only_medium(self):
        disk = self.small_disk(1 << 20)
        session, path = self.opened("beside", disk)
        old = path.read_bytes()
        subprocess.run(["mount", "-o", "remount,ro", disk], check=True)
        expect(session("save") == NOT_SAVED, "no message")
        expect(path.read_bytes() == old, "the old file is damaged")
        return self.saved_elsewhere(session)

    def drive_gone(self):
        """The medium is pulled out between opening and saving."""
        disk = self.small_disk(1 << 20)
        session, _ = self.opened("beside", disk)
        subprocess.run(["umount", "-l", disk], check=True)
        disk.rmdir()
        expect(session("save") == NOT_SAVED, "no message")
        return self.saved_elsewhere(session)

    def saved_elsewhere(self, session):
        path = self.folder / "elsewhere.scv"
        expect(session("save_as", path) == "ok", "saving elsewhere")
        expect(path.read_bytes() == self.contest(self.folder / "new.scv", 800), "not all saved elsewhere")
        return "message, contest whole in memory, saved elsewhere by Save As"

    def kills(self, count=300):
        """A process that saves without end is killed at random moments, in every way of saving."""
        seed = random.randrange(1 << 30)
        moments = random.Random(seed)
        names = [b"First", b"Second" * 50]
        seen = []
        for way in WAYS:
            session, path = self.opened(way, self.new_folder())
            session("size", b"20000")
            wholes = []
            for name in names:
                session("name", name)
                start = time.monotonic()
                expect(session("save_over") == "ok", f"{way}: saving")
                save_time = time.monotonic() - start
                wholes.append(path.read_bytes())
            met = restored = kill = 0
            left = collections.Counter()
            # Slow builds and busy machines are seldom within a save: more kills, until one was.
            while kill < count or (kill < 10 * count and not (met and len(left) == 2)):
                session = self.session(user=NOBODY if way == "protected folder" else None)
                expect(session("open", path) == "ok", f"{way}: opening after kill {kill} of seed {seed}")
                for name in 20 * names:
                    session.start("name", name)
                    session.start("save_over")
                for _ in range(1 + 2 * moments.randrange(4)):
                    session.answer()
                time.sleep(moments.uniform(0, save_time))
                session.process.kill()
                session.close()
                spares = self.spare_copies(path.parent)
                met += bool(spares)
                content = path.read_bytes()
                if content not in wholes and way != "beside":
                    restored += 1
                    # The copy of a save in place has a line more at its end.
                    content = next((w for s in spares for w in wholes if s.read_bytes().startswith(w)), b"")
                    path.write_bytes(content)
                expect(content in wholes, f"{way}: kill {kill + 1} of seed {seed} left no whole contest")
                left[wholes.index(content)] += 1
                for spare in spares:
                    spare.unlink()
                kill += 1
            expect(met and len(left) == 2, f"{way}: {met} kills met a save, {dict(left)} contests were left")
            seen.append(f"{way}: {kill} kills, {met} within a save, {restored} times the copy was the whole one")
        return "; ".join(seen)

    def longest_path(self):
        """Paths of 499 bytes work; one of 500 is refused."""
        place = self.folder
        while len(str(place)) < 400:
            place = place / ("d" * 40)
        place.mkdir(parents=True)
        path = place / ("n" * (499 - len(str(place)) - 1 - 4) + ".scv")
        expect(len(str(path)) == 499, "the path's length")
        session = self.session()
        session("size", b"40")
        expect(session("save_as", path) == "ok" and session("save") == "ok", "saving")
        expect(session("reread") == "ok" and session("open", path) == "ok", "opening")
        answer = session("open", str(path) + "x")
        expect(answer == f"Information: Invalid file name ({path}x) , or file does not exist.", answer)
        return "499 bytes: saved, saved again and opened; 500 bytes: message on opening"

    def reports(self):
        """A disk too full for the reports of scorvane-report."""
        disk = self.small_disk(16 << 10)
        contest = self.folder / "contest.scv"
        self.contest(contest)
        program = self.build / "scorvane-report"
        with open("/dev/full", "wb") as full:
            done = subprocess.run([program, contest, "Classes Report"], stdout=full, stderr=subprocess.PIPE, check=False)
        expect(done.returncode == 1 and b"cannot be written" in done.stderr, done)
        whole = self.new_folder() / "reports"
        subprocess.run([program, contest, "--all", whole], check=True)
        done = subprocess.run([program, contest, "--all", disk / "reports"], stderr=subprocess.PIPE, check=False)
        expect(done.returncode == 1 and b"cannot write '" in done.stderr, done)
        written = list((disk / "reports").iterdir())
        expect(written, "no report had room")
        for report in written:
            expect(report.read_bytes() == (whole / report.name).read_bytes(), f"half of {report.name}")
        return f"message and exit status 1 each time; of all reports the first {len(written)} whole, none by half"

    def every_byte(self):
        """Names of contestants, teams, coaches and classes, and file names, with each byte from 1 to 255."""
        session = self.session()
        session("bytes")
        path = self.folder / "contest.scv"
        expect(session("save_as", path) == "ok", "saving")
        ended = session("reread")
        expect(ended == "names end at bytes 9 13", ended)
        expect(session("open", path) == "ok", "opening")
        first = path.read_bytes()
        expect(session("save") == "ok" and path.read_bytes() == first, "saving again changes bytes")
        for byte in range(1, 256):
            if byte in (0x0A, 0x2F):  # would end the session's command, or the folder's name
                continue
            name = os.fsencode(self.folder) + b"/<" + bytes([byte]) + b">.scv"
            expect(session("save_as", name) == "ok", f"a file name with byte {byte}")
            expect(session("open", name) == "ok", f"a file name with byte {byte}")
            expect(pathlib.Path(os.fsdecode(name)).read_bytes() == first, f"a file name with byte {byte}")
        return ("in names all come back but TAB and CR, which end a name in the file (the dialogs turn them into "
                "blanks); in file names all work")

    def two_copies(self, rounds=300):
        """Two programs have one contest open, type each card once and save, one after the other and at once; now
        and then one is killed meanwhile, and its card typed again."""
        path = self.new_folder() / "contest.scv"
        size = max(40, rounds // 5)
        self.contest(path, size)
        deals = [[(str(number), str(k)) for number in range(101 + own, 101 + size, 2) for k in range(12)]
                 for own in range(2)]
        for deal in deals:
            random.shuffle(deal)
        cards, kills = {}, 0
        pair = [self.session(), self.session()]
        for session in pair:
            expect(session("open", path) == "ok", "opening")

        def letters():
            fields = (line.split("\t") for line in path.read_bytes().decode("latin-1").split("\r\n"))
            return {tuple(f[:2]): f[2] for f in fields if len(f) == 6 and f[0].isdigit()}

        def type_card(session, card):
            expect(session("type", f"{card[0]} {card[1]} {cards[card]}".encode()) == "ok", "typing")

        before = letters()
        for turn in range(rounds):
            typed = [deal.pop() for deal in deals]
            for card, session in zip(typed, pair):
                cards[card] = random.choice([letter for letter in "ABCDEFGHIJKLMNOPQRSTUVWX" if letter != before[card]])
                type_card(session, card)
                if turn % 3 == 0:
                    expect(session("save") == "ok", "saving one after the other")
            for session in random.sample(pair, 2):
                session.start("save")
            if turn % 25 == 24:
                own, kills = random.randrange(2), kills + 1
                time.sleep(random.uniform(0, 0.1))
                pair[own].process.kill()
                expect(pair[1 - own].answer() == "ok", "saving while the other one is killed")
                pair[own] = self.session()
                expect(pair[own]("open", path) == "ok", "opening again")
                type_card(pair[own], typed[own])
                expect(pair[own]("save") == "ok", "saving again")
            else:
                expect([session.answer() for session in pair] == ["ok", "ok"], "saving at once")
            if turn % 10 == 9 or turn + 1 == rounds:
                found = letters()
                lost = [card for card, letter in cards.items() if found[card] != letter]
                expect(not lost, f"lost by round {turn + 1}: {lost}")
        for session in pair:
            expect(session("look") == "ok" and session("reread") == "ok", "both have the same contest")
        left = [file.name for file in path.parent.iterdir() if file != path]
        expect(len(left) <= kills and all(name.endswith(".tmp") for name in left), f"left beside it: {left}")
        return (f"saved one after the other and {rounds} times at once, {kills} times with one killed: "
                f"{len(cards)} cards, none lost, and both have the same contest")


    def damaged_files(self, count=5000):
        """Damaged contests, sheets, recovery copies and earlier saves, so many of each."""
        seed = random.randrange(1 << 30)
        try:
            return damaged_files(self, count, random.Random(seed))
        except AssertionError as fault:
            raise AssertionError(f"seed {seed}, {fault}") from fault


FAULTS = ["disk_full", "call_order", "protected_folder", "read_only_file", "read_only_medium", "kills", "drive_gone",
          "longest_path", "every_byte", "two_copies", "reports", "damaged_files"]


def main():
    arguments = sys.argv[1:]
    build = ROOT / "build/native"
    if arguments[:1] == ["--build"]:
        build = pathlib.Path(arguments[1]).resolve()
        arguments = arguments[2:]
    if arguments == ["--list"]:
        print("\n".join(FAULTS))
        return 0
    failed = skipped = 0
    wanted = arguments or FAULTS
    for word in wanted:
        name, _, count = word.partition("=")
        faults = Faults(build)
        with faults.stack:
            try:
                seen = getattr(faults, name)(*map(int, filter(None, [count])))
            except Skipped as reason:
                seen, skipped = f"skipped, {reason}", skipped + 1
            except AssertionError as fault:
                seen, failed = f"FAILED, {fault}", failed + 1
        print(f"{name}: {seen}", flush=True)
    return 1 if failed else 77 if skipped == len(wanted) else 0


if __name__ == "__main__":
    sys.exit(main())
