"""Damaged files of each kind that the program reads. Whatever the damage: an answer within two seconds, the file
as it was unless it is the one to be written, and whatever is written can be read."""

import os
import pathlib
import shutil
import subprocess

from session import expect

ROOT = pathlib.Path(__file__).resolve().parents[2]
KINDS = ["contest", "merged", "sheet", "recovery copy", "earlier save"]
RANKING = "High Individual Overall"


def damaged(content, dice):
    """One to three of: the end cut off, bytes changed, a stretch zeroed, moved or repeated, a line lost, doubled,
    exchanged or without its end."""
    content = bytearray(content)
    for _ in range(dice.randint(1, 3)):
        start = dice.randrange(len(content) or 1)
        stretch = slice(start, start + dice.choice([1, 8, 60, 512]))
        lines = content.split(b"\n")
        line = dice.randrange(len(lines))
        match dice.randrange(9):
            case 0: del content[start:]
            case 1: content[start:start + 1] = dice.randbytes(1)
            case 2: content[stretch] = bytes(len(content[stretch]))
            case 3: content[stretch] = dice.randbytes(len(content[stretch]))
            case 4: content[dice.randrange(len(content) or 1):0] = content[stretch]
            case 5: content[stretch] = content[stretch] * dice.choice([2, 500])
            case 6: content = bytearray(b"\n".join(lines[:line] + lines[line + 1:]))
            case 7: content = bytearray(b"\n".join(lines[:line] + lines[line:line + 1] * 2 + lines[line + 1:]))
            case 8: content = bytearray(b"\n".join(lines[:line]) + b"\n".join(lines[line:]))
    return bytes(content)


class Damage:
    def __init__(self, faults):
        self.faults = faults
        self.folder = faults.new_folder()
        self.sound, self.path = self.folder / "sound.scv", self.folder / "contest.scv"
        self.whole = faults.contest(self.sound)
        self.data = self.folder / "data"
        self.makers = {"contest": self.try_contest, "merged": self.try_merged, "sheet": self.try_sheet,
                       "recovery copy": lambda content: self.try_kept(content)[0],
                       "earlier save": lambda content: self.try_kept(content)[1]}

    def answer(self, *words):
        """The status of a console program, which answers in words when it fails."""
        program, *rest = words
        done = subprocess.run([self.faults.build / program, *rest], stdin=subprocess.DEVNULL, capture_output=True, timeout=2)
        expect(done.returncode in (0, 1, 3), f"{program} ended with {done.returncode}")
        expect(done.returncode != 1 or done.stderr or done.stdout, f"{program} failed without a word")
        return done.returncode

    def try_contest(self, content):
        self.path.write_bytes(content)
        status = self.answer("scorvane-report", self.path, RANKING)
        expect(self.path.read_bytes() == content, "a file that was only read is another one")
        return status == 0

    def try_merged(self, content):
        self.path.write_bytes(content)
        out = self.folder / "out.scv"
        status = self.answer("scorvane-contest", "merge", self.sound, self.path, "--into", out)
        expect(out.exists() == (status != 1), "a merge that failed wrote, or one that was done did not")
        if status != 1:
            expect(self.answer("scorvane-report", out, RANKING) == 0, "what was merged cannot be read")
            out.unlink()
        return status != 1

    def try_sheet(self, content):
        sheet = self.folder / "sheet.csv"
        sheet.write_bytes(content)
        self.path.write_bytes(self.whole)
        status = self.answer("scorvane-contest", "import", sheet, self.path, "--skip-problems")
        expect(status != 1 or self.path.read_bytes() == self.whole, "an import that failed wrote")
        expect(self.answer("scorvane-report", self.path, RANKING) == 0, "what was imported cannot be read")
        return status != 1

    def session(self):
        return self.faults.session(environment={"XDG_DATA_HOME": str(self.data)})

    def keep(self):
        """A day's data: a contest saved now and then, and a recovery copy of what was typed since."""
        self.path.write_bytes(self.whole)
        session = self.session()
        expect(session("keep") == "ok" and session("open", self.path) == "ok", "opening")
        for card in range(24):
            expect(session("type", f"{101 + card} {card % 12} {'ABCDEFGH'[card % 8]}") == "ok", "typing")
            if card in (4, 8):
                expect(session("save") == "ok", "saving")
        session.process.kill()
        session.close()
        self.saved, self.time = self.path.read_bytes(), self.path.stat().st_mtime_ns
        self.kept = {file: file.read_bytes() for file in self.data.rglob("*") if file.is_file()}

    def original(self, kind):
        if kind == "sheet":
            return (ROOT / "samples/roster.csv").read_bytes()
        if kind in ("contest", "merged"):
            return self.whole
        if not self.data.exists():
            self.keep()
        # The largest, which is no note.
        isCopy = kind == "recovery copy"
        found = [file for file in self.kept if ("earlier" in str(file).lower()) != isCopy]
        self.victim = max(found, key=lambda file: len(self.kept[file]))
        return self.kept[self.victim]

    def try_kept(self, content):
        """The program starts, finds its data damaged, and opens the contest: whether work is offered, and whether all
        earlier saves can be read."""
        shutil.rmtree(self.data)
        for file, whole in self.kept.items():
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_bytes(content if file == self.victim else whole)
        self.path.write_bytes(self.saved)
        os.utime(self.path, ns=(self.time, self.time))  # a copy knows its file by its time, too
        session = self.session()
        expect(session("keep") == "ok", "starting")
        said = session("open", self.path)
        expect(said, "opening ended the program")
        expect(session("reread") == "ok", "the file is another one than the program holds")
        read, all_ = session("earlier").split(" of ")
        session.close()
        expect(self.answer("scorvane-report", self.path, RANKING) == 0, "the contest cannot be read")
        return said != "ok", read == all_


def damaged_files(faults, count, dice):
    damage = Damage(faults)
    seen = []
    for kind in KINDS:
        original = damage.original(kind)
        used = 0
        for i in range(count):
            content = damaged(original, dice)
            try:
                used += damage.makers[kind](content)
            except (AssertionError, subprocess.TimeoutExpired) as fault:
                raise AssertionError(f"{kind} {i + 1}: {fault}") from fault
        seen.append(f"{kind} {used}")
    return f"of {count} of each kind were used: {', '.join(seen)}; the others were refused with a message"
