"""What every desktop test starts from: `DesktopTest`, contest files, and the desktop's tools by name."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "desktop"))

import private_cups  # noqa: E402
from desktop import (BUILD, IDCANCEL, IDNO, IDOK, IDYES, NATIVE, ROOT, Desktop, wait_for,  # noqa: E402
                     windows_path)
from screen import Lettering, Screen  # noqa: E402

__all__ = ["BUILD", "IDCANCEL", "IDNO", "IDOK", "IDYES", "NATIVE", "NO_CARDS", "ROOT", "Desktop", "DesktopTest",
           "Lettering", "Screen", "contest_file", "private_cups", "wait_for", "windows_path"]

SETTINGS = ("contestName", "divisionName", "contestDate", "startNum", "numPerTeam", "numToScore", "reportPercent",
            "numToReport", "numGroups", "totalNumPerTeam", "numReasonsGroups", "categories")


def contest_file(settings, classes, people, teams):
    """The file of a contest without cards, from lines whose fields are parted by bars."""
    cards = [f"{person.split('|')[0]}|{k}| |0|0|0" for person in people for k in range(len(classes))]
    lines = [f"{name}:|{value}" for name, value in zip(SETTINGS, settings, strict=True)]
    for name, records in (("Classes", classes), ("Contestants", people), ("Teams", teams), ("Scores", cards)):
        lines += [f"~~~~~{name}~~~~~", str(len(records)), *records]
    return "\r\n".join([*lines, *["0000-0000-0000-0000"] * 2, ""]).replace("|", "\t").encode()


NO_CARDS = contest_file(["Fair", "Junior Division", "May 1", 101, 5, 3, 0, 20, 2, 5, 1, "Beef"],
                        ["Steers|No|Yes|A|2,3,4|0", "Ewes|Yes|No|X|5,5,5|0"],
                        ["101|Ann|0|1", "102|Bob|-1|-1", "103|Cy|0|0", "104|Dee|-1|-1", "105|Eve|-1|-1"],
                        ["Elm|Oak|101|102|103|104|105"])


class DesktopTest(unittest.TestCase):
    """A test with a desktop for its class, a fresh folder for each test, nothing kept of other tests' contests,
    and programs that end with it."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="scorvane-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.maxDiff = None
        users = self.desktop.prefix / "drive_c/users"
        self.kept = [user / "AppData/Local/Scorvane" for user in users.iterdir()]
        for folder in self.kept:
            shutil.rmtree(folder, ignore_errors=True)

    def start(self, *arguments):
        """Starts the program; a contest file may be given as one path."""
        app = self.desktop.start(*[f'"{windows_path(a)}"' for a in arguments])
        self.addCleanup(app.close)
        return app

    def sample(self, name="county.scv"):
        """A copy of a sample contest that the test may change."""
        return pathlib.Path(shutil.copy(ROOT / "samples" / name, self.folder / name))

    def expected_report(self, *arguments):
        """What scorvane-report prints for these arguments."""
        done = subprocess.run([NATIVE / "scorvane-report", *map(str, arguments)], check=True,
                              stdout=subprocess.PIPE)
        return done.stdout.decode("latin-1")
