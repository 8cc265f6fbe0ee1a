# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""Sessions of the program on an X display, as a person has them. xdotool does everything by mouse
and keys, and the results are read where the program keeps its state.
"""

import os
import pathlib
import re
import subprocess
import time

PATIENCE_SECONDS = 60
PATIENCE_WITH_KEYS_SECONDS = 5
PAUSE_SECONDS = 0.02
MODULES = ["dBm Calculator", "Voltage Calculator", "Unit Converter", "dB Converter", "VSWR Converter"]


def within(seconds, condition):
    """Asks the condition until it is true and returns its value, or None when the time is over."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if value := condition():
            return value
        time.sleep(PAUSE_SECONDS)
    return None


def wait_for(what, condition):
    value = within(PATIENCE_SECONDS, condition)
    assert value, f"waited in vain for {what}"
    return value


def xdotool(*words):
    """Runs xdotool. It also warns of windows that it finds later, so only its status matters."""
    command = ["xdotool", *map(str, words)]
    done = subprocess.run(command, capture_output=True, text=True, timeout=PATIENCE_SECONDS)
    assert done.returncode == 0, f"{command}: {done.stderr}"


def visible_windows(*criterion):
    """What xdotool finds. It fails if it meets a window that is just closing, so whoever waits for
    a window has to ask again."""
    search = ["xdotool", "search", "--onlyvisible", *criterion]
    return subprocess.run(search, capture_output=True, text=True).stdout.split()


def window_named(pattern):
    return wait_for(f"a window {pattern}", lambda: visible_windows("--name", pattern))[0]


def activate(window):
    xdotool("windowactivate", "--sync", window)


def size_of(window):
    """Width and height in pixels of the screen."""
    asked = ["xdotool", "getwindowgeometry", "--shell", window]
    said = subprocess.run(asked, capture_output=True, text=True).stdout
    return [int(value) for value in re.findall(r"(?:WIDTH|HEIGHT)=(\d+)", said)]


def values_of(text):
    """The values of a settings text by group and key."""
    values = {}
    group = None
    for line in text.splitlines():
        if line.startswith("["):
            group = line.strip("[]")
        elif "=" in line:
            key, value = line.split("=", 1)
            values[f"{group}/{key}"] = value
    return values


class Linux:
    """The program of this machine, which keeps its state in a file."""

    settings = pathlib.Path.home() / ".config/Vantrel/Dezimo.conf"
    window_class = "^dezimo$"
    loses_first_keys = False
    pause_between_keys_milliseconds = 1

    def command(self, program):
        return [program]

    def name_for_dialog(self, file):
        """The name is enough, because the dialog begins in the program's folder. A path would make
        it offer names, and Return would only close that list."""
        return file.name

    def write_state(self, text):
        self.settings.parent.mkdir(parents=True, exist_ok=True)
        self.settings.write_text(text)

    def read_state(self):
        return values_of(self.settings.read_text())


class Wine:
    """The program for Windows, which keeps its state in the registry."""

    key = r"HKEY_CURRENT_USER\Software\Vantrel\Dezimo"
    window_class = r"^dezimo\.exe$"
    loses_first_keys = True
    pause_between_keys_milliseconds = 25
    file = pathlib.Path(os.environ.get("WINEPREFIX", "")) / "drive_c/state.reg"

    def command(self, program):
        return ["/usr/lib/wine/wine64", program]

    def name_for_dialog(self, file):
        return "Z:" + str(file).replace("/", "\\")

    def write_state(self, text):
        lines = ["Windows Registry Editor Version 5.00", "", f"[-{self.key}]", ""]
        for name, value in values_of(text).items():
            group, key = name.split("/")
            lines += [rf"[{self.key}\{group}]", f'"{key}"="{value}"', ""]
        self.file.write_bytes("\r\n".join(lines).encode("utf-16"))
        self.run("regedit", "/S", r"C:\state.reg")

    def read_state(self):
        self.run("reg", "export", self.key, r"C:\state.reg", "/y")
        text = self.file.read_text(encoding="utf-16").replace("[" + self.key + "\\", "[")
        text = re.sub(r"=dword:(\w+)", lambda number: f"={int(number[1], 16)}", text)
        return values_of(text.replace('"', ""))

    def run(self, *words):
        subprocess.run(self.command(words[0]) + list(words[1:]), check=True, capture_output=True)


