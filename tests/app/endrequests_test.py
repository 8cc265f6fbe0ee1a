#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""endrequests_test.py PROGRAM: ends sessions of the program from outside, on a display of their own.

Each session has an unfinished edit in the dB converter and something open above it. However the
session ends, its status is 0, standard error is empty, and the settings hold the finished edit.
"""

import ctypes
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE_SECONDS = 60
PAUSE_SECONDS = 0.02
SIGNALS = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)
NOBODY = 65534

# 10 dBm over 0 dBm. An unfinished edit would leave the ratio empty.
FINISHED = ["p1=10dBm", "p2=0dBm", "pDb=10.00", "pRatio=10"]


def wait_for(what, condition):
    """Asks the condition until it is true or the patience ends, and returns its value."""
    deadline = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < deadline:
        value = condition()
        if value:
            return value
        time.sleep(PAUSE_SECONDS)
    raise AssertionError(f"waited in vain for {what}")


class Display:
    """A display without a window manager."""

    def __init__(self):
        read, write = os.pipe()
        # Without -noreset the display restarts, unreachable for a while, when its last client goes.
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XInternAtom.restype = ctypes.c_ulong
        self.x11.XGetSelectionOwner.restype = ctypes.c_ulong
        self.connection = ctypes.c_void_p(self.x11.XOpenDisplay(None))

    def end(self):
        self.process.terminate()
        self.process.wait()

    def clipboard_has_an_owner(self):
        """Whether anybody has copied anything."""
        clipboard = self.x11.XInternAtom(self.connection, b"CLIPBOARD", 0)
        return self.x11.XGetSelectionOwner(self.connection, ctypes.c_ulong(clipboard)) != 0


def use(*arguments):
    """What xdotool prints. Its status is ignored: it also fails if a window is just closing."""
    return subprocess.run(["xdotool", *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          text=True, check=False).stdout


def windows(title=""):
    """The visible windows whose title begins so, or all. The display has only the program's."""
    return use("search", "--onlyvisible", "--name", f"^{title}").split()


def wait_for_another_window(what, *keys):
    """Presses the keys and waits for the window that they open."""
    before = len(windows())
    use("key", *keys)
    wait_for(what, lambda: len(windows()) > before)


class Session:
    """A run of the program in a home of its own, with the dB converter shown."""

    def __init__(self, program, *arguments, ignored=(), settings="", prefix=()):
        self.home = pathlib.Path(tempfile.mkdtemp())
        self.settings_file = self.home / "config/Vantrel/Dezimo.conf"
        self.settings_file.parent.mkdir(parents=True)
        self.settings_file.write_text(f"[MainProfile]\ncurrentModule=3\n{settings}")
        if prefix:
            for path in (self.home, *self.home.rglob("*")):
                os.chown(path, NOBODY, NOBODY)
        environment = dict(os.environ, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / "config"),
                           XDG_RUNTIME_DIR=str(self.home), QT_QPA_PLATFORM="xcb")
        environment.pop("SESSION_MANAGER", None)

        def prepare():
            for number in SIGNALS:
                signal.signal(number, signal.SIG_IGN if number in ignored else signal.SIG_DFL)

        self.home.chmod(0o700)  # as the runtime folder must be
        self.stderr = tempfile.TemporaryFile("w+")
        self.process = subprocess.Popen([*prefix, program, *arguments], env=environment,
                                        cwd=self.home, stderr=self.stderr, preexec_fn=prepare)
        self.window = wait_for("the window", lambda: windows("Dezimo \\[dB"))[0]
        use("windowfocus", "--sync", self.window)

    def type_without_finishing(self, display):
        """The last keys copy the field, so all keys have arrived as soon as something is copied."""
        use("type", "10dBm")
        use("key", "Tab")
        use("type", "0dBm")
        use("key", "ctrl+a", "ctrl+c")
        wait_for("what was typed", display.clipboard_has_an_owner)

    def stored(self):
        return self.settings_file.read_text().splitlines()

    def end(self, *signals):
        """Ends the program by the signals and returns its standard error."""
        for number in signals:
            self.process.send_signal(number)
        status = self.process.wait(PATIENCE_SECONDS)
        self.stderr.seek(0)
        said = self.stderr.read()
        assert status == 0, f"exit status {status}, said: {said}"
        return said

    def tidy(self):
        self.process.kill()
        self.process.wait()
        self.stderr.close()
        shutil.rmtree(self.home)


def nothing(_session):
    pass


def about_window(_session):
    use("key", "F10", "Left", "Down", "Return")  # Help is the last menu
    wait_for("the About window", lambda: windows("Information about"))


