"""Runs scorvane.exe under Wine on a virtual display and drives its windows by command and control id.

`Desktop` is a display and a Wine prefix; `Desktop.start()` returns an `App`, whose windows are addressed
by title and whose controls by the ids of the resource script. Nothing sleeps for a fixed time: every
wait is for a condition, with a deadline.
"""

import contextlib
import os
import pathlib
import select
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("SCORVANE_WINDOWS_BUILD", ROOT / "build" / "windows"))
NATIVE = pathlib.Path(os.environ.get("SCORVANE_NATIVE_BUILD", ROOT / "build" / "native"))
DEADLINE = 30.0
ANSWER_DEADLINE = 120.0  # of the driver, which is slow on a busy machine

VK = {"Tab": 0x09, "Return": 0x0D, "Escape": 0x1B, "Space": 0x20, "PageUp": 0x21, "PageDown": 0x22,
      "End": 0x23, "Home": 0x24, "Left": 0x25, "Up": 0x26, "Right": 0x27, "Down": 0x28, "F1": 0x70}

IDOK, IDCANCEL, IDYES, IDNO = 1, 2, 6, 7


class DesktopError(AssertionError):
    pass


def wait_for(condition, what, deadline=DEADLINE):
    """The first true value of condition(), asked again and again until the deadline."""
    end = time.monotonic() + deadline
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise DesktopError(f"waited {deadline:.0f} s in vain for {what}")
        time.sleep(0.01)


def escape(text):
    return (text.replace("\\", "\\\\").replace("\t", "\\t").replace("\n", "\\n").replace("\r", "\\r"))


def unescape(text):
    out, marks = [], iter(text)
    for c in marks:
        if c == "\\":
            c = {"t": "\t", "n": "\n", "r": "\r"}.get(d := next(marks), d)
        out.append(c)
    return "".join(out)


class Desktop:
    """A virtual display of its own and a Wine prefix in the build folder.

    A home folder given here holds the Documents folder of a prefix that is yet to be made. Into a folder
    for the screen the display puts its live picture, a file in XWD format.
    """

    def __init__(self, size="1280x900x24", dpi=96, prefix=None, home=None, screen_folder=None):
        self.prefix = pathlib.Path(prefix or BUILD / "wine-prefix")
        self.server = None
        self.display = None
        self.environment = dict(os.environ, WINEPREFIX=str(self.prefix), WINEDEBUG="-all", LC_ALL="C",
                                WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=",
                                WINEARCH="win64")
        if home:
            self.environment["HOME"] = str(home)
        self._start_display(size, ["-nocursor", "-fbdir", str(screen_folder)] if screen_folder else [])
        self._prepare_prefix()
        self.set_dpi(dpi)

    def _start_display(self, size, options):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", size, "-nolisten", "tcp", *options],
            pass_fds=[writing], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise DesktopError("the virtual display did not start")
        self.display = f":{number}"
        self.environment["DISPLAY"] = self.display

    def _prepare_prefix(self):
        # A Wine server left over from a display that is gone would swallow this run's windows.
        if (self.prefix / "system.reg").exists():
            self.wineserver("-k")
        else:
            self.prefix.mkdir(parents=True, exist_ok=True)
            self.wine("wineboot", "--init")
        # Without a window manager, managed windows take two seconds each to close.
        self.registry(r"HKCU\Software\Wine\X11 Driver", "Managed", "REG_SZ", "N")

    def set_dpi(self, dpi):
        self.registry(r"HKCU\Control Panel\Desktop", "LogPixels", "REG_DWORD", str(dpi))

    def registry(self, key, name, kind, value):
        """Sets a value of a key; without a name, the key's default value."""
        named = ["/v", name] if name else ["/ve"]
        self.wine("reg", "add", key, *named, "/t", kind, "/d", value, "/f")

    def wine(self, *arguments, check=True, **options):
        """Runs a Windows program to its end; returns the finished process."""
        return subprocess.run(["wine", *map(str, arguments)], env=self.environment, check=check,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, timeout=180, **options)

    def wineserver(self, flag):
        subprocess.run(["wineserver", flag], env=self.environment, check=False,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60)

    def start(self, *arguments, program=None):
        program = windows_path(program or BUILD / "scorvane.exe")
        return App(self, "start", " ".join([f'"{program}"', *arguments]))

    def open(self, document):
        """Opens a document as a double click on it does; returns the program that took it."""
        return App(self, "open", windows_path(document))

    def screenshot(self, file):
        """A picture of the whole display as a PNG file."""
        subprocess.run(["import", "-window", "root", str(file)], env=self.environment, check=True)

    def keys(self, *names):
        """Presses real keys on the display, by their X names."""
        subprocess.run(["xdotool", "key", "--delay", "20", *names], env=self.environment, check=True)

    def mouse(self, *steps):
        """Works the real mouse in the steps of xdotool: "mousemove", x, y, "click", button, ..."""
        subprocess.run(["xdotool", *map(str, steps)], env=self.environment, check=True)

    def close(self):
        self.wineserver("-k")
        self.server.terminate()
        self.server.wait()


