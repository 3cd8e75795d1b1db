#!/usr/bin/env python3
"""Injects faults around saving and loading, and says what was seen.

usage: faults.py [--build FOLDER] [FAULT...]     all faults when none is named; --list names them

Each fault ends in a line "FAULT: what was seen", or in "FAULT: FAILED, ..." and exit status 1. Faults that
this machine does not allow are skipped with the reason; when all were, the exit status is 77.
"""

import contextlib
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_SAVED = "File Save Error: Your file did NOT save!"
PAGE = 4096
NOBODY = 65534


class Skipped(Exception):
    """The machine does not allow the fault."""


class Session:
    """A running contest_session."""

    def __init__(self, program, user=None):
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, user=user)

    def __call__(self, command, value=b""):
        value = value if isinstance(value, bytes) else os.fsencode(value)
        self.process.stdin.write(command.encode() + b" " + value + b"\n" if value else command.encode() + b"\n")
        self.process.stdin.flush()
        return self.process.stdout.readline().decode("latin-1").rstrip("\n")

    def close(self):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()


def expect(holds, what):
    if not holds:
        raise AssertionError(what)


class Faults:
    def __init__(self, build):
        self.build = build
        self.stack = contextlib.ExitStack()
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="scorvane-faults-"))
        self.folder.chmod(0o755)
        self.stack.callback(shutil.rmtree, self.folder, ignore_errors=True)

    def session(self, **options):
        # Where everybody may run it, also when the build folder is private.
        program = self.folder / "contest_session"
        if not program.exists():
            shutil.copy(self.build / "contest_session", program)
        session = Session(program, **options)
        self.stack.callback(session.close)
        return session

    def contest(self, path, size=40):
        """A contest file of so many contestants; gives its bytes."""
        subprocess.run([self.build / "make_contest", "--contestants", str(size), "--output", path], check=True)
        return path.read_bytes()

    def small_disk(self, size):
        """A file system of its own in memory."""
        place = self.folder / "disk"
        place.mkdir()
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "scorvane", place],
                                 stderr=subprocess.PIPE, check=False)
        if mounted.returncode != 0:
            raise Skipped("mounting a small disk is not allowed here")
        self.stack.callback(subprocess.run, ["umount", "-l", place], check=False, stderr=subprocess.DEVNULL)
        return place

    def disk_full(self):
        """The disk is full after each number of pages, from none free to room for all."""
        disk = self.small_disk(2 << 20)
        path, twin, ballast = disk / "contest.scv", disk / "twin.scv", disk / "ballast"
        seen = {False: [0, 0], True: [0, 0]}
        for linked in (False, True):
            old = self.contest(path, 40)
            if linked:
                twin.hardlink_to(path)
            # Enough for two copies of the new content, which the in-place way needs.
            new_size = len(self.contest(self.folder / "new.scv", 800))
            for free in range(2 * new_size // PAGE + 4):
                path.write_bytes(old)
                room = os.statvfs(disk)
                ballast.write_bytes(b"x" * max(0, (room.f_bavail - free) * PAGE))
                session = self.session()
                expect(session("open", path) == "ok", "opening")
                session("size", b"800")
                answer = session("save")
                content = path.read_bytes()
                saved = answer == "ok"
                expect(saved or answer == NOT_SAVED, f"unknown answer {answer!r}")
                expect((len(content) == new_size) == saved and (saved or content == old),
                       f"{free} pages free, answer {answer!r}: {len(content)} bytes in the file")
                expect(not list(disk.glob("*.tmp")), "a spare file was left")
                seen[linked][saved] += 1
                ballast.unlink()
                session.close()
            expect(all(seen[linked]), "the disk was never full, or always")
            path.unlink()
        (alone, alone_saved), (linked, linked_saved) = seen[False], seen[True]
        return (f"beside and in its place: {alone} saves refused with a message and the old file whole, {alone_saved} "
                f"saved; in place, as the file has two names: {linked} refused so, {linked_saved} saved")

    def protected_folder(self):
        """A folder and a medium that take no new file, and a file that is not to be written."""
        if os.geteuid() != 0:
            raise Skipped("only the superuser can act as somebody else")
        seen = []
        for what, mode in (("the file may be written", 0o666), ("the file may not be written either", 0o444)):
            place = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
            path = place / "contest.scv"
            old = self.contest(path)
            path.chmod(mode)
            place.chmod(0o555)
            session = self.session(user=NOBODY)
            expect(session("open", path) == "ok", "opening")
            session("name", b"Changed")
            answer = session("save")
            expect(answer == ("ok" if mode == 0o666 else NOT_SAVED), answer)
            expect((b"Changed" in path.read_bytes()) == (answer == "ok"), "message and file disagree")
            expect(answer == "ok" or path.read_bytes() == old, "the old file is damaged")
            expect(len(list(place.iterdir())) == 1, "something was left")
            seen.append(f"{what}: {'saved in place' if answer == 'ok' else 'message, old file whole'}")
        return "; ".join(seen)

    def read_only_medium(self):
        disk = self.small_disk(1 << 20)
        path = disk / "contest.scv"
        old = self.contest(path)
        session = self.session()
        expect(session("open", path) == "ok", "opening")
        subprocess.run(["mount", "-o", "remount,ro", disk], check=True)
        session("name", b"Changed")
        expect(session("save") == NOT_SAVED, "no message")
        expect(path.read_bytes() == old, "the old file is damaged")
        expect(session("save_as", self.folder / "elsewhere.scv") == "ok", "saving elsewhere")
        expect(b"Changed" in (self.folder / "elsewhere.scv").read_bytes(), "not saved elsewhere")
        return "message, old file whole, saved elsewhere by Save As"

    def kills(self, count=1000):
        """A process that saves without end is killed at random moments."""
        done = subprocess.run([self.build / "tests/killed_saves", str(count)], stdout=subprocess.PIPE, text=True,
                              check=False)
        expect(done.returncode == 0, done.stdout)
        return done.stdout.splitlines()[-1]

    def drive_gone(self):
        """The medium is pulled out between opening and saving."""
        disk = self.small_disk(1 << 20)
        path = disk / "contest.scv"
        self.contest(path)
        session = self.session()
        expect(session("open", path) == "ok", "opening")
        session("name", b"Changed")
        subprocess.run(["umount", "-l", disk], check=True)
        disk.rmdir()
        expect(session("save") == NOT_SAVED, "no message")
        expect(session("save_as", self.folder / "elsewhere.scv") == "ok", "saving elsewhere")
        expect(session("reread") == "ok", "the contest is not whole")
        return "message, contest whole in memory, saved elsewhere by Save As"

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
        expect(answer.startswith("Information: Invalid file name ("), answer)
        return "499 bytes: saved, saved again and opened; 500 bytes: message on opening"

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
        return ("in names all come back but TAB and CR, which end a name in the file (the dialogs turn them into "
                "blanks); in file names all work")

    def two_copies(self, rounds=300):
        """Two programs have one contest open and save it, one after the other and at once."""
        path = self.folder / "contest.scv"
        self.contest(path)
        one, two = self.session(), self.session()
        expect(one("open", path) == "ok" and two("open", path) == "ok", "opening")
        for session, name in ((one, b"First"), (two, b"Second")):
            session("name", name)
            expect(session("save") == "ok", "saving")
        expect(b"contestName:\tSecond\r\n" in path.read_bytes(), "the last to save wins")
        one("size", b"40")
        two("size", b"2000")
        for session, copy in ((one, "one.scv"), (two, "two.scv")):
            expect(session("save_as", self.folder / copy) == "ok", "saving")
            session("save_as", path)
        wholes = {(self.folder / copy).read_bytes(): copy for copy in ("one.scv", "two.scv")}
        seen = dict.fromkeys(wholes.values(), 0)
        for _ in range(rounds):
            pair = random.sample([one, two], 2)
            for session in pair:
                session.process.stdin.write(b"save\n")
                session.process.stdin.flush()
            for session in pair:
                expect(session.process.stdout.readline() == b"ok\n", "saving at once")
            expect(path.read_bytes() in wholes, "a file of two halves")
            seen[wholes[path.read_bytes()]] += 1
        expect(not list(self.folder.glob("*.tmp")), "a spare file was left")
        return (f"the last to save wins, without a word to the other; {rounds} times at once: always one of the two "
                f"whole ({seen['one.scv']} and {seen['two.scv']})")


FAULTS = ["disk_full", "protected_folder", "read_only_medium", "kills", "drive_gone", "longest_path", "every_byte",
          "two_copies"]


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
    for name in wanted:
        faults = Faults(build)
        with faults.stack:
            try:
                seen = getattr(faults, name)()
            except Skipped as reason:
                seen, skipped = f"skipped, {reason}", skipped + 1
            except AssertionError as fault:
                seen, failed = f"FAILED, {fault}", failed + 1
        print(f"{name}: {seen}", flush=True)
    return 1 if failed else 77 if skipped == len(wanted) else 0


if __name__ == "__main__":
    sys.exit(main())
