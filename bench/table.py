#!/usr/bin/env python3
"""Everything that the README says of speed, measured in one run and printed as Markdown.

Contests have 12 classes. The rankings against other programs are CPU times, see compare/compare.py; the start,
see startup.py; a card in the real window, see typed_card.py; all else is the program's own code in a benchmark, with
how many times longer it takes than with a tenth of the contestants: 10 where cost grows in step.

usage: table.py [CONTESTANTS...]     (100 1000 10000 100000 unless told; wants the native and the windows build and an idle machine)
"""

import json
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE / "compare"), str(HERE.parent / "tools" / "desktop")]

import compare  # noqa: E402
import startup  # noqa: E402
import typed_card  # noqa: E402
from desktop import NATIVE  # noqa: E402

OPERATIONS = {"opening": "load", "saving": "save", "checking": "results/Contest Check", "comparing": "compare",
              "merging": "merge", "publishing": "publish/page", "exporting": "publish/workbook",
              "importing": "importSheet"}
OTHERS = {"wc -l": "`wc -l`", "mawk, one pass": "one `mawk` pass", "SQLite": "SQLite"}
OWN = "scorvane-report, both reports"


def row(*cells):
    print("| " + " | ".join(map(str, cells)) + " |", flush=True)


def short(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.2g}"


def rankings(sizes):
    row("Both overall rankings, contestants", "scorvane-report, CPU ms", *(f"{o}, times as long" for o in OTHERS.values()))
    row("---:", "---:", *("---:" for _ in OTHERS))
    for size in sizes:
        found = compare.compare(NATIVE, size, {OWN, *OTHERS})
        own = found[OWN][0]
        row(f"{size:,}", short(own), *(short(found[o][0] / own) if o in found else "not there" for o in OTHERS))


def operations(sizes):
    names = "|".join(OPERATIONS.values())
    done = subprocess.run([NATIVE / "bench" / "benchmarks", f"--benchmark_filter=^({names})/({'|'.join(map(str, sizes))})$",
                           "--benchmark_format=json"], check=True, stdout=subprocess.PIPE, text=True)
    cpu = {b["name"]: b["cpu_time"] / 1000 for b in json.loads(done.stdout)["benchmarks"] if b["run_type"] == "iteration"}
    row("CPU ms, contestants", *(f"{size:,}" for size in sizes), "growth at each step")
    row("---", *("---:" for _ in sizes), "---:")
    for name, benchmark in OPERATIONS.items():
        times = [cpu[f"{benchmark}/{size}"] for size in sizes]
        row(name, *map(short, times), ", ".join(f"{b / a:.1f}" for a, b in zip(times, times[1:])))


def main():
    sizes = [int(a) for a in sys.argv[1:]] or [100, 1_000, 10_000, 100_000]
    rankings(sizes)
    print()
    operations(sizes)
    print()
    times = startup.measure(20)
    row("From the start to the painted window", "median ms", "times as long as notepad")
    row("---", "---:", "---:")
    for name, values in times.items():
        ratios = sorted(own / other for own, other in zip(values, times[startup.OTHER]))
        row(name, f"{sorted(values)[len(values) // 2]:.0f}", f"{ratios[len(ratios) // 2]:.2f}")
    print()
    row("From Enter to the next contestant shown, contestants", "median ms", "worst ms")
    row("---:", "---:", "---:")
    for size, (_, median, worst) in typed_card.measure([200, 10_000]).items():
        row(f"{size:,}", f"{median:.1f}", f"{worst:.1f}")


if __name__ == "__main__":
    main()
