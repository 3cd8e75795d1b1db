#!/usr/bin/env python3
"""Holds the user's manual against the program: every link and picture, and everything documented.

Reads the page with the standard library only. Prints what is wrong, a line each; the exit status is
1 when anything is.
"""

import html.parser
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
MANUAL = ROOT / "docs" / "manual" / "ScorvaneUsersManual.htm"
FILES = MANUAL.parent / "ScorvaneUsersManual_files"
VOID = {"br", "img", "link", "meta", "hr", "input", "col"}
STRING = r'"(?:[^"\\\n]|\\.)*"'


class Page(html.parser.HTMLParser):
    """What the checks need to know of a page."""

    def __init__(self, text):
        super().__init__()
        self.open = []
        self.faults = []
        self.ids = []
        self.links = []
        self.files = []
        self.headings = []
        self.captions = []
        self.words = []
        self.feed(text)
        self.close()
        self.text = squeezed("".join(self.words))
        if self.open:
            self.faults.append(f"never closed: {self.open}")

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if len(given) < len(attributes):
            self.faults.append(f"line {self.getpos()[0]}: an attribute that is given twice")
        if tag not in VOID:
            self.open.append(tag)
        if "id" in given:
            self.ids.append(given["id"])
        if tag == "a":
            self.links.append(given.get("href", ""))
        if tag == "link":
            self.files.append(given["href"])
        if tag == "img":
            self.files.append(given["src"])
            if not given.get("alt", "").strip():
                self.faults.append(f"no alternative text: {given['src']}")
        if re.fullmatch("h[1-6]", tag):
            self.headings.append([int(tag[1]), "", given.get("id")])
        if tag == "figcaption":
            self.captions.append("")
        if tag == "th" and "scope" not in given:
            self.faults.append(f"line {self.getpos()[0]}: a table heading without scope")

    def handle_endtag(self, tag):
        if not self.open or self.open[-1] != tag:
            self.faults.append(f"line {self.getpos()[0]}: </{tag}> closes {self.open[-1:]}")
        else:
            self.open.pop()

    def handle_data(self, data):
        self.words.append(data)
        if self.open and re.fullmatch("h[1-6]", self.open[-1]):
            self.headings[-1][1] += data
        if "figcaption" in self.open:
            self.captions[-1] += data


def squeezed(text):
    return re.sub(r"\s+", " ", text).strip()


def unquoted(literals):
    """The text of one or more C++ string literals side by side."""
    text = "".join(re.findall(r'"((?:[^"\\\n]|\\.)*)"', literals))
    return re.sub(r"\\(.)", lambda m: {"n": "\n", "t": "\t", "r": "\r"}.get(m[1], m[1]), text)


def link_faults(page):
    for name in {i for i in page.ids if page.ids.count(i) > 1}:
        yield f"two elements are called {name}"
    for link in page.links:
        if not link.startswith("#"):
            yield f"a link leads out of the manual: {link}"
        elif link[1:] not in page.ids:
            yield f"a link leads nowhere: {link}"
    for file in page.files:
        if not (MANUAL.parent / file).is_file():
            yield f"there is no file {file}"
    used = {pathlib.PurePath(file).name for file in page.files}
    for file in sorted(FILES.iterdir()):
        if file.name not in used:
            yield f"not used: {file.name}"


def heading_faults(page):
    if [h[1] for h in page.headings if h[0] == 1] != ["Scorvane User’s Manual"]:
        yield "there must be one main heading"
    for before, after in zip(page.headings, page.headings[1:]):
        if after[0] > before[0] + 1:
            yield f"the heading {after[1]!r} skips a level"
    linked = {link[1:] for link in page.links}
    for level, text, name in page.headings:
        if level == 2 and name != "contents" and name not in linked:
            yield f"the contents lack the chapter {text!r}"


def commands():
    """(menu, caption) of every command in a menu, in the order of the table."""
    table = (ROOT / "src/app/command_table.cpp").read_text(encoding="utf-8")
    return re.findall(r'Command\{\d+, "([^"]+)", "([^"]+)"', table)


def command_faults(page):
    documented = {}
    menu = None
    for level, text, _ in page.headings:
        if level == 2:
            menu = text
        elif level == 3:
            documented.setdefault(menu, []).append(squeezed(text))
    for menu in dict.fromkeys(menu for menu, _ in commands()):
        wanted = [caption for of, caption in commands() if of == menu]
        if documented.get(f"The {menu} menu") != wanted:
            yield f"the {menu} menu has {wanted}, its chapter {documented.get(f'The {menu} menu')}"


def dialog_faults(page):
    shown = squeezed(" ".join(page.captions))
    for script in sorted((ROOT / "src").glob("*/*.rc")):
        for caption in re.findall(r'^CAPTION "(.*)"', script.read_text(encoding="utf-8"), re.M):
            if not re.search(r"\b" + re.escape(caption.rstrip("?")), shown):
                yield f"no picture shows the dialog {caption!r}"


def label_faults(page):
    """Fields and buttons: every text of a dialog that the operator can use or fill in."""
    for script in sorted((ROOT / "src").glob("*/*_dialog.rc")):
        if script.name == "about_dialog.rc":
            continue
        text = re.sub(r"//[^\n]*", "", script.read_text(encoding="utf-8"))
        for label in re.findall(r'^ *(?:LTEXT|CTEXT|GROUPBOX|(?:DEF)?PUSHBUTTON|AUTO\w+) "([^"]+)"', text, re.M):
            label = squeezed(label.replace("&", "").replace("\\n", " ")).rstrip(":")
            if re.search("[A-Za-z]{3}|%", label) and not re.search(re.escape(label), page.text):
                yield f"{script.name}: {label!r} is not documented"


def messages():
    """The sentences that the program says, conversions and all."""
    for file in sorted((ROOT / "src").glob("*/*.cpp")):
        code = re.sub(r"//[^\n]*", "", file.read_text(encoding="utf-8"))
        for literals in re.findall(rf"{STRING}(?:\s*{STRING})*", code):
            text = squeezed(unquoted(literals))
            if re.search(r"[a-z] [a-z]", text) and text[-1] in ".!?" and file.parent.name != "cli":
                yield file.name, text


def message_faults(page):
    for file, text in messages():
        parts = [re.escape(part) for part in re.split(r"%-?[\d.]*[cdslzu]+", text)]
        if not re.search(".{0,60}?".join(parts), page.text):
            yield f"{file}: a message is not documented: {text}"


def version_faults(page):
    version = re.search(r"project\(Scorvane VERSION (\S+)",
                        (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"))[1]
    if f"For version {version} " not in page.text:
        yield f"the manual is not for version {version}"


def main():
    page = Page(MANUAL.read_text(encoding="utf-8"))
    faults = list(page.faults)
    for check in (link_faults, heading_faults, command_faults, dialog_faults, label_faults,
                  message_faults, version_faults):
        faults += check(page)
    for fault in faults:
        print(fault)
    sys.exit(1 if faults else 0)


main()
