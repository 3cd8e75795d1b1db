#!/usr/bin/env python3
"""Holds the source against the plan of its rooms, the folders under src/.

- A room includes only its own headers and those of rooms on lower floors.
- Windows headers are included by *_win32.cpp and *_win32.h alone.
- No source file grows beyond MOST_LINES lines.
- "required-behaviour.md: KEY" in a comment names a line "- `KEY`: ..." of that document, and each line of it is named.

Prints each breach as "file:line: why" and ends with 1 when there is any.
"""

import pathlib
import re
import sys

FLOORS = [
    {"text"},
    {"model"},
    {"ui"},
    {"storage"},
    {"view"},
    {"session"},
    {"setup", "reasons", "entry", "results", "reports"},
    {"exchange"},
    {"output"},
    {"app"},
    {"cli"},
]
FLOOR_OF = {room: floor for floor, rooms in enumerate(FLOORS) for room in rooms}
MOST_LINES = 400
INCLUDE = re.compile(r'\s*#\s*include\s*(["<])([^">]+)[">]')
WINDOWS = {"windows.h", "windowsx.h", "winuser.h", "wingdi.h", "winspool.h", "winbase.h", "commctrl.h",
           "commdlg.h", "shellapi.h", "shlobj.h", "richedit.h"}


def breach_of_include(room, path, opening, header):
    """Why a file of `room` must not include `header`; nothing when it may."""
    if header.lower() in WINDOWS:
        return None if path.stem.endswith("_win32") else f"{header} belongs into a *_win32 file"
    if opening == "<":
        return None
    used = header.partition("/")[0]
    if "/" not in header or used not in FLOOR_OF:
        return f'"{header}" does not start with a room of src/'
    if used != room and FLOOR_OF[used] >= FLOOR_OF[room]:
        return f"{room} must not use {used}, which does not lie on a lower floor"
    return None


def breaches(source):
    for path in sorted(source.rglob("*")):
        if path.suffix not in {".cpp", ".h"}:
            continue
        room = path.relative_to(source).parts[0]
        if room not in FLOOR_OF:
            yield path, 1, f"{room} is no room: give it a floor in {pathlib.Path(__file__).name}"
            continue
        lines = path.read_text(encoding="latin-1").splitlines()
        if len(lines) > MOST_LINES:
            yield path, len(lines), f"{len(lines)} lines; at most {MOST_LINES}"
        for number, line in enumerate(lines, 1):
            include = INCLUDE.match(line)
            why = include and breach_of_include(room, path, *include.groups())
            if why:
                yield path, number, why


def breaches_of_required_behaviour(source, document):
    """Comments without their line in the document, and lines that no comment names."""
    listed = {}
    for number, line in enumerate(document.read_text(encoding="utf-8").splitlines(), 1):
        key = re.match(r"- `([a-z-]+)`: ", line)
        if key:
            listed[key.group(1)] = number
    named = set()
    for path in sorted(source.rglob("*")):
        if path.suffix not in {".cpp", ".h", ".rc"}:
            continue
        text = path.read_text(encoding="latin-1")
        for match in re.finditer(r"required-behaviour\.md:(?:\s|//)+([a-z-]+)", text):
            named.add(match.group(1))
            if match.group(1) not in listed:
                line = text.count("\n", 0, match.start()) + 1
                yield path, line, f"{document.name} has no line `{match.group(1)}`"
    for key, number in listed.items():
        if key not in named:
            yield document, number, f"no comment names `{key}`"


def main():
    root = pathlib.Path(__file__).resolve().parents[1]
    source = root / "src"
    found = list(breaches(source))
    found += breaches_of_required_behaviour(source, root / "docs" / "required-behaviour.md")
    for path, line, why in found:
        print(f"{path.relative_to(root)}:{line}: {why}")
    checked = sum(1 for path in source.rglob("*") if path.suffix in {".cpp", ".h"})
    if not checked:
        print(f"no source files under {source}")
    return 1 if found or not checked else 0


if __name__ == "__main__":
    sys.exit(main())
