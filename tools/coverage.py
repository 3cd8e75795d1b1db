#!/usr/bin/env python3
"""Says which lines of src/ the tests of the portable code reach.

usage: tools/coverage.py     builds and tests in build/coverage, prints every line that no test reached, and
                             a table of the rooms
"""

import collections
import pathlib
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD = ROOT / "build/coverage"
PROGRAMS = ["tests/unit_tests", "scorvane-report", "scorvane-contest", "contest_session"]
# What tests the source and not the program.
LEFT_OUT = "^(architecture|format|analysis.*|manual|samples.*)$"


def run(*command, **options):
    return subprocess.run([str(part) for part in command], check=True, cwd=ROOT, **options)


def measure():
    """How often each line was reached, by line number and file."""
    profiles = BUILD / "profiles"
    shutil.rmtree(profiles, ignore_errors=True)
    run("bash", "-c", "source tools/packages.sh; install_missing $TEST_PACKAGES; build coverage")
    # Counted in the file at once (%c), for programs that are killed or leave without cleaning up.
    run("env", f"LLVM_PROFILE_FILE={profiles}/%c%m.profraw", "ctest", "--test-dir", BUILD, "-E", LEFT_OUT,
        "--output-on-failure")
    run("llvm-profdata", "merge", "-sparse", profiles, "-o", BUILD / "all.profdata")
    others = [f"-object={BUILD / program}" for program in PROGRAMS[1:]]
    done = run("llvm-cov", "export", "-format=lcov", f"-instr-profile={BUILD}/all.profdata", BUILD / PROGRAMS[0],
               *others, stdout=subprocess.PIPE, text=True)
    counts = collections.defaultdict(dict)
    for line in done.stdout.splitlines():
        kind, _, value = line.partition(":")
        if kind == "SF":
            # A compiler's cache may have made the name relative to the build folder.
            file = (BUILD / value).resolve()
        elif kind == "DA" and file.is_relative_to(ROOT / "src"):
            number, count = map(int, value.split(",")[:2])
            counts[file][number] = counts[file].get(number, 0) + count
    return counts


def main():
    rooms = collections.defaultdict(lambda: [0, 0])
    for file, lines in sorted(measure().items()):
        text = file.read_text(encoding="utf-8").splitlines()
        room = rooms[file.parent.name]
        for number, count in sorted(lines.items()):
            room[count > 0] += 1
            if count == 0:
                print(f"{file.relative_to(ROOT)}:{number}: {text[number - 1].strip()}")
    rooms["all"] = [sum(column) for column in zip(*rooms.values())]
    for name, (missed, reached) in rooms.items():
        print(f"{name:10} {reached:5} of {reached + missed:5} lines {100 * reached / (reached + missed):6.1f} %")


main()
