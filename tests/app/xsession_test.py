# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""xsession_test.py linux|wine PROGRAM CLICKPOSITIONS: looking changes nothing, editing does.

Every session starts from values that were typed and calculated at four digits. When the program has
ended by itself, the test compares its state value by value.
"""

import dataclasses
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from xsession import (
    MODULES,
    Linux,
    Session,
    Wine,
    activate,
    size_of,
    values_of,
    visible_windows,
    wait_for,
    window_named,
    xdotool,
)

DBM, VOLTAGE, UNIT, DB, VSWR = range(len(MODULES))
TYPED = (pathlib.Path(__file__).parent / "data/typed-at-four-digits.dezimo").read_text()
# More than there are on any page.
ALL_ROUND = 30
SAVED = "saved.dezimo"


# Ways of looking. None of them types anything into a field.


def nothing(session):
    pass


def visit_all_pages(session):
    here = session.page
    for page in range(len(MODULES)):
        session.show(page)
    session.show(here)


def tab_all_round(session):
    session.press(*["Tab"] * ALL_ROUND)
    session.press(*["shift+Tab"] * ALL_ROUND)


def click_into_every_field(session):
    for _ in session.click_each("LineEdit"):
        pass


def open_menus(session):
    session.open_menu()
    for _ in range(3):
        session.turn_menu("Left")
    session.press("Escape", "Escape")
    session.wait_for_windows(1)


def open_unit_lists(session):
    for _ in session.click_each("ComboBox"):
        session.wait_for_windows(2)
        session.press("Escape")
        session.wait_for_windows(1)


def turn_the_wheel_over_unit_lists(session):
    """Turns the wheel as if to scroll the page in a small window."""
    for page, name in session.positions:
        if page == session.page and name in ("tab0", "tab1"):
            session.click(name)
        elif page == session.page and name.endswith("ComboBox"):
            session.turn_wheel_over(name)


def minimize(session):
    xdotool("windowminimize", "--sync", session.window)
    session.activate()


def activate_another_window(session):
    other = subprocess.Popen(["xev", "-name", "Another"], stdout=subprocess.DEVNULL)
    activate(window_named("^Another$"))
    other.kill()
    other.wait()
    session.activate()


def resize(session):
    xdotool("windowsize", "--sync", session.window, 1100, 720)


def expand_the_list(session):
    session.click("changeWindowModeButton", page=-1)


def open_about(session):
    session.open_menu()
    session.turn_menu("Left")
    session.press("Down", "Return")
    activate(window_named("^Information about Dezimo$"))
    session.press_until("Escape", "one window", lambda: session.has_windows(1))


def choose_two_digits(session):
    session.open_menu()
    # Qt 6.8 sends the keys to the wrong menu for good if the second opens within a few milliseconds.
    session.turn_menu("Right")
    session.press("Down", "Right")
    session.wait_for_windows(3)
    session.press("Home", "Down", "Down", "Return")
    session.wait_for_windows(1)


def save(session):
    name = "^Save dB Calulation"
    session.press_until("ctrl+s", "a dialog", lambda: visible_windows("--name", name))
    activate(window_named(name))
    session.press("ctrl+a")
    file = session.folder / SAVED
    session.type(session.host.name_for_dialog(file))
    session.press("Return")
    wait_for("the saved file", file.exists)
    session.wait_for_windows(1)
    # After a dialog of Windows itself no window is in front.
    session.activate()


# Ways share a session if their unwanted edits would look alike.
LOOKS = {
    "started and quit": [nothing],
    "every other page visited and back": [visit_all_pages],
    "Tab and Shift+Tab all round": [tab_all_round],
    "the wheel over the unit lists, a click into every field, the menus, the unit lists": [
        turn_the_wheel_over_unit_lists,
        click_into_every_field,
        open_menus,
        open_unit_lists,
    ],
    "minimized and restored, another window and back": [minimize, activate_another_window],
    "About, the list expanded, resized": [open_about, expand_the_list, resize],
    "two digits chosen, saved": [choose_two_digits, save],
}
# What a look should change. The change proves that the look happened.
MEANT = {
    expand_the_list: {"MainProfile/windowMode": "1"},
    choose_two_digits: {"MainProfile/decimalPlaces": "2"},
}


@dataclasses.dataclass
class Edit:
    """A text that is typed into a field of a page, and the values that result from it."""

    page: int
    field: str
    text: str
    changed: dict

    def make(self, session):
        if session.page != self.page:
            session.show(self.page)
        session.enter(self.field, self.text)


EDITS = [
    Edit(
        UNIT,
        "wattLineEdit",
        "25",
        {
            "UnitConverterProfile/linPower": "25",
            "UnitConverterProfile/logPower": "13.98",  # 10*log10(25)
            "UnitConverterProfile/linVoltage": "1118",  # sqrt(25 mW * 50 ohms)
            "UnitConverterProfile/logVoltage": "0.97",  # 20*log10(1.118)
        },
    ),
    Edit(
        DB,
        "p1LineEdit",
        "20W",
        {
            "DbConverterProfile/p1": "20W",
            "DbConverterProfile/pRatio": "6.667",  # 20 / 3
            "DbConverterProfile/pDb": "8.24",
        },
    ),
    Edit(
        VSWR,
        "arLineEdit",
        "20",
        {
            "VswrConverterProfile/ar": "20",
            "VswrConverterProfile/r": "0.1",
            "VswrConverterProfile/r2": "1",
            "VswrConverterProfile/vswr": "1.222",  # 1.1 / 0.9
            "VswrConverterProfile/am": "0.04",  # -10*log10(0.99)
        },
    ),
]

# Ways of leaving a field that is being edited.


def press_tab(session):
    session.press("Tab")


def click_on_another_field(session):
    session.click({UNIT: "dbmLineEdit", DB: "pDbLineEdit", VSWR: "rLineEdit"}[session.page])


def show_another_page(session):
    session.show(DBM)


LEAVES = {
    "Tab": press_tab,
    "a click on another field": click_on_another_field,
    "another page": show_another_page,
    "another window": activate_another_window,
    "a menu": open_menus,
}
ENDS = {"Quit": Session.quit, "the window manager": Session.close}


def type_all(session):
    """Types the values with which every other session starts."""
    session.show(DBM)
    session.enter("inputLineEdit", "12.34dBm+3dBm")
    session.show(VOLTAGE)
    session.enter("inputLineEdit", "1.5V+250mV")
    session.show(UNIT)
    session.enter("wattLineEdit", "12.34")
    session.show(DB)
    session.enter("p1LineEdit", "10W")
    session.enter("p2LineEdit", "3W")
    session.click("tab1")
    session.enter("v1LineEdit", "2.5")
    session.enter("v2LineEdit", "0.7")
    session.click("tab0")
    session.show(VSWR)
    session.enter("arLineEdit", "14")
    session.enter("forwardPowerLineEdit", "12.34")
    session.click("tab1")
    session.enter("reflectedVoltageLineEdit", "1.234")
    session.click("tab0")


class Table:
    """Runs the sessions of the test, prints what is wrong with them, and counts those that fail."""

    def __init__(self, host, program, folder, positions):
        self.host = host
        self.program = program
        self.folder = folder
        self.positions = positions
        self.wrong = 0

    def row(self, name, page, steps, changed, start=TYPED, end=Session.quit):
        """Runs one session: it starts on a page, takes the steps and ends. Then the state must be
        as it was typed, except for what is changed."""
        self.host.write_state(start.replace("currentModule=0", f"currentModule={page}"))
        session = Session(self.host, self.program, self.folder, self.positions, page)
        try:
            session.appear()
            for step in steps:
                step(session)
            end(session)
            found = self.differences(changed)
        except (AssertionError, subprocess.TimeoutExpired) as error:
            found = [str(error)]
        finally:
            session.kill()
            (self.folder / SAVED).unlink(missing_ok=True)
        print(f"{MODULES[page]}: {name}: {', '.join(found) or 'as expected'}", flush=True)
        self.wrong += bool(found)

    def differences(self, changed):
        """The differences in the state, and in the file if one was saved."""
        expected = {**values_of(TYPED), **changed}
        found = differences(expected, self.host.read_state(), changed)
        saved = self.folder / SAVED
        if saved.exists():
            in_file = differences(expected, values_of(saved.read_text()), changed)
            found += [f"saved {difference}" for difference in in_file]
        return found


def differences(expected, found, named):
    """The values that are not as expected. The window's place, size, mode and page are compared
    only if they are named."""
    window = {"windowPosition", "windowSize", "windowMode", "currentModule"}
    unasked = {f"MainProfile/{key}" for key in window} - named.keys()
    return [
        f'{key} "{expected.get(key)}" -> "{found.get(key)}"'
        for key in sorted((expected.keys() | found.keys()) - unasked)
        if expected.get(key) != found.get(key)
    ]


def is_twice_the_smallest_size(session):
    expected = [2 * 600, 2 * 413]
    wait_for(f"a window of {expected}", lambda: size_of(session.window) == expected)


def draw_on_a_dense_screen(table):
    """One and a half of the usual density is rounded up, whatever the Qt."""
    os.environ["QT_FONT_DPI"] = "144"
    start = re.sub(r"(windowSize=@Size).*", r"\1(600 413)", TYPED)
    table.row("at 144 dots per inch", DBM, [is_twice_the_smallest_size], {}, start=start)
    del os.environ["QT_FONT_DPI"]


def paste_by_the_mouse(session):
    session.click("wattLineEdit", button=2)


def paste_by_keys(session):
    session.click("wattLineEdit")
    session.press("ctrl+shift+Insert")


def select_by_a_double_click(session):
    session.click("impedanceLineEdit", times=2)


def bring_what_is_selected(table):
    """It comes in where the mouse was pressed: in the middle of the field, which is in front of a
    short text at its right end."""
    changed = {
        "UnitConverterProfile/linPower": "5012.34",
        "UnitConverterProfile/logPower": "37.00",  # 10*log10(5012)
        "UnitConverterProfile/linVoltage": "1.583E+04",  # sqrt(5.012 W * 50 ohms) in mV
        "UnitConverterProfile/logVoltage": "23.99",  # 20*log10(15.83)
    }
    for name, paste in {"the mouse": paste_by_the_mouse, "keys": paste_by_keys}.items():
        steps = [select_by_a_double_click, paste]
        table.row(f"a selected value pasted by {name}", UNIT, steps, changed)


def all_changes(parts):
    return {key: value for part in parts for key, value in part.items()}


def run(table, every_page, few_pages):
    defaults = TYPED[TYPED.index("[MainProfile]") : TYPED.index("[UnitConverterProfile]")]
    table.row("everything typed", DBM, [type_all], {}, start=defaults)
    for name, steps in LOOKS.items():
        meant = all_changes(MEANT.get(step, {}) for step in steps)
        for page in every_page if steps == [nothing] else few_pages:
            table.row(name, page, steps, meant)
    for name, leave in LEAVES.items():
        steps = [step for edit in EDITS for step in (edit.make, leave)]
        table.row(f"edits left by {name}", UNIT, steps, all_changes(edit.changed for edit in EDITS))
    for name, end in ENDS.items():
        for edit in EDITS:
            if edit.page in few_pages:
                table.row(f"an edit left by {name}", edit.page, [edit.make], edit.changed, end=end)


def read_positions(text):
    positions = {}
    for line in text.splitlines():
        page, name, x, y = line.split()
        positions[int(page), name] = int(x), int(y)
    return positions


def main(system, program, click_positions):
    host = {"linux": Linux, "wine": Wine}[system]()
    asked = subprocess.run(
        host.command(click_positions), check=True, stdout=subprocess.PIPE, text=True
    )
    with tempfile.TemporaryDirectory() as folder:
        table = Table(host, program, pathlib.Path(folder), read_positions(asked.stdout))
        every_page = range(len(MODULES))
        # A session under Wine takes several times as long.
        run(table, every_page, every_page if system == "linux" else [UNIT, VSWR])
        if system == "linux":
            draw_on_a_dense_screen(table)
            bring_what_is_selected(table)
    if table.wrong:
        sys.exit(f"{table.wrong} sessions are not as expected")


if __name__ == "__main__":
    main(*sys.argv[1:])
