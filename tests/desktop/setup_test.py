"""Sets up a contest in the real dialogs, with the keyboard alone, and reads the file they save."""

import unittest

from desktop_case import DesktopTest, contest_file, wait_for

SETUP_CONTEST, SETUP_CLASSES, SETUP_TEAMS, EDIT_CONTESTANTS = 32787, 32788, 32789, 32856


class Setup(DesktopTest):
    def done(self, dialog):
        self.app.wait_closed(dialog)
        self.assertEqual(self.main.title(), f"Scorvane - {self.windows_file} - Fair")

    def fill_in_contest(self):
        dialog = self.app.open_dialog(SETUP_CONTEST, "Setup Contest")
        for text in ("Fair", None, "May 1", "201", None, None, "3", None, "2", "2", "3"):
            dialog.type(text or "")
            dialog.press("Tab")
        for category in ("Beef", "Sheep"):
            dialog.type(category)
            dialog.press("Return")
        dialog.press(*["Tab"] * 5, "Return")
        self.app.choose_file(self.file, "Save As")
        self.done(dialog)

    def fill_in_classes(self):
        dialog = self.app.open_dialog(SETUP_CLASSES, "Setup Classes")
        dialog.type("Steers")
        dialog.press("Tab", "Space", "Tab", "Tab")
        dialog.type("d243")
        dialog.press("Return")
        dialog.type("Ewes")
        dialog.press("Tab", "Tab", "Tab")
        dialog.type("a111")
        dialog.press("Down", "Return")
        self.assertEqual(dialog.lines(1016), [" 1.  Steers", " 2.  Ewes"])
        self.assertEqual(dialog.lines(1018), ["   D (1,3,4,2)", "   A (1,2,3,4)"])
        dialog.close()
        self.done(dialog)

    def fill_in_teams(self):
        dialog = self.app.open_dialog(SETUP_TEAMS, "Setup Teams")
        for name, coach, members in (("Elm", "Oak", ("Ann", "Bob")), ("Ash", "", ("Cy", "Dee", "Eve"))):
            dialog.type(name)
            dialog.press("Tab")
            dialog.type(coach)
            dialog.press("Tab")
            for member in members:
                dialog.type(member)
                dialog.press("Return")
            self.desktop.keys("alt+e")
            wait_for(lambda: name in dialog.lines(1019), "the team in the list")
            dialog.settle()
            self.desktop.keys("alt+t")
            wait_for(lambda: dialog.focused() == 1017, "the focus in the team's name")
        self.assertEqual(dialog.lines(1019), ["Ash", "Elm"])
        dialog.choose(1019, "Ash")
        self.assertEqual(dialog.lines(1060), ["204 - Cy   A", "205 - Dee   B", "206 - Eve   C (alternate)"])
        # The arrow keys stay in the list.
        for name in ("Dee", "Eve"):
            self.desktop.keys(*(("alt+b", "Home", "Down") if name == "Dee" else ("Down",)))
            wait_for(lambda: dialog.text(1020) == name, f"the member {name}")
            self.assertEqual(dialog.focused(), 1060)
        self.desktop.keys("alt+d")
        self.done(dialog)

    def correct_a_name(self):
        dialog = self.app.open_dialog(EDIT_CONTESTANTS, "Edit Contestants")
        dialog.press("Space", "End")
        dialog.type(" Lee")
        dialog.press("Return")
        self.assertEqual(dialog.lines(1069)[0], "201 - Ann Lee - A")
        dialog.close()
        self.done(dialog)

    def test_a_contest_is_set_up_with_the_keyboard_alone(self):
        self.app = self.start()
        self.main = self.app.main()
        self.file = self.folder / "fair.scv"
        self.windows_file = "Z:" + str(self.file).replace("/", "\\")
        self.fill_in_contest()
        self.fill_in_classes()
        self.fill_in_teams()
        self.correct_a_name()
        self.assertEqual(self.file.read_bytes(), contest_file(
            ["Fair", "Junior Division", "May 1", 201, 2, 2, 0, 20, 3, 3, 1, "Beef|Sheep"],
            ["Steers|Yes|No|D|2,4,3|0", "Ewes|No|No|A|1,1,1|1"],
            ["201|Ann Lee|-1|-1", "202|Bob|-1|-1", "203|", "204|Cy|-1|-1", "205|Dee|-1|-1", "206|Eve|-1|-1"],
            ["Ash| |204|205|206", "Elm|Oak|201|202|203"]))


class SmallDisplay(DesktopTest):
    """1280 by 720 dots at 150 per cent, where the letters here are lower than those of Windows by a seventh."""
    DIALOGS = (32787, 32788, 32789, 32864, 32856, 32791, 32822, 32823, 32826, 32843, 32800, 32862, 33001, 33002,
               33023, 33024, 104)

    def test_every_dialog_fits(self):
        for dpi in (96, 144, 192):
            self.desktop.set_dpi(dpi)
            self.addCleanup(self.desktop.set_dpi, 96)
            app = self.start(self.sample())
            app.main().command(32789)  # a save, for the earlier ones to be there
            teams = app.window("Setup Teams")
            teams.choose(1019, "Alder County 4-H")
            teams.click(1005)
            teams.finish()
            sizes = {}
            for command in self.DIALOGS:
                dialog = app.open_dialog(command)
                sizes[dialog.title()] = dialog.rectangle()[2:]
                dialog.finish()
            app.close()
            self.assertEqual({name: size for name, size in sizes.items()
                              if size[0] > 1280 * dpi / 144 or size[1] > 617 * dpi / 144}, {}, dpi)


if __name__ == "__main__":
    unittest.main()
