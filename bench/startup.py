#!/usr/bin/env python3
"""Compares how long scorvane.exe and Wine's own notepad take from their start to a painted window.

Each program is started as `wine PROGRAM` on a display of its own, where the Wine server and the desktop run
already, as they do on Windows. The clock starts before the process does. It stops at the first moment the
display shows all that the program goes on showing: frame, title, menu, scroll bars and what is painted inside,
which is an empty page for notepad and the start-up picture for scorvane.exe; with a contest the title must
name it. What a program goes on showing, a run off the clock tells beforehand, which also leaves a picture of it
(startup-*.png) in the build folder.

That moment means the same for both: the display's memory is read from outside, so that no program is asked
anything, and a window that is there but not painted, or painted but not yet brought to the display, does not
count. Lines of the display in which something blinks, as a caret does, are left out.

Rounds run the programs in turn, so that other work on the machine meets all of them; a ratio is that of the
two runs of one round.

usage: startup.py [ROUNDS]     (20 unless told; wants the windows preset's build)
"""

import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tools" / "desktop"))

from desktop import BUILD, Desktop, wait_for, windows_path  # noqa: E402
from screen import Screen  # noqa: E402

OTHER = "notepad"
PROGRAMS = {
    OTHER: [r"C:\windows\system32\notepad.exe"],
    "scorvane": [windows_path(BUILD / "scorvane.exe")],
    "scorvane state.scv": [windows_path(BUILD / "scorvane.exe"), windows_path(ROOT / "samples/state.scv")],
}
SETTLING = 3.0  # seconds after which a window surely shows all that it will
BLINKING = 1.5  # seconds, more than a caret takes to blink
DEADLINE = 30.0


class WholeScreen(Screen):
    def lines(self):
        return {number: self.line(number) for number in range(self.height)}

    def shows(self, lines):
        return all(self.line(number) == content for number, content in lines.items())


class Stopwatch:
    def __init__(self, desktop, screen):
        self.desktop = desktop
        self.screen = screen
        self.empty = screen.lines()

    def learn(self, name):
        """The lines of the display, by number, from which this program's painted window is known."""
        process = self._start(name)
        time.sleep(SETTLING)
        settled = self.screen.lines()
        self.desktop.screenshot(BUILD / f"startup-{name.replace(' ', '-')}.png")
        end = time.monotonic() + BLINKING
        while time.monotonic() < end:
            settled = {n: line for n, line in settled.items() if self.screen.line(n) == line}
        self._end(process)
        painted = {n: line for n, line in settled.items() if line != self.empty[n]}
        if len(painted) < 100:
            sys.exit(f"{name} shows no window that stands still")
        return painted

    def time(self, name, painted):
        """Milliseconds from the start to the painted window."""
        begin = time.perf_counter()
        process = self._start(name)
        while not self.screen.shows(painted):
            if time.perf_counter() - begin > DEADLINE:
                sys.exit(f"{name} does not show its window as before")
            time.sleep(0.0005)
        elapsed = time.perf_counter() - begin
        self._end(process)
        return 1000 * elapsed

    def _start(self, name):
        return subprocess.Popen(["wine", *PROGRAMS[name]], env=self.desktop.environment,
                                stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def _end(self, process):
        process.kill()
        process.wait()
        wait_for(lambda: self.screen.shows(self.empty), "the window to vanish")


def measure(rounds):
    """Milliseconds of every round, by program."""
    with tempfile.TemporaryDirectory(prefix="scorvane-startup-") as name:
        folder = pathlib.Path(name)
        desktop = Desktop(screen_folder=folder)
        # Wine's desktop lasts as long as a program uses it.
        keeper = desktop.start(program=BUILD / "desktop_driver.exe")
        try:
            keeper.windows()
            stopwatch = Stopwatch(desktop, WholeScreen(folder))
            painted = {name: stopwatch.learn(name) for name in PROGRAMS}
            times = {name: [] for name in PROGRAMS}
            for _ in range(rounds):
                for name in PROGRAMS:
                    times[name].append(stopwatch.time(name, painted[name]))
            return times
        finally:
            keeper.close()
            desktop.close()


def summary(values, digits):
    return " | ".join(f"{f(values):.{digits}f}" for f in (statistics.median, min, max))


def main():
    rounds = int(sys.argv[1]) if len(sys.argv) > 1 else 20
    times = measure(rounds)
    print("| program | median ms | min | max | median ratio | min | max |")
    print("| --- | ---: | ---: | ---: | ---: | ---: | ---: |")
    for name, values in times.items():
        ratios = [own / other for own, other in zip(values, times[OTHER])]
        print(f"| {name} | {summary(values, 0)} | {summary(ratios, 2)} |")


if __name__ == "__main__":
    main()
