"""Installs Scorvane silently in a Wine prefix of its own, uses what was installed, and uninstalls it."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest
import zipfile

from desktop_case import BUILD, ROOT, Desktop, DesktopTest, wait_for, windows_path

HELP, OPEN = 32857, 32772
SETUP = BUILD / "ScorvaneSetup.exe"
RUNNING = 2  # exit code of a Setup that finds the program running
NO_HELP = "Unable to spawn help.  Please select Scorvane Help from the start menu."


class InstallerTest(DesktopTest):
    @classmethod
    def setUpClass(cls):
        home = pathlib.Path(tempfile.mkdtemp(prefix="scorvane-home-"))
        cls.addClassCleanup(shutil.rmtree, home, ignore_errors=True)
        cls.documents = home / "Documents"
        cls.documents.mkdir()
        cls.desktop = Desktop(prefix=home / "prefix", home=home)
        cls.addClassCleanup(cls.desktop.close)
        cls.drive = cls.desktop.prefix / "drive_c"
        user = next(d for d in (cls.drive / "users").iterdir() if d.name != "Public")
        cls.programs = user / "AppData/Local/Programs/Scorvane"
        # Windows has this folder; Wine makes it for the first program.
        cls.programs.parent.mkdir()
        cls.menu = user / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Scorvane"
        cls.for_all = cls.drive / "Program Files" / "Scorvane"

    def setup(self, *options):
        return self.desktop.wine(SETUP, "/S", *options, check=False).returncode

    def install(self, who, folder=None):
        """Installs for this test, /CurrentUser or /AllUsers; returns the folder."""
        named = [f"/D=C:\\{folder.name}"] if folder else []
        folder = folder or (self.for_all if who == "/AllUsers" else self.programs)
        self.assertEqual(self.setup(who, *named), 0)
        self.addCleanup(self.uninstall, folder)
        return folder

    def uninstall(self, folder):
        """The uninstaller goes on in a copy of itself, whose last deed is waited for."""
        if (folder / "Uninstall.exe").exists():
            self.desktop.wine(folder / "Uninstall.exe", "/S")
            root = "HKLM" if folder == self.for_all else "HKCU"
            wait_for(lambda: self.desktop.wine("reg", "query", root + r"\Software\Scorvane",
                                               check=False).returncode, "the uninstaller to finish")

    def files(self):
        return {file for root in (self.drive, self.documents) for file in root.rglob("*")
                if "Temp" not in file.parts and not file.is_relative_to(self.drive / "windows")}

    def registered(self):
        """Everything in the registry that names the program or its file type."""
        out = b"".join(self.desktop.wine("reg", "query", root, "/s").stdout
                       for root in (r"HKCU\Software", r"HKLM\Software"))
        return [line for line in out.decode("latin-1").splitlines()
                if "scorvane" in line.lower() or "scv" in line.lower()]

    def test_for_one_user_and_uninstalled_again(self):
        before = self.files()
        self.install("/CurrentUser")
        programs = str(self.programs.relative_to(self.drive)).replace("/", "\\")
        self.assertIn(rf'    (Default)    REG_SZ    "C:\{programs}\scorvane.exe" "%1"', self.registered())
        installed = {str(file.relative_to(self.programs)) for file in self.programs.iterdir()}
        self.assertEqual(installed, {
            "scorvane.exe", "scorvane-report.exe", "scorvane-contest.exe", "Scorvane License.txt", "ScorvaneUsersManual.htm",
            "ScorvaneUsersManual_files", "Uninstall.exe"})
        for program in self.programs.glob("scorvane*.exe"):
            self.assertLess(program.stat().st_size, 2_000_000, program.name)
        self.assertEqual({link.name for link in self.menu.iterdir()},
                         {"Scorvane.lnk", "Scorvane Help.lnk", "Scorvane Samples.lnk"})
        samples = self.documents / "Scorvane Samples"
        shipped = sorted(file.name for file in (ROOT / "samples").iterdir() if file.suffix != ".html")
        self.assertEqual(sorted(file.name for file in samples.iterdir()), shipped)
        with zipfile.ZipFile(next(BUILD.glob("Scorvane-*.zip"))) as archive:
            for name in shipped:
                content = (ROOT / "samples" / name).read_bytes()
                self.assertEqual((samples / name).read_bytes(), content)
                self.assertEqual(archive.read(f"Scorvane/samples/{name}"), content)
        self.assertFalse(self.for_all.exists())

        contest = self.documents / "our contest.scv"
        shutil.copy(samples / "county.scv", contest)
        worked_in = samples / "state.scv"
        worked_in.write_bytes(worked_in.read_bytes().replace(b"startNum", b"startNum\t101\r\nNote:", 1))
        in_folder = self.programs / "kept here.scv"
        shutil.copy(contest, in_folder)
        self.uninstall(self.programs)
        self.assertEqual(self.files() - before,
                         {contest, samples, worked_in, self.programs, in_folder})
        self.assertEqual(self.registered(), [])
        for left in (self.programs, samples):
            shutil.rmtree(left)
        contest.unlink()

    def test_for_all_users_and_uninstalled_again(self):
        before = self.files()
        self.install("/AllUsers")
        self.assertTrue((self.for_all / "scorvane.exe").exists())
        self.assertFalse(self.programs.exists())
        self.assertTrue((self.drive / "users/Public/Documents/Scorvane Samples/county.scv").exists())
        self.assertTrue(any("Scorvane Help" in file.name for file in self.drive.glob(
            "ProgramData/Microsoft/Windows/Start Menu/Programs/Scorvane/*")))
        # Whoever has both kinds loses only the one that is uninstalled.
        named = self.install("/CurrentUser", self.drive / "Fairs")
        self.uninstall(self.for_all)
        self.assertTrue((named / "scorvane.exe").exists())
        self.assertTrue(self.menu.exists())
        self.uninstall(named)
        self.assertEqual(self.files() - before, set())
        self.assertEqual(self.registered(), [])

    def test_an_upgrade_deletes_only_what_setup_put_there(self):
        folder = self.drive / "Fairs"
        self.addCleanup(shutil.rmtree, folder)
        folder.mkdir()
        licence = folder / "LICENSE.txt"
        licence.write_text("Of something else.")
        self.install("/CurrentUser", folder)
        manual = folder / "ScorvaneUsersManual.htm"
        contest = manual.with_name("ScorvaneUsersManual_files") / "kept.scv"
        shutil.copy(ROOT / "samples/county.scv", contest)

        # A program runs, where no window of it can be found: the old version stays whole.
        running = subprocess.Popen(["wine", "explorer", "/desktop=other,640x480", r"C:\Fairs\scorvane.exe"],
                                   env=self.desktop.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(running.wait)
        self.addCleanup(self.desktop.wine, "taskkill", "/f", "/im", "scorvane.exe", check=False)
        upgrade = lambda: self.setup("/CurrentUser", r"/D=C:\Fairs")  # noqa: E731
        wait_for(lambda: upgrade() == RUNNING, "the program on another desktop")
        manual.write_text("old")
        self.assertEqual(upgrade(), RUNNING)
        self.assertEqual(manual.read_text(), "old")
        self.desktop.wine("taskkill", "/f", "/im", "scorvane.exe")
        wait_for(lambda: upgrade() == 0, "its end")
        self.assertNotEqual(manual.stat().st_size, 3)
        self.assertEqual(licence.read_text(), "Of something else.")
        shutil.copy(folder / "Scorvane License.txt", licence)  # as version 1 had it
        self.assertEqual(upgrade(), 0)
        self.uninstall(folder)
        self.assertEqual([file for file in folder.rglob("*") if file.is_file()], [contest])

    def test_the_path_gets_the_commands_on_request_and_is_as_before_again(self):
        def path():
            out = self.desktop.wine("reg", "query", r"HKCU\Environment", "/v", "Path", check=False).stdout
            return [line.split(b"    ")[2:] for line in out.splitlines() if b"REG_" in line]

        before = ";".join([r"%SystemRoot%\a folder", r"C:\Fairs2", *(rf"C:\{n}" for n in range(500))])
        self.desktop.registry(r"HKCU\Environment", "Path", "REG_EXPAND_SZ", before)
        folder = self.drive / "Fairs"
        self.install("/CurrentUser", folder)
        self.assertEqual(path(), [[b"REG_EXPAND_SZ", before.encode()]])
        for _ in range(2):
            self.assertEqual(self.setup("/CurrentUser", "/Path", r"/D=C:\Fairs"), 0)
            self.assertEqual(path(), [[b"REG_EXPAND_SZ", before.encode() + rb";C:\Fairs"]])
        self.uninstall(folder)
        self.assertEqual(path(), [[b"REG_EXPAND_SZ", before.encode()]])

    def test_a_contest_opens_by_its_type(self):
        # The Wine of our tests knows the types of the computer, not those of one user.
        self.install("/AllUsers")
        self.desktop.environment["LC_ALL"] = "C.UTF-8"  # or Wine has file names of ASCII characters only
        contest = self.sample().rename(self.folder / "a fair's Ω contest.scv")
        (self.folder / "a fair's O contest.scv").write_bytes(b"a decoy")
        app = self.desktop.open(contest)
        self.addCleanup(app.close)
        wait_for(lambda: app.main().title() == (
            f"Scorvane - {windows_path(contest).replace('Ω', '?')} - Tallgrass County Fair Judging Contest"),
            "the contest's title")
        # Setup leaves a running program alone.
        self.assertEqual(self.setup("/AllUsers"), RUNNING)
        self.assertEqual(app.tell("exit_code"), ["running"])

    def test_files_start_in_documents_and_help_opens_in_the_browser_or_says_where_it_is(self):
        folder = self.install("/CurrentUser")
        shutil.copy(ROOT / "samples" / "county.scv", self.documents / "mine.scv")
        self.addCleanup((self.documents / "mine.scv").unlink)
        app = self.desktop.start(program=folder / "scorvane.exe")
        self.addCleanup(app.close)
        main = app.main()
        box = app.open_dialog(OPEN)
        box.set_text(1148, "mine.scv")
        box.command(1)
        wait_for(lambda: main.title().endswith(r"\Documents\mine.scv"
                                               " - Tallgrass County Fair Judging Contest"),
                 "the contest of the Documents folder")

        asked = self.folder / "asked"
        browser = self.folder / "browser.bat"
        browser.write_text(f"@echo %1>{windows_path(asked)}\n")
        opening = r"HKLM\Software\Classes\http\shell\open\command"
        self.desktop.registry(opening, "", "REG_SZ", f'"{windows_path(browser)}" "%1"')
        self.addCleanup(self.desktop.wine, "reg", "delete", opening, "/f")
        main.command(HELP)
        page = wait_for(lambda: asked.exists() and asked.read_text().strip(), "the browser")
        unix = subprocess.run(["winepath", "-u", page.strip('"')], env=self.desktop.environment,
                              stdout=subprocess.PIPE, check=True, text=True).stdout.strip()
        manual = folder / "ScorvaneUsersManual.htm"
        self.assertTrue(manual.samefile(unix), page)

        manual.unlink()
        main.command(HELP)
        self.assertEqual(app.answer(caption="Error"), NO_HELP)


if __name__ == "__main__":
    unittest.main()
