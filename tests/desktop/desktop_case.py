"""What every desktop test starts from: `DesktopTest`, and the names of the desktop's tools it works with."""

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

__all__ = ["BUILD", "IDCANCEL", "IDNO", "IDOK", "IDYES", "NATIVE", "ROOT", "Desktop", "DesktopTest", "Lettering",
           "Screen", "private_cups", "wait_for", "windows_path"]


class DesktopTest(unittest.TestCase):
    """A test with a desktop for its class, a fresh folder for each test, and programs that end with it."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="scorvane-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.maxDiff = None

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