class Session:
    """One run of the program, from its first window to its end."""

    def __init__(self, host, program, folder, positions, page):
        self.host = host
        self.folder = folder
        self.positions = positions
        self.page = page
        self.process = subprocess.Popen(
            host.command(program), cwd=folder, stderr=subprocess.PIPE, text=True
        )
        self.window = None

    def appear(self):
        self.window = window_named(rf"^Dezimo \[{MODULES[self.page]}\]$")
        self.activate()

    def activate(self):
        activate(self.window)
        if self.host.loses_first_keys:
            self.wake()

    def wake(self):
        self.open_menu("Escape", "Escape")
        self.wait_for_windows(1)

    def press(self, *keys):
        xdotool("key", "--delay", self.host.pause_between_keys_milliseconds, *keys)

    def press_until(self, key, what, condition):
        """Wine loses keys now and then, so this presses them again until they have an effect."""

        def works():
            self.press(key)
            return within(PATIENCE_WITH_KEYS_SECONDS, condition)

        return wait_for(what, works)

    def type(self, text):
        xdotool("type", "--delay", self.host.pause_between_keys_milliseconds, text)

    def click(self, name, page=None, button=1, times=1):
        page = self.page if page is None else page
        x, y = self.positions[page, name]
        click = ["click", "--repeat", times, button]
        xdotool("mousemove", "--window", self.window, x, y, *click)

    def turn_wheel_over(self, name):
        self.click(name, button=5)

    def enter(self, field, text):
        """Replaces the text of a field and leaves the edit unfinished."""
        self.click(field)
        self.press("ctrl+a")
        self.type(text)

    def click_each(self, kind):
        """Clicks the controls of one kind on the page, on all its tabs, and yields their names."""
        for page, name in self.positions:
            if page == self.page and name.endswith((kind, "tab0", "tab1")):
                self.click(name)
                if name.endswith(kind):
                    yield name

    def open_menu(self, *keys):
        """Opens the first menu by its key, then presses the keys."""
        self.press_until("F10", "a menu", lambda: self.has_windows(2))
        if keys:
            self.press(*keys)

    def turn_menu(self, key):
        """Goes from one open menu to the next. Both or none may be there for a moment."""
        before = self.windows()
        self.press(key)

        def is_turned():
            now = self.windows()
            return len(now) == 2 and now != before

        wait_for("another menu", is_turned)

    def show(self, page):
        self.click(f"module{page}", page=-1)
        window_named(rf"^Dezimo \[{MODULES[page]}\]$")
        self.page = page

    def windows(self):
        """The main window, and one window for each open menu or list."""
        return set(visible_windows("--class", self.host.window_class))

    def has_windows(self, number):
        return len(self.windows()) == number

    def wait_for_windows(self, number):
        wait_for(f"{number} windows", lambda: self.has_windows(number))

    def quit(self):
        self.end_by("ctrl+q")

    def close(self):
        """Closes by the window manager's keys, which do the same as the button in the frame."""
        self.end_by("alt+F4")

    def end_by(self, keys):
        """Checks that the keys make the program end with status 0 and without a message."""
        self.press_until(keys, "the end", lambda: self.process.poll() is not None)
        said = self.process.communicate()[1]
        self.wait_for_windows(0)
        assert self.process.returncode == 0, f"status {self.process.returncode}: {said}"
        assert not said, f"the program said: {said}"

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.communicate()
