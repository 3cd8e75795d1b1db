"""Looks at what is painted: reports letter by letter, their scroll bars, and lists side by side."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

from desktop_case import NATIVE, Desktop, DesktopTest, Lettering, Screen, wait_for

HIGH_TEAM, CONTESTANTS, GROUP_ASSIGNMENTS, SETUP_CLASSES = 32801, 32853, 32838, 32788
LISTS = (1016, 1017, 1018, 1019, 1071)  # of Setup Classes; only the last has a scroll bar
LEFT, WHEEL_UP, WHEEL_DOWN = 1, 4, 5
WM_MOUSEWHEEL, LB_GETTOPINDEX = 0x020A, 0x018E
THICKNESS = 17  # of scroll bars, and the length of their arrows


class Bar:
    """The scroll bar of a client area as it is painted, in pixels from the end of its first arrow on."""

    def __init__(self, screen, area, vertical):
        left, top, width, height = area
        self.screen = screen
        self.vertical = vertical
        self.middle = (left + width if vertical else top + height) + THICKNESS // 2
        self.start = (top if vertical else left) + THICKNESS
        self.length = (height if vertical else width) - 2 * THICKNESS
        self.backward, self.forward = -THICKNESS // 2, self.length + THICKNESS // 2  # the arrows

    def point(self, at):
        return (self.middle, self.start + at) if self.vertical else (self.start + at, self.middle)

    def pixels(self):
        size = (1, self.length) if self.vertical else (self.length, 1)
        return self.screen.pixels(*self.point(0), *size)

    def thumb(self, track):
        """[start, length] of the thumb on a track of this colour; empty if there is none."""
        covered = [i for i, pixel in enumerate(self.pixels()) if pixel != track]
        return [covered[0], len(covered)] if covered else []

    def expected_thumb(self, lines, page, position):
        if lines <= page:
            return []
        length = round(self.length * page / lines)
        return [round((self.length - length) * position / (lines - page)), length]


class PaintingTest(DesktopTest):
    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="scorvane-screen-"))
        cls.addClassCleanup(shutil.rmtree, folder)
        cls.desktop = Desktop(screen_folder=folder)
        cls.addClassCleanup(cls.desktop.close)
        cls.screen = Screen(folder)

    def invented(self, *options):
        """A contest made up with these options."""
        contest = self.folder / "invented.scv"
        subprocess.run([NATIVE / "make_contest", *map(str, options), "--output", contest], check=True)
        return contest

    def picture(self, window, control=0):
        return self.screen.part(*window.client_area(control))

    def bar(self, vertical):
        return Bar(self.screen, self.main.client_area(), vertical)

    def click(self, point, button=LEFT):
        self.desktop.mouse("mousemove", *point, "click", button)

    def show(self, command):
        self.lines = self.expected_report(self.contest, command).split("\n")[:-1]
        self.main.command(command)

    def show_first_report(self, contest):
        """Starts the program and learns its letters from the first report."""
        self.contest = contest
        self.main = self.start(self.contest).main()
        wait_for(lambda: self.start_up_picture() == [(50, 690), (50, 450)], "the start-up picture")
        self.show(HIGH_TEAM)
        self.lettering = wait_for(lambda: Lettering.learned(self.picture(self.main), self.lines),
                                  "the report in letters of equal width")
        self.track = self.bar(False).pixels()[0]  # all of it, as the report is narrow
        self.expect(0)

    def start_up_picture(self):
        """Where the picture begins and ends across and down, looked for along lines that no text crosses."""
        left, top, width, height = self.main.client_area()
        ends = []
        for line in ((left, top + 250, width, 1), (left + 350, top, 1, height)):
            pixels = self.screen.pixels(*line)
            painted = [i for i, pixel in enumerate(pixels) if pixel != pixels[0]]
            ends.append((painted[0], painted[-1] + 1) if painted else None)
        return ends

    def range(self, vertical):
        """How many lines or columns the report has on a bar, and how many of them are in view."""
        _, _, width, height = self.main.client_area()
        if vertical:
            return len(self.lines), height // self.lettering.height
        # Every line but the first is measured with the line end before it.
        longest = max(len(self.lines[0]), *[len(line) + 1 for line in self.lines[1:]])
        return longest + 3, width // self.lettering.width

    def expect_lines(self, top):
        wait_for(lambda: self.lettering.matches(self.picture(self.main), self.lines[top:]),
                 f"line {top} of the report at the top")

    def expect(self, top, across=0):
        """Waits until the report is painted with this line at the top and the bars show these positions."""
        self.expect_lines(top)
        for vertical, position in ((True, top), (False, across)):
            bar = self.bar(vertical)
            expected = bar.expected_thumb(*self.range(vertical), position)

            def shown(bar=bar, expected=expected):
                thumb = bar.thumb(self.track)
                # Rounding makes a pixel; a line or column more or less makes two at least.
                return len(thumb) == len(expected) and all(abs(a - b) <= 1 for a, b in zip(thumb, expected))
            wait_for(shown, f"the thumb {expected}, not {bar.thumb(self.track)}, of {bar.length} pixels")

    def drag(self, vertical, position):
        """Drags a thumb to a position, and holds it there."""
        self.addCleanup(self.drop)
        bar = self.bar(vertical)
        begin, length = bar.thumb(self.track)
        end, _ = bar.expected_thumb(*self.range(vertical), position)
        self.desktop.mouse("mousemove", *bar.point(begin + length // 2), "mousedown", LEFT,
                           "mousemove", *bar.point(end + length // 2))

    def drop(self):
        self.desktop.mouse("mouseup", LEFT)

    def test_keys_wheel_and_scroll_bar_move_the_painted_lines(self):
        self.show_first_report(self.sample("state.scv"))
        lines, page = self.range(True)
        for key, top in (("PageDown", page), ("End", lines - page), ("PageUp", lines - 2 * page),
                         ("Up", lines - 2 * page - 1), ("Home", 0), ("Down", 1)):
            self.main.press(key)
            self.expect(top)
        for button, top in ((WHEEL_DOWN, 6), (WHEEL_UP, 1)):
            self.click(self.main.client_area()[:2], button)
            self.expect(top)
        bar = self.bar(True)
        for at, top in ((bar.backward, 0), (bar.forward, 1), (bar.length - 1, 1 + page), (0, 1)):
            self.click(bar.point(at))
            self.expect(top)
        self.drag(True, 50)
        self.expect(50)
        self.drop()
        self.expect(50)
        self.show(CONTESTANTS)
        self.expect(0)

    def test_a_wide_report_is_made_to_fit(self):
        self.show_first_report(self.sample("state.scv"))
        own = self.lettering.width, self.lettering.height

        def expect_size(smaller):
            def shown():
                self.lettering = Lettering.learned(self.picture(self.main), self.lines) or self.lettering
                size = self.lettering.width, self.lettering.height
                return size < own if smaller else size == own
            wait_for(shown, "the report in other letters")
        for change, back in (((("mousemove", *self.main.client_area()[:2], "keydown", "ctrl", "click", WHEEL_DOWN,
                                "click", WHEEL_DOWN, "keyup", "ctrl")), ("ctrl+0",)),
                             (("key", "ctrl+minus", "key", "ctrl+KP_Subtract"), ("ctrl+equal", "ctrl+KP_Add"))):
            self.desktop.mouse(*change)
            expect_size(smaller=True)
            self.desktop.keys(*back)
            expect_size(smaller=False)

    def test_a_narrow_window_scrolls_across_by_its_bar_alone(self):
        self.show_first_report(self.sample("state.scv"))
        self.main.resize(500, 400)
        self.expect(0)
        bar = self.bar(False)
        columns, page = self.range(False)
        for at, across in ((bar.forward, 1), (bar.backward, 0), (bar.length - 1, columns - page), (0, 0)):
            self.click(bar.point(at))
            self.expect(0, across)
        self.drag(False, 20)
        self.drop()
        self.expect(0, 20)
        self.show(GROUP_ASSIGNMENTS)
        self.expect(0)

    def test_a_long_report_is_dragged_to_its_end(self):
        self.show_first_report(self.invented("--contestants", 70000))
        self.show(CONTESTANTS)
        self.expect_lines(0)
        bar, (lines, page) = self.bar(True), self.range(True)
        self.assertGreater(lines, 1 << 16, "more than the messages of a bar can carry")
        begin, length = wait_for(lambda: bar.thumb(self.track), "the thumb")
        self.desktop.mouse("mousemove", *bar.point(begin + length // 2), "mousedown", LEFT,
                           "mousemove", *bar.point(bar.length), "mouseup", LEFT)
        self.expect_lines(lines - page)

    def test_lists_side_by_side_scroll_together(self):
        app = self.start(self.invented("--classes", 15))  # not quite two pages
        dialog = app.open_dialog(SETUP_CLASSES, "Setup Classes")
        lines = {one: dialog.lines(one) for one in LISTS}
        letterings = {one: wait_for(lambda one=one: Lettering.learned(self.picture(dialog, one), lines[one], range(4)),
                                    f"list {one} in letters of equal width") for one in LISTS}

        def expect(top):
            for one in LISTS:
                wait_for(lambda one=one: letterings[one].matches(self.picture(dialog, one), lines[one][top:]),
                         f"line {top} of list {one} at the top")

        area = dialog.client_area(LISTS[-1])
        bar = Bar(self.screen, area, True)
        last = 15 - area[3] // letterings[LISTS[-1]].height
        self.click(bar.point(bar.length - 1))
        expect(last)
        for one, button, top in zip(LISTS, (WHEEL_UP, WHEEL_UP, WHEEL_DOWN, WHEEL_UP, WHEEL_DOWN), (3, 6, 3, 6, 3)):
            self.click(dialog.client_area(one)[:2], button)
            expect(last - top)
        self.click(bar.point(0))
        expect(0)
        # Half a line's turn over one list and half over another: one list adds up the wheel of all.
        for one in LISTS[:2]:
            dialog.send(one, WM_MOUSEWHEEL, -20 << 16 & 0xFFFFFFFF)
        expect(1)
        # A line dragged out of its list scrolls on for as long as it is held there.
        left, top, _, height = dialog.client_area(LISTS[0])
        self.addCleanup(self.drop)
        self.desktop.mouse("mousemove", left, top, "mousedown", LEFT, "mousemove", left, top + height + 9)
        wait_for(lambda: {dialog.send(one, LB_GETTOPINDEX) for one in LISTS} == {last}, "the lists to scroll on")


if __name__ == "__main__":
    unittest.main()
