#!/usr/bin/env python3
"""Compares scorvane-report with other ways to the same standings, in one run on the same contests.

The task: open a contest of 12 classes and list High Individual Overall and High Team Overall, ties
broken. Its floor: counting the lines of the file, and one mawk pass that adds up the score columns of
every contestant. What SQLite and LibreOffice import is laid out for them beforehand, off the clock;
their standings and the reports must name the same winners with the same scores, place by place.

usage: compare.py [BUILD_FOLDER] [CONTESTANTS...]

CPU time is user and system time, which other work on the machine moves less than elapsed time. All are
medians; rounds interleave the programs. Peak memory below some 15 MiB is this script's own.
"""

import csv
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
REPORTS = ["32796", "32801"]
MAWK = 'NF == 6 { sum[$1] += $4 + $5 + $6 } END { for (n in sum) print n, sum[n] }'
SQLITE = ["sqlite3", ":memory:", f".read {HERE / 'standings.sql'}"]
SLOW = ["LibreOffice Calc"]  # a few rounds tell enough


def measured(command, folder):
    """CPU time and elapsed time in milliseconds, and peak memory in MiB."""
    start = time.perf_counter()
    with open(os.devnull, "w") as nowhere:
        process = subprocess.Popen(command, cwd=folder, stdout=nowhere, stderr=nowhere)
        _, status, usage = os.wait4(process.pid, 0)
    elapsed = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"failed: {' '.join(map(str, command))}")
    return 1000 * (usage.ru_utime + usage.ru_stime), 1000 * elapsed, usage.ru_maxrss / 1024


def output(command, folder):
    return subprocess.run(command, cwd=folder, check=True, capture_output=True).stdout.decode("latin-1")


def reported(text):
    """Names, as far as their column goes, and scores of both reports, from the best down."""
    individuals, teams = text.split("High Team Overall")
    return [[(line[7:37].rstrip(), int(line[71:].split()[0]))
             for line in individuals.splitlines() if line[:5].strip().isdigit()],
            [(line[7:28].rstrip(), int(line[62:].split()[0]))
             for line in teams.splitlines() if line[:5].strip().isdigit()]]


def require_same(reports, other, text):
    """Place by place another program's rows (name, score, further values) must say what the reports
    say. Who is equal in all values may be in another order; a row more than listed shows that."""
    rows = [(row[0], *map(int, row[1:4])) for row in csv.reader(text.splitlines())]
    lists = [rows[:len(rows) // 2], rows[len(rows) // 2:]]
    for ours, theirs in zip(reports, lists):
        if not 20 <= len(ours) < len(theirs):
            sys.exit(f"{other} lists {len(theirs)} places beside {len(ours)}")
        for place, (name, score) in enumerate(ours):
            their_name, *values = theirs[place]
            tied = any(list(row[1:]) == values for row in theirs[max(place - 1, 0):place + 2]
                       if row is not theirs[place])
            if score != values[0] or not (tied or their_name.startswith(name)):
                sys.exit(f"place {place + 1}: {name} with {score}, but by {other} {theirs[place]}")


def programs(build, contest, folder, wanted):
    report = build / "scorvane-report"
    calc = ["soffice", f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--headless",
            "--convert-to", "csv", "contest.fods"]
    found = {
        "scorvane-report, both reports": [[report, contest, *REPORTS]],
        "scorvane-report, one run each": [[report, contest, r] for r in REPORTS],
        "wc -l": [["wc", "-l", contest]],
        "mawk, one pass": [["mawk", "-F\t", MAWK, contest]],
        "SQLite": [SQLITE],
        "LibreOffice Calc": [calc],
    }
    if wanted:
        found = {name: commands for name, commands in found.items() if name in wanted}
    for name in list(found):
        program = found[name][0][0]
        if not shutil.which(program):
            print(f"{name} is skipped: {program} is not installed", file=sys.stderr)
            del found[name]
    reports = reported(output([report, contest, *REPORTS], folder))
    if "SQLite" in found:
        require_same(reports, "SQLite", output(SQLITE, folder))
    if "LibreOffice Calc" in found:
        output(calc, folder)  # the first run also makes the profile
        require_same(reports, "LibreOffice Calc", (folder / "contest.csv").read_text("utf-8"))
    return found


def compare(build, contestants, wanted=None):
    """Medians of the programs, or of those wanted: CPU and elapsed milliseconds, and MiB."""
    with tempfile.TemporaryDirectory(prefix="scorvane-compare-") as name:
        folder = pathlib.Path(name)
        contest = folder / "contest.scv"
        subprocess.run([build / "make_contest", "--contestants", str(contestants), "--output", contest],
                       check=True)
        # Elsewhere, as a program started from here counts this one's memory as its own at first.
        subprocess.run([sys.executable, "-B", HERE / "layout.py", contest, folder], check=True)
        candidates = programs(build, contest, folder, wanted)
        times = {name: [] for name in candidates}
        for turn in range(31 if contestants <= 10_000 else 7):
            for name, commands in candidates.items():
                if name in SLOW and turn >= 3:
                    continue
                runs = [measured(command, folder) for command in commands]
                times[name].append((sum(r[0] for r in runs), sum(r[1] for r in runs),
                                    max(r[2] for r in runs)))
        return {name: [statistics.median(column) for column in zip(*rows)]
                for name, rows in times.items()}


def main():
    arguments = sys.argv[1:]
    build = HERE.parent.parent / "build/native"
    if arguments and not arguments[0].isdigit():
        build = pathlib.Path(arguments.pop(0)).resolve()
    sizes = [int(a) for a in arguments] or [100, 1_000, 10_000, 100_000]
    print("| contestants | program | CPU ms | elapsed ms | times scorvane-report | MiB |")
    print("| ---: | --- | ---: | ---: | ---: | ---: |")
    for size in sizes:
        results = compare(build, size)
        own = next(iter(results.values()))[0]
        for name, (cpu, elapsed, memory) in results.items():
            print(f"| {size:,} | {name} | {cpu:.2f} | {elapsed:.2f} | {cpu / own:.2f} | {memory:.0f} |",
                  flush=True)


if __name__ == "__main__":
    main()
