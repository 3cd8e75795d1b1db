"""Measures every report or dialog of the worst contest files of 1 MB: seconds of the processor and megabytes.

Usage: worst_files.py PROGRAM, the path of scorvane-report, or of worst_dialog for the dialogs. Prints the worst of each.
"""

import os
import resource
import subprocess
import sys
import tempfile

SIZE = 1_000_000
TRAILER = ["0000-0000-0000-0000"] * 2


def contest(classes=(), contestants=(), teams=(), scores=(), **settings):
    """A contest file's bytes out of its lines."""
    values = {"contestName": "A", "divisionName": "B", "contestDate": "C", "startNum": 1, "numPerTeam": 4,
              "numToScore": 4, "reportPercent": 1, "numToReport": 100, "numGroups": 5, "totalNumPerTeam": 4,
              "numReasonsGroups": 1}
    values.update(settings)
    lines = [f"{key}:\t{value}" for key, value in values.items()] + ["categories:\tA"]
    for name, section in (("Classes", classes), ("Contestants", contestants), ("Teams", teams),
                          ("Scores", scores)):
        lines += [f"~~~~~{name}~~~~~", str(len(section)), *section]
    return "\r\n".join(lines + TRAILER + [""]).encode("latin-1")


CLASS = "\tYes\tYes\tA\t,,\t0"
SHORT_CLASS = "\tY\t\t,,"


def cards(contestants, classes):
    """One score line for each, as short as they can be."""
    return [f"{number}\t{k}" for number in contestants for k in range(classes)]


def people(count, group="0", position=None):
    return [f"{n}\tA\t{group}\t{n - 1 if position is None else position}" for n in range(1, count + 1)]


