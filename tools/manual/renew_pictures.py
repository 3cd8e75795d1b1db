#!/usr/bin/env python3
"""Takes the pictures of the user's manual from the running program: renew_pictures.py [NAME...]

Starts scorvane.exe under Wine on a virtual display, brings each window into the state the manual
shows and writes docs/manual/ScorvaneUsersManual_files/NAME.png; without names, all of them. Needs a
Windows build and what the desktop tests need.
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "desktop"))

import private_cups  # noqa: E402
from desktop import BUILD, IDNO, NATIVE, Desktop, wait_for  # noqa: E402

PICTURES = ROOT / "docs" / "manual" / "ScorvaneUsersManual_files"
# Half as large again as shown, so that the pictures stay crisp on dense displays and in print.
DPI = 144
CONTEST = r"C:\Contests\county fair.scv"
scenes = {}


def scene(function):
    scenes[function.__name__.replace("_", "-")] = function
    return function


class Stage:
    """The program on a fresh copy of a contest, and a camera."""

    def __init__(self, desktop, name):
        self.desktop = desktop
        self.name = name
        self.app = None

    def start(self, sample="county.scv"):
        # What the scene before left unsaved would be offered, or be among the earlier saves.
        for kept in (self.desktop.prefix / "drive_c" / "users").glob("*/AppData/Local/Scorvane"):
            shutil.rmtree(kept)
        if not sample:
            self.app = self.desktop.start()
            return self.app.main()
        folder = self.desktop.prefix / "drive_c" / "Contests"
        folder.mkdir(exist_ok=True)
        shutil.copy(ROOT / "samples" / sample, folder / "county fair.scv")
        self.app = self.desktop.start(f'"{CONTEST}"')
        wait_for(lambda: CONTEST in self.app.main().title(), "the contest")
        return self.app.main()

    def dialog(self, command, title, sample="county.scv"):
        self.start(sample).command(command)
        return self.app.window(title)

    def take(self, window, colours=64, still=True):
        """Writes the picture of a window, cut out of the display."""
        with tempfile.TemporaryDirectory() as folder:
            whole = pathlib.Path(folder) / "display.png"
            left, top, width, height = window.rectangle()
            # On the title bar: below the pointer a button is drawn like the default one.
            self.desktop.mouse("mousemove", left + width // 2, top + 5)
            if still:
                self.wait_until_painted(whole)
            else:
                self.desktop.screenshot(whole)
            subprocess.run(["convert", whole, "-crop", f"{width}x{height}+{left}+{top}", "+repage", "+dither",
                            "-colors", str(colours), "-strip", "-define", "png:compression-level=9",
                            f"PNG8:{PICTURES / self.name}.png"], check=True)

    def wait_until_painted(self, picture):
        """A window is painted once two pictures in a row show the same."""
        def still():
            before = picture.read_bytes() if picture.exists() else None
            self.desktop.screenshot(picture)
            return picture.read_bytes() == before
        wait_for(still, "the window to be painted")


@scene
def main_window(stage):
    main = stage.start()
    stage.take(main)


@scene
def report_in_window(stage):
    main = stage.start()
    main.command(32796)
    stage.take(main)


@scene
def announcers_list(stage):
    main = stage.start()
    main.command(33013)
    stage.take(main)


@scene
def setup_contest_new(stage):
    stage.take(stage.dialog(32787, "Setup Contest", sample=None))


@scene
def setup_contest(stage):
    stage.take(stage.dialog(32787, "Setup Contest"))


@scene
def setup_classes(stage):
    dialog = stage.dialog(32788, "Setup Classes")
    dialog.choose(1016, 4)
    stage.take(dialog)


@scene
def cuts_warning(stage):
    dialog = stage.dialog(32788, "Setup Classes", sample=None)
    dialog.type("Market Steers")
    for control, text in ((1010, "D"), (1011, "5"), (1012, "6"), (1013, "5")):
        dialog.set_text(control, text)
    dialog.command(1006)
    stage.take(stage.app.window("Warning"))


@scene
def setup_teams_new(stage):
    dialog = stage.dialog(32789, "Setup Teams", sample=None)
    dialog.set_text(1017, "Maple Creek FFA")
    dialog.set_text(1018, "Dora Whitlock")
    for name in ("Ann Lee", "Tomas Ortega"):
        dialog.set_text(1020, name)
        dialog.click(1058)
    dialog.type("Wendy Park")
    stage.take(dialog)


@scene
def setup_teams(stage):
    dialog = stage.dialog(32789, "Setup Teams")
    dialog.choose(1019, 3)
    dialog.choose(1060, 1)
    stage.take(dialog)


@scene
def generate_reasons_order(stage):
    stage.take(stage.dialog(32867, "Warning"))


@scene
def reasons_order_edit(stage):
    dialog = stage.dialog(32864, "Reasons Order Edit")
    dialog.choose(1081, 0)
    dialog.choose(1083, 3)
    dialog.click(1088)
    dialog.choose(1083, 2)
    stage.take(dialog)


@scene
def edit_contestants(stage):
    dialog = stage.dialog(32856, "Edit Contestants")
    dialog.choose(1069, 5)
    stage.take(dialog)


@scene
def reasons_class(stage):
    dialog = stage.dialog(32843, "Reasons Class to Score")
    dialog.choose(1052, 0)
    stage.take(dialog)


@scene
def lookup(stage):
    dialog = stage.dialog(32791, "Lookup/Edit Individual Scores")
    dialog.choose(1016, 3)
    dialog.set_text(1026, "107")
    dialog.click(1005)
    dialog.set_text(1026, "107")
    dialog.set_text(1028, "46")
    stage.take(dialog)


def blank_scores(stage, judged=None):
    """The county contest before its cards are typed in, all of them or those of one class."""
    file = stage.desktop.prefix / "drive_c" / "Contests" / "county fair.scv"
    head, mark, tail = file.read_bytes().partition(b"~~~~~Scores~~~~~\r\n")
    count, *lines = tail.split(b"\r\n")

    def blanked(line):
        fields = line.split(b"\t")
        is_score = len(fields) == 6 and judged in (None, int(fields[1]))
        return b"\t".join([*fields[:2], b" ", b"0", b"0", b"0"]) if is_score else line
    blank = map(blanked, lines)
    file.write_bytes(head + mark + b"\r\n".join([count, *blank]))
    stage.app.main().command(32772)
    stage.app.window().set_text(1148, CONTEST)
    stage.app.window().command(1)
    wait_for(lambda: CONTEST in stage.app.main().title(), "the contest")


def entry(stage, command, title, group, field, values):
    stage.start()
    blank_scores(stage)
    stage.app.main().command(command)
    dialog = stage.app.window(title)
    dialog.choose(1016, 0)
    dialog.choose(1053, group)
    for value in values[:-1]:
        dialog.set_text(field, value)
        dialog.click(1004)
    dialog.set_text(field, values[-1])
    stage.take(dialog)


@scene
def input_placings(stage):
    entry(stage, 32822, "Input Placings Scores By Group", 1, 1027, "DDCD")


@scene
def input_reasons(stage):
    entry(stage, 32823, "Input Reasons Scores By Group", 0, 1028, ["42", "45", "38"])


@scene
def input_questions(stage):
    entry(stage, 32826, "Input Questions Scores By Group", 2, 1056, ["40", "44"])


@scene
def move_cards(stage):
    dialog = stage.dialog(33024, "Move Or Clear Cards")
    for control, line in ((1123, "   B   "), (1125, " 1.  Market Steers"), (1129, " 2.  Market Hogs")):
        dialog.choose(control, line)
    stage.take(dialog)


@scene
def enter_again(stage):
    dialog = stage.dialog(32822, "Input Placings Scores By Group")
    dialog.choose(1016, 0)
    stage.app.tell("choose", dialog.handle, 1053, 0)
    box = stage.app.window("Information")
    stage.take(box)
    box.command(IDNO)


@scene
def custom_report(stage):
    dialog = stage.dialog(32800, "Custom Report")
    dialog.choose(1075, "Swine")
    stage.take(dialog)


@scene
def round_verification(stage):
    dialog = stage.dialog(32862, "Round Verification Report")
    dialog.choose(1053, 1)
    dialog.choose(1016, 3)
    stage.take(dialog)


@scene
def earlier_saves(stage):
    main = stage.start()

    def work(command, title, *steps):
        main.command(command)
        dialog = stage.app.window(title)
        for step, *values in steps:
            getattr(dialog, step)(*values)
        dialog.finish()
    blank_scores(stage, 3)
    work(32822, "Input Placings Scores By Group", ("choose", 1016, 3), ("choose", 1053, 0),
         *[step for letter in "DCDBADCD" for step in (("set_text", 1027, letter), ("click", 1004))])
    work(32788, "Setup Classes", ("choose", 1016, 3), ("set_text", 1010, "D"), ("click", 1007))
    work(32789, "Setup Teams", ("choose", 1019, 3), ("click", 1005))
    main.command(33023)
    dialog = stage.app.window("Earlier Saves")
    dialog.choose(1101, 1)
    stage.take(dialog)


@scene
def import_roster(stage):
    dialog = stage.dialog(33001, "Import Roster")
    dialog.paste(1181, "Team\tContestant\tAlternate\tCoach\r\nElm Grove 4-H\tDee Fox\t\tJos\u00e9 Ruiz\r\n"
                 "\tEd Gray\r\n\tMae Novak\r\nWillow\tHope Lang\t\tPat Miller\r\n\tSeth Cole\tyes\r\n")
    wait_for(lambda: dialog.lines(1183), "the list")
    stage.take(dialog)


@scene
def publish_results(stage):
    stage.take(stage.dialog(33002, "Publish Results"))


@scene
def about(stage):
    stage.take(stage.dialog(104, "About Scorvane"), colours=128)


def print_page(stage, command):
    """Prints a report and pictures its first page."""
    with private_cups.PrivateCups(BUILD / "picture-cups") as printer:
        stage.desktop.environment.update(printer.environment())
        main = stage.start()
        main.command(command)
        main.command(32805)
        stage.app.window("Print").command(1)
        page = printer.wait_for_document(1)
        stage.app.main()
        drawn = subprocess.run(["pdftoppm", "-r", "100", "-png", "-singlefile", page], check=True,
                               stdout=subprocess.PIPE).stdout
        subprocess.run(["convert", "-", "-strip", "-colorspace", "gray", "-colors", "8",
                        f"PNG8:{PICTURES / stage.name}.png"], check=True, input=drawn)


@scene
def printed_page(stage):
    print_page(stage, 32801)


@scene
def printed_cards(stage):
    print_page(stage, 33011)


@scene
def published_page(stage):
    """As a phone shows it; needs chromium besides."""
    with tempfile.TemporaryDirectory() as folder:
        page, picture = pathlib.Path(folder) / "page.html", pathlib.Path(folder) / "page.png"
        subprocess.run([NATIVE / "scorvane-report", ROOT / "samples" / "county.scv", "--publish", page], check=True)
        subprocess.run(["chromium", "--headless", "--no-sandbox", "--hide-scrollbars", f"--user-data-dir={folder}",
                        "--force-device-scale-factor=1.5", "--window-size=500,700", f"--screenshot={picture}",
                        page.as_uri()], check=True, stderr=subprocess.DEVNULL)
        subprocess.run(["convert", picture, "-strip", "-colors", "32", f"PNG8:{PICTURES / stage.name}.png"], check=True)


def many_teams():
    """A contest that takes a while to print."""
    file = BUILD / "many-teams.scv"
    subprocess.run([NATIVE / "make_contest", "--contestants", "20000", "--output", file], check=True)
    return file


@scene
def abort_printing(stage):
    with private_cups.PrivateCups(BUILD / "picture-cups") as printer:
        stage.desktop.environment.update(printer.environment())
        main = stage.start(many_teams())
        main.command(32840)
        main.command(32805)
        stage.app.window("Print").command(1)
        dialog = stage.app.window("Abort Printing?")
        wait_for(lambda: "page 3" in dialog.text(1042), "the third page")
        stage.take(dialog, still=False)
        dialog.click(1043)
        stage.app.wait_closed(dialog)


def use_fonts(desktop):
    """Lets title bars have their signs and message boxes a font that scales."""
    shutil.copy("/usr/share/wine/fonts/marlett.ttf", desktop.prefix / "drive_c" / "windows" / "Fonts")
    desktop.registry(r"HKCU\Software\Wine\Fonts\Replacements", "Tahoma", "REG_SZ", "Liberation Sans")


def main():
    chosen = sys.argv[1:] or list(scenes)
    unknown = [name for name in chosen if name not in scenes]
    if unknown:
        sys.exit(f"no picture is called {', '.join(unknown)}; there are: {', '.join(scenes)}")
    PICTURES.mkdir(exist_ok=True)
    desktop = Desktop(size="1700x1150x24", dpi=DPI, prefix=BUILD / "wine-prefix-pictures")
    use_fonts(desktop)
    try:
        for name in chosen:
            stage = Stage(desktop, name)
            try:
                scenes[name](stage)
            finally:
                if stage.app:
                    stage.app.close()
            print(name, (PICTURES / f"{name}.png").stat().st_size)
    finally:
        desktop.close()


main()
