"""A program that saves as scorvane.exe does, and what it asks of the system while it saves."""

import os
import re
import shutil
import signal
import subprocess

# The calls that open, write, flush and move files.
SAVE_CALLS = ["openat", "read", "write", "fsync", "close", "rename", "fallocate", "ftruncate", "unlink", "chmod",
              "chown", "access", "newfstatat", "readlink"]


class Skipped(Exception):
    """The machine does not allow the fault."""


class Session:
    """A running contest_session."""

    def __init__(self, program, **options):
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, **options)

    def start(self, command, value=b""):
        value = value if isinstance(value, bytes) else os.fsencode(value)
        self.process.stdin.write(command.encode() + b" " + value + b"\n" if value else command.encode() + b"\n")
        self.process.stdin.flush()

    def answer(self):
        return self.process.stdout.readline().decode("latin-1").rstrip("\n")

    def __call__(self, command, value=b""):
        self.start(command, value)
        return self.answer()

    def close(self):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()


class Tracer:
    """strace on a session's calls that concern some paths; `specs` says which calls are to fail."""

    def __init__(self, session, paths, specs, log):
        if shutil.which("strace") is None:
            raise Skipped("strace is not installed")
        filters = [f"-P{path}" for path in paths]
        self.process = subprocess.Popen(["strace", "-y", "-o", log, "-p", str(session.process.pid), *filters,
                                         *(f"--inject={spec}" for spec in specs)], stderr=subprocess.PIPE)
        if b"attached" not in self.process.stderr.readline():
            self.close()
            raise Skipped("tracing a process is not allowed here")

    def close(self):
        self.process.send_signal(signal.SIGINT)
        self.process.wait()
        self.process.stderr.close()


def expect(holds, what):
    if not holds:
        raise AssertionError(what)


def unsafe_files(trace):
    """The files of a trace that may not hold what was written last, as a call to make sure of it failed."""
    written, unsafe = set(), set()
    for line in trace.splitlines():
        call, _, rest = line.partition("(")
        path = re.match(r"\d+<(.*?)>", rest)  # of the file that the call works on
        opened = re.search(r"O_WRONLY.* = \d+<(.*?)>$", rest)
        if opened:
            written.discard(opened[1])
            unsafe.discard(opened[1])
        elif path and call in ("write", "ftruncate", "fallocate"):
            written.add(path[1])
        if path and "INJECTED" in line:
            if call == "fsync" or call in ("write", "close") and path[1] in written:
                unsafe.add(path[1])
    return unsafe


def check_order(way, calls):
    """What must reach the medium before what, so that a power cut finds a whole file."""
    lines = [line for _, line in calls]

    def last(pattern):
        return max((i for i, line in enumerate(lines) if re.match(pattern, line)), default=-1)

    def first(pattern):
        return min((i for i, line in enumerate(lines) if re.match(pattern, line)), default=-1)

    steps = [last(r"write\(\d+<.*\.tmp>"), last(r"fsync\(\d+<.*\.tmp>")]
    if way == "beside":
        steps += [first(r"rename\("), last(r"fsync\(\d+<[^>]*(?<!\.tmp)>")]
    else:
        steps += [first(r"(write|ftruncate|fallocate)\(\d+<.*/contest\.scv>"),
                  last(r"(write|ftruncate|fallocate)\(\d+<.*/contest\.scv>"),
                  last(r"fsync\(\d+<.*/contest\.scv>"), first(r"unlink\(")]
    expect(-1 not in steps and steps == sorted(steps), f"{way}: calls out of order {steps}\n" + "\n".join(lines))
