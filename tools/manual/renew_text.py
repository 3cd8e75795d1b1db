#!/usr/bin/env python3
"""Renews what the user's manual takes from elsewhere: renew_text.py SCORVANE-REPORT [--check]

After each comment <!--report "CAPTION" LINES OPTIONS--> stand the first lines of that report of the
county sample, after <!--file LINES--> the first lines of its file, and every picture has the size
it is shown at. With --check nothing is written; the exit status says whether all is as it should be.
"""

import html
import pathlib
import re
import shlex
import struct
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
MANUAL = ROOT / "docs" / "manual" / "ScorvaneUsersManual.htm"
SAMPLE = ROOT / "samples" / "county.scv"
# Dots of a picture for one that is shown: pictures are taken at 144 dots an inch, pages shown at 96.
DENSITY = 1.5

EXAMPLE = re.compile(r"<!--(report|file) (.*?)-->\n(?:<pre[^>]*>.*?</pre>\n)?", re.S)
PICTURE = re.compile(r'<img src="([^"]+)"(?: width="\d+" height="\d+")?')


def first_lines(text, count):
    lines = [line.rstrip() for line in text.split("\n")]
    while lines and not lines[-1]:
        lines.pop()
    if len(lines) > count:
        lines = lines[:count] + ["..."]
    return "\n".join(lines)


def example(kind, order, reporter):
    words = shlex.split(order)
    if kind == "file":
        label, count = "Example: the contest file", int(words[0])
        text = SAMPLE.read_text(encoding="latin-1")
    else:
        label, count = f"Example: {words[0]}", int(words[1])
        done = subprocess.run([reporter, SAMPLE, words[0], *words[2:]], check=True, stdout=subprocess.PIPE)
        text = done.stdout.decode("latin-1")
    # A browser drops the first line end of a <pre>.
    return (f'<!--{kind} {order}-->\n<pre tabindex="0" role="region" aria-label="{html.escape(label)}">\n'
            f"{html.escape(first_lines(text, count), quote=False)}</pre>\n")


def shown_size(picture):
    width, height = struct.unpack(">II", picture.read_bytes()[16:24])
    return round(width / DENSITY), round(height / DENSITY)


def sized(match):
    picture = MANUAL.parent / match[1]
    if not picture.exists():
        return match[0]
    width, height = shown_size(picture)
    return f'<img src="{match[1]}" width="{width}" height="{height}"'


def renewed(page, reporter):
    page = EXAMPLE.sub(lambda match: example(match[1], match[2], reporter), page)
    return PICTURE.sub(sized, page)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    page = MANUAL.read_text(encoding="utf-8")
    new = renewed(page, sys.argv[1])
    if "--check" not in sys.argv:
        MANUAL.write_text(new, encoding="utf-8", newline="\n")
    elif new != page:
        sys.exit("The examples or picture sizes of the manual are old: run tools/manual/renew_text.py")


main()