def file_menu(_session):
    wait_for_another_window("the menu", "F10")


def menu_of_the_field(_session):
    wait_for_another_window("the menu of the field", "Menu")


def open_dialog(_session):
    use("key", "ctrl+o")
    wait_for("the dialog", lambda: windows("Open dB"))


def question_above_the_save_dialog(session):
    """Opens two dialogs, the upper one asking whether to replace the settings."""
    use("key", "ctrl+s")
    dialog = wait_for("the dialog", lambda: windows("Save dB"))[0]
    use("windowfocus", "--sync", dialog)
    use("key", "ctrl+a")
    use("type", str(session.settings_file))
    wait_for_another_window("the question", "Return")


def ended_session(display, program, opened, signals):
    session = Session(program)
    try:
        session.type_without_finishing(display)
        opened(session)
        said = session.end(*signals)
        assert not said, f"said: {said}"
        missing = [line for line in FINISHED if line not in session.stored()]
        assert not missing, f"{missing} missing in {session.stored()}"
    finally:
        session.tidy()


def ignored_signal(display, program):
    """Ignores SIGHUP as nohup does, so that the program survives its terminal."""
    session = Session(program, ignored=[signal.SIGHUP])
    try:
        session.process.send_signal(signal.SIGHUP)
        session.type_without_finishing(display)
        open_dialog(session)
        assert not session.end(signal.SIGTERM)
        assert FINISHED[-1] in session.stored(), session.stored()
    finally:
        session.tidy()


def unreadable_file(_display, program, name, prepare, reason, as_nobody=False):
    """The window opens, the values stay, and one line says why."""
    prefix = []
    if as_nobody and os.geteuid() == 0:
        prefix = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        if prefix:  # the user nobody may have no access to the program's folder
            program = shutil.copy(program, folder)
            counters = pathlib.Path(folder) / "counters"  # of a build that counts lines
            counters.mkdir()
            counters.chmod(0o777)
            prefix = ["env", f"GCOV_PREFIX={counters}", *prefix]
        file = pathlib.Path(folder) / name
        prepare(file)
        session = Session(program, str(file), settings="[DbConverterProfile]\np1=5W\n", prefix=prefix)
        try:
            said = session.end(signal.SIGTERM)
            shown = re.sub(r"\n", "?", str(file))
            assert said == f"dezimo: cannot open {shown}: {reason}\n", f"said: {said}"
            assert "p1=5W" in session.stored(), session.stored()
        finally:
            session.tidy()


def rows():
    """Each row is a sentence, a function that checks it, and the function's arguments."""
    ends = [
        *((number.name, opened, [number])
          for opened in (nothing, about_window, open_dialog, file_menu) for number in SIGNALS),
        ("SIGTERM", menu_of_the_field, [signal.SIGTERM]),
        ("SIGTERM", question_above_the_save_dialog, [signal.SIGTERM]),
        *((what, opened, numbers)
          for opened in (nothing, open_dialog)
          for what, numbers in (("SIGTERM twice", [signal.SIGTERM] * 2),
                                ("all signals three times", SIGNALS * 3))),
    ]
    for what, opened, numbers in ends:
        yield f"{what}, open above: {opened.__name__.replace('_', ' ')}", ended_session, opened, numbers
    yield "SIGHUP stays ignored", ignored_signal
    missing = "No such file or directory"
    yield "a missing file", unreadable_file, "a.dezimo", nothing, missing
    yield "a missing file of two lines", unreadable_file, "a\nb.dezimo", nothing, missing
    yield "a folder", unreadable_file, "a.dezimo", os.mkdir, "It is a folder"
    yield "a pipe", unreadable_file, "a.dezimo", os.mkfifo, "It is not a regular file"
    without_rights = lambda path: (path.write_text("[DbConverterProfile]\n"), path.chmod(0))
    yield "no rights", unreadable_file, "a.dezimo", without_rights, "Permission denied", True


def main():
    os.environ["LC_ALL"] = "C.UTF-8"  # the system's reasons are in its own language
    for variable in ("WAYLAND_DISPLAY", "QT_SCALE_FACTOR", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
        os.environ.pop(variable, None)
    failed = 0
    for name, check, *arguments in rows():
        display = Display()  # with an empty clipboard
        try:
            check(display, os.path.abspath(sys.argv[1]), *arguments)
            print(f"PASS   {name}", flush=True)
        except AssertionError as error:
            failed += 1
            print(f"FAIL   {name}: {error}", flush=True)
        finally:
            display.end()
    return 1 if failed else 0


if __name__ == "__main__":
    raise SystemExit(main())