def windows_path(path):
    """A file's name as a Windows program in Wine sees it."""
    return "Z:" + str(pathlib.Path(path).absolute()).replace("/", "\\")


class App:
    """A running program and the helper that speaks to its windows."""

    def __init__(self, desktop, *command):
        self.desktop = desktop
        self.driver = subprocess.Popen(
            ["wine", str(BUILD / "desktop_driver.exe")], env=desktop.environment,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.tell(*command)

    def tell(self, *fields):
        """Sends the driver one command; returns the answer's fields."""
        self.driver.stdin.write(("\t".join(escape(str(f)) for f in fields) + "\n").encode("utf-8"))
        self.driver.stdin.flush()
        if not select.select([self.driver.stdout], [], [], ANSWER_DEADLINE)[0]:
            raise DesktopError(f"{fields}: no answer within {ANSWER_DEADLINE:.0f} s")
        answer = self.driver.stdout.readline().decode("latin-1").rstrip("\r\n")
        kind, *values = answer.split("\t")
        if kind != "ok":
            raise DesktopError(f"{fields}: {values or 'the driver is gone'}")
        return [unescape(value) for value in values]

    def windows(self):
        """(handle, class, title, enabled) of every visible window."""
        fields = self.tell("windows")
        return [(fields[i], fields[i + 1], fields[i + 2], fields[i + 3] == "1")
                for i in range(0, len(fields), 4)]

    def window(self, title=None, kind="#32770", deadline=DEADLINE):
        """The enabled window with this title, once it is there; by default a dialog or box."""
        def find():
            for handle, window_class, caption, enabled in self.windows():
                if enabled and window_class == kind and title in (None, caption):
                    return Window(self, handle)
            return None
        return wait_for(find, f"a window {title!r} ({kind}) among {self.windows()}", deadline)

    def settled_windows(self):
        """The windows once the main window or a message box over it answers the operator."""
        return wait_for(lambda: [w for w in self.windows() if w[3]] and self.windows(), "a window")

    def main(self):
        return self.window(kind="SCORVANE")

    def open_dialog(self, command, title=None):
        """The dialog that a menu command opens."""
        self.main().command(command)
        return self.window(title)

    def message(self, caption=None):
        """(text, caption) of the message box on top."""
        box = self.window(caption)
        return box.text(0xFFFF), box.title()

    def answer(self, button=IDOK, caption=None):
        """Presses a button of the message box on top and waits until it is gone; returns its text."""
        box = self.window(caption)
        text = box.text(0xFFFF)
        box.command(button)
        self.wait_closed(box)
        return text

    def wait_closed(self, window):
        wait_for(lambda: all(handle != window.handle for handle, *_ in self.windows()),
                 f"window {window.handle} to close")

    def report(self):
        """The report on screen, fetched through Edit, Copy and the clipboard."""
        self.tell("clipboard", "clear")
        self.main().command(32777)
        self.answer(IDOK, "Information")
        return self.tell("clipboard")[0]

    def choose_file(self, path, caption=None):
        """Answers the file dialog on top with a file's full name, or cancels it with None."""
        box = self.window(caption)
        if path is None:
            box.command(IDCANCEL)
        else:
            box.set_text(1148, windows_path(path))
            box.command(IDOK)
        self.wait_closed(box)

    def exit_code(self):
        """The program's exit code, waited for."""
        return int(wait_for(lambda: [c for c in self.tell("exit_code") if c != "running"], "exit")[0])

    def close(self):
        if self.driver.stdin.closed:
            return
        with contextlib.suppress(DesktopError):
            self.tell("kill")
        with contextlib.suppress(OSError):
            self.driver.stdin.close()
        self.driver.wait(timeout=30)
        self.driver.stdout.close()


class Window:
    def __init__(self, app, handle):
        self.app = app
        self.handle = handle

    def _tell(self, name, *fields):
        values = self.app.tell(name, self.handle, *fields)
        return values[0] if values else ""

    def title(self):
        return self._tell("text", 0)

    def command(self, command_id):
        """Posts a menu command or button id; a dialog that it opens is up when window() finds it."""
        self._tell("command", command_id)

    def send(self, control, message, first=0, second=0):
        """Sends a message to a control; returns the answer."""
        return int(self._tell("send", control, message, first, second))

    def settle(self):
        self._tell("settle")

    def rectangle(self):
        """(left, top, width, height) on the display, in pixels."""
        return tuple(map(int, self.app.tell("rectangle", self.handle)))

    def client_area(self, control=0):
        """The same of what a control, or the window, has inside its frame and scroll bars."""
        return tuple(map(int, self.app.tell("client_area", self.handle, control)))

    def resize(self, width, height):
        self._tell("resize", width, height)

    def text(self, control):
        return self._tell("text", control)

    def set_text(self, control, text):
        self._tell("set_text", control, text)

    def is_enabled(self, control):
        return self._tell("is_enabled", control) == "1"

    def is_checked(self, control):
        return self._tell("is_checked", control) == "1"

    def click(self, control):
        self._tell("click", control)
        self.settle()

    def lines(self, control):
        return self.app.tell("lines", self.handle, control)

    def selection(self, control):
        """Selected line numbers, from 0."""
        return [int(i) for i in self.app.tell("selection", self.handle, control) if int(i) >= 0]

    def choose(self, control, line):
        """Chooses a line by number or by its text."""
        if isinstance(line, str):
            line = self.lines(control).index(line)
        self._tell("choose", control, line)
        self.settle()

    def focused(self):
        return int(self._tell("focused"))

    def default_button(self):
        return int(self._tell("default_button"))

    def type(self, text):
        """Types characters into whatever control has the focus, one after the other."""
        for character in text:
            self._tell("key", "char", ord(character))
            self.settle()

    def paste(self, control, text):
        """Pastes over all that a field holds, by the keys for it."""
        units = text.encode("utf-16-le")
        self.app.tell("clipboard", "set", *(units[i] + 256 * units[i + 1] for i in range(0, len(units), 2)))
        wait_for(lambda: self.focused() == control, "the focus in the field")
        self.app.desktop.keys("ctrl+a", "ctrl+v")

    def press(self, *names):
        """Presses keys by name (Tab, Return, Escape, ...) in the control that has the focus."""
        for name in names:
            self._tell("key", "virtual", VK[name])
            self.settle()

    def drop(self, path):
        """Drops a file on the window."""
        self._tell("drop", windows_path(path))

    def close(self):
        """As the close box does."""
        self._tell("post", 0x0010, 0, 0)

    def finish(self, button=None):
        """Presses a button, or the close box, and waits until the window is gone."""
        if button is None:
            self.close()
        else:
            self.command(button)
        self.app.wait_closed(self)