def worst():
    """Name and bytes of each file."""
    yield "many classes", contest(classes=[SHORT_CLASS] * (SIZE // 9))
    yield "many classes with everything", contest(classes=[CLASS] * (SIZE // 18))
    yield "classes and one contestant", contest([CLASS] * 32000, people(1), scores=cards([1], 32000))
    count = 240
    yield "a square", contest([CLASS] * count, people(count), scores=cards(range(1, count + 1), count))
    yield "a square of wide numbers", contest(
        [CLASS] * 140, people(140), scores=[f"{n}\t{k}\tA\t-2147483648\t-2147483648\t-2147483648"
                                           for n in range(1, 141) for k in range(140)])
    yield "many contestants", contest(contestants=people(SIZE // 18))
    yield "far numbers", contest(contestants=[f"{n * 20000}\tA" for n in range(1, 60000)], numGroups=1)
    yield "two far numbers", contest(contestants=["1\tA", "2147483647\tA"], startNum=-2147483648)
    yield "many groups", contest([CLASS] * 50, people(300), numGroups=191, scores=cards(range(1, 301), 50))
    yield "many reasons groups", contest([CLASS] * 200, people(300), numReasonsGroups=2147483647,
                                         scores=cards(range(1, 301), 200))
    places = [f"{n}\tA\t{n % 10000}\t{n // 10000}" for n in range(1, 20000)]
    yield "reasons places everywhere", contest([], places, [f"t{n}\t \t1\t2\t3\t4" for n in range(30000)],
                                               numReasonsGroups=10000)
    yield "reasons classes and groups", contest(
        [CLASS] * 3000, ["1\tA\t0\t0", "2\tA\t9999\t999"], [f"t{n}\t \t1\t2\t1\t2" for n in range(20000)],
        cards([1, 2], 3000), numReasonsGroups=10000)
    # Members on lines that are full, so that the rest of the slots may be missing.
    line = "\t".join(["1"] * 239)
    full = [f"{n:08}\tc\t{line}" for n in range(SIZE // 500)]
    yield "many slots", contest([CLASS], people(1), full, cards([1], 1), numPerTeam=1000, totalNumPerTeam=1000,
                                numToScore=1000)
    yield "many slots and classes", contest([CLASS] * 12000, people(1), full[:1000], cards([1], 12000),
                                            numPerTeam=239, totalNumPerTeam=239, numToScore=2)
    yield "many slots and some classes", contest([CLASS] * 300, people(1), full[:1900], cards([1], 300),
                                                 numPerTeam=239, totalNumPerTeam=239, numToScore=2)
    teams = [f"{n}\t\t1" for n in range(SIZE // 11)]
    yield "many slots of a long name", contest([CLASS], [f"1\t{'y' * 480}\t0\t0"], full[:1900], cards([1], 1),
                                               numPerTeam=239, totalNumPerTeam=239, numToScore=2)
    yield "many slots and columns", contest([CLASS] * 18, people(1), full[:1000], cards([1], 18), numPerTeam=239,
                                            totalNumPerTeam=239, numToScore=2)
    yield "a long category", contest([SHORT_CLASS] * 90000).replace(b"categories:\tA", b"categories:\t" + b"c" * 480)
    yield "many teams", contest([CLASS], people(1), teams, cards([1], 1), numPerTeam=1, totalNumPerTeam=1)
    yield "many teams and classes", contest([CLASS] * 10000, people(1), teams[:60000], cards([1], 10000),
                                            numPerTeam=1, totalNumPerTeam=1)
    yield "teams without slots", contest([CLASS], people(1), [f"{n}\t" for n in range(110000)], cards([1], 1),
                                         numPerTeam=1000000000, totalNumPerTeam=0)
    yield "long names", contest([("x" * 480) + "\tYes\tYes\tA\t1,1,1\t0"] * 900,
                                [f"{n}\t{'y' * 480}\t0\t{n}" for n in range(1, 10)],
                                scores=cards(range(1, 10), 900))


def report_ids(program):
    listed = subprocess.run([program, "--list"], capture_output=True, text=True, check=True).stdout
    return [line.split("\t") for line in listed.splitlines()]


OPTIONS = {"32800": [["--team", "--number", "100%", "--classes"], ["--number", "100%", "--classes"]],
           "32843": [["--class", "1"]], "32844": [["--class", "1"]], "32862": [["--round", "1"]]}


def measure(arguments):
    """Seconds of the processor, megabytes and the status."""
    pid = os.fork()
    if pid == 0:
        resource.setrlimit(resource.RLIMIT_AS, (8 << 30, 8 << 30))
        nowhere = os.open(os.devnull, os.O_WRONLY)
        os.dup2(nowhere, 1)
        os.dup2(nowhere, 2)
        os.execv(arguments[0], arguments)
    _, status, usage = os.wait4(pid, 0)
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, os.waitstatus_to_exitcode(status)


def runs_of_reports(program, path, content):
    """Caption and arguments of every report."""
    count = int(content.split(b"~~~~~Classes~~~~~\r\n")[1].split(b"\r\n")[0])
    for number, caption in report_ids(program):
        for options in OPTIONS.get(number, [[]]):
            if options[-1:] == ["--classes"]:
                options = options + [",".join(map(str, range(1, min(count, 50) + 1)))]
            yield caption, [program, path, number, *options]


def runs_of_dialogs(program, path, _):
    """Caption and arguments of every command."""
    listed = subprocess.run([program], capture_output=True, text=True, check=True).stdout
    for line in listed.splitlines():
        number, caption = line.split("\t")
        yield caption, [program, path, number]


def main():
    program = sys.argv[1]
    is_report = "report" in os.path.basename(program)
    runs = runs_of_reports if is_report else runs_of_dialogs
    slowest, largest, refused = {}, {}, []
    with tempfile.TemporaryDirectory() as folder:
        for name, content in worst():
            path = os.path.join(folder, "worst.scv")
            with open(path, "wb") as file:
                file.write(content)
            if len(content) > SIZE * 1.05:
                print(f"{name}: {len(content)} bytes")
            if is_report and measure([program, path, "32796"])[2] != 0:
                refused.append(name)
                continue
            for caption, arguments in runs(program, path, content):
                seconds, megabytes, status = measure(arguments)
                if not is_report and status == 3:  # it shows no dialog
                    continue
                slowest[caption] = max(slowest.get(caption, (0, "")), (seconds, name))
                largest[caption] = max(largest.get(caption, (0, "")), (megabytes, name))
    for name in refused:
        print(f"refused: {name}")
    for caption in sorted(slowest, key=lambda c: -slowest[c][0]):
        seconds, slow = slowest[caption]
        megabytes, large = largest[caption]
        print(f"| {caption} | {seconds:.2f} | {slow} | {megabytes:.0f} | {large} |")


if __name__ == "__main__":
    main()
