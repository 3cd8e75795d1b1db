#!/usr/bin/env python3
"""Compares scorvane-report with other ways to the same standings, in one run on the same contests.

The task: open a contest of 12 classes and list High Individual Overall and High Team Overall, ties
broken. Its floor: counting the lines of the file, and one mawk pass that adds up the score columns of
every contestant. What SQLite and LibreOffice import is laid out for them beforehand, off the clock;
SQLite's scores are checked against the reports.

usage: compare.py [BUILD_FOLDER] [CONTESTANTS...]

CPU time is user and system time, which other work on the machine moves less than elapsed time. All are
medians; rounds interleave the programs. Peak memory below some 15 MiB is this script's own.
"""

import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
REPORTS = ["32796", "32801"]
SHEET = "contest.fods"
MAWK = 'NF == 6 { sum[$1] += $4 + $5 + $6 } END { for (n in sum) print n, sum[n] }'


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


def require_same_scores(program, contest, folder):
    """Place by place SQLite and the reports must name the same scores."""
    text = subprocess.run([program, contest, *REPORTS], check=True, capture_output=True).stdout
    rows = re.findall(rb"^ +\d+  .{30}  .{30} +(-?\d+)|^ +\d+ {3,4}\S.*\( *-?\d+\) +(-?\d+)", text, re.M)
    ours = [int(a or b) for a, b in rows]
    lists = subprocess.run(["sqlite3", ":memory:", f".read {HERE / 'standings.sql'}"], cwd=folder,
                           check=True, capture_output=True).stdout.decode("latin-1").splitlines()
    theirs = [int(fields[-3]) for fields in (line.split("\t") for line in lists)]
    if ours != theirs or len(ours) < 20:
        sys.exit(f"the standings differ:\n{ours}\n{theirs}")


def programs(build, contest, folder):
    report = build / "scorvane-report"
    found = {
        "scorvane-report, both reports": [[report, contest, *REPORTS]],
        "scorvane-report, one run each": [[report, contest, r] for r in REPORTS],
        "wc -l": [["wc", "-l", contest]],
    }
    if shutil.which("mawk"):
        found["mawk, one pass"] = [["mawk", "-F\t", MAWK, contest]]
    if shutil.which("sqlite3"):
        require_same_scores(report, contest, folder)
        found["SQLite"] = [["sqlite3", ":memory:", f".read {HERE / 'standings.sql'}"]]
    if shutil.which("soffice"):
        found["LibreOffice Calc"] = [["soffice", "--headless", "--convert-to", "csv", SHEET]]
    return found


def compare(build, contestants):
    with tempfile.TemporaryDirectory(prefix="scorvane-compare-") as name:
        folder = pathlib.Path(name)
        contest = folder / "contest.scv"
        subprocess.run([build / "make_contest", "--contestants", str(contestants), "--output", contest],
                       check=True)
        # Elsewhere, as a program started from here counts this one's memory as its own at first.
        subprocess.run([sys.executable, "-B", HERE / "layout.py", contest, folder], check=True)
        candidates = programs(build, contest, folder)
        times = {name: [] for name in candidates}
        for _ in range(31 if contestants <= 10_000 else 7):
            for name, commands in candidates.items():
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
