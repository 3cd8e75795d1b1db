#!/usr/bin/env python3
"""Static analysis of one room of src/: all its files as one, so that the headers of the libraries are read
and looked through once a room and not once a file. What Windows alone has is left out.

usage: analyse.py ROOM"""

import bisect
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[1]
FLAGS = ["-std=c++20", f"-I{ROOT / 'src'}", '-DSCORVANE_VERSION="0"', '-DSCORVANE_FOOTER_ADDRESS=""']


def main():
    sources = sorted(f for f in (ROOT / "src" / sys.argv[1]).glob("*.cpp")
                     if not re.search(r"_win32|(^|_)main\.cpp$", f.name))
    if not sources:
        sys.exit(f"{sys.argv[1]} is no room with sources")
    with tempfile.TemporaryDirectory(prefix="scorvane-analysis-") as folder:
        whole = pathlib.Path(folder) / "room.cpp"
        starts, text = [], ""
        for source in sources:
            starts.append(text.count("\n"))
            text += source.read_text(encoding="utf-8")
        whole.write_text(text, encoding="utf-8")

        def origin(match):
            line = int(match[1]) - 1
            which = bisect.bisect_right(starts, line) - 1
            return f"{sources[which]}:{line - starts[which] + 1}:"

        done = subprocess.run(["clang-tidy", "-quiet", f"--config-file={ROOT / '.clang-tidy'}", whole, "--", *FLAGS],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
        print(re.sub(rf"{re.escape(str(whole))}:(\d+):", origin, done.stdout), end="")
        return done.returncode


if __name__ == "__main__":
    sys.exit(main())
