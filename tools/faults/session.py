"""A program that saves as scorvane.exe does, and what it asks of the system while it saves."""

import os
import re
import shutil
import signal
import subprocess


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


def traced(session, paths, log):
    """The calls that a session's save makes on some paths, one a line."""
    if shutil.which("strace") is None:
        raise Skipped("strace is not installed")
    tracer = subprocess.Popen(["strace", "-y", "-o", log, "-p", str(session.process.pid), *(f"-P{p}" for p in paths)],
                              stderr=subprocess.PIPE)
    try:
        if b"attached" not in tracer.stderr.readline():
            raise Skipped("tracing a process is not allowed here")
        expect(session("save") == "ok", "saving")
    finally:
        tracer.send_signal(signal.SIGINT)
        tracer.wait()
        tracer.stderr.close()
    return log.read_text(encoding="latin-1").splitlines()


def expect(holds, what):
    if not holds:
        raise AssertionError(what)


def known_as(name):
    """What the copy of a save in place is called after: the hash of the file's name or whole path."""
    value = 0xCBF29CE484222325
    for byte in os.fsencode(name):
        value = ((value ^ byte) * 0x100000001B3) % (1 << 64)
    return f"{value:016x}"


def check_order(way, lines):
    """What must reach the medium before what, so that a power cut finds a whole file."""
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
