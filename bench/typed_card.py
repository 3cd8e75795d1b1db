#!/usr/bin/env python3
"""How long a card takes in the real window: from Enter to the next contestant shown, recovery copy included.

usage: typed_card.py [CONTESTANTS...]     (200 and 10,000 unless told; wants the native and the windows build)
"""

import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tools" / "desktop"))

from desktop import DEADLINE, IDYES, NATIVE, Desktop, DesktopError, wait_for, windows_path  # noqa: E402

PLACINGS = 32822
CLASSES, GROUPS, NUMBER, LETTER, SCORE, CANCEL = 1016, 1053, 1054, 1027, 1004, 2
CARDS = 40


def type_cards(dialog, answer_again):
    """Milliseconds of each card; what it takes to ask for the number once is in them."""
    times, group = [], 0
    while len(times) < CARDS:
        # Behind a group's last card neither class nor group is chosen.
        dialog.choose(CLASSES, 0)
        dialog.choose(GROUPS, group)
        answer_again()
        number = wait_for(lambda: dialog.text(NUMBER), f"somebody in group {group}")
        while number and len(times) < CARDS:
            dialog.set_text(LETTER, "ABCDEFGH"[len(times) % 8])
            before, start = number, time.perf_counter()
            dialog.command(SCORE)
            while (number := dialog.text(NUMBER)) == before:
                if time.perf_counter() - start > DEADLINE:
                    raise DesktopError(f"{number} is still shown after the card")
            times.append(1000 * (time.perf_counter() - start))
        group += 1
    return times


def measure(sizes):
    """By number of contestants: milliseconds of the first card, and of the others the median and the worst."""
    found = {}
    with tempfile.TemporaryDirectory(prefix="scorvane-card-") as name:
        folder = pathlib.Path(name)
        desktop = Desktop(prefix=folder / "prefix")
        try:
            for size in sizes:
                contest = folder / f"{size}.scv"
                subprocess.run([NATIVE / "make_contest", "--contestants", str(size), "--output", contest], check=True)
                app = desktop.start(f'"{windows_path(contest)}"')
                wait_for(lambda: contest.name in app.main().title(), "the contest")  # noqa: B023
                app.main().command(PLACINGS)
                dialog = app.window("Input Placings Scores By Group")

                def answer_again():
                    if any(caption == "Information" for _, _, caption, _ in app.settled_windows()):  # noqa: B023
                        app.answer(IDYES, "Information")  # noqa: B023

                first, *others = type_cards(dialog, answer_again)
                found[size] = (first, statistics.median(others), max(others))
                dialog.command(CANCEL)
                app.close()
        finally:
            desktop.close()
            shutil.rmtree(folder / "prefix", ignore_errors=True)
    return found


def main():
    print("| contestants | first card ms | median ms | worst ms |\n| ---: | ---: | ---: | ---: |")
    for size, values in measure([int(a) for a in sys.argv[1:]] or [200, 10_000]).items():
        print(f"| {size:,} | " + " | ".join(f"{value:.1f}" for value in values) + " |")


if __name__ == "__main__":
    main()
