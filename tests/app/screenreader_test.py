# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""screenreader_test.py PROGRAM: calculates in every module through roles and names alone.

Nothing here uses an object name, a position or a key. The test finds each control as the user of a
screen reader does, enters texts and does actions over AT-SPI, and reads the results there.
"""

import subprocess
import sys
import tempfile
import time

import pyatspi
from gi.repository import GLib

# Qt 6.8 complains whenever one of its own labels lays out markup.
OF_QT_ITSELF = "qt.accessibility.atspi: Received text event for invalid interface.\n"
PATIENCE_SECONDS = 60
PAUSE_SECONDS = 0.02


def wait_for(what, condition):
    """Asks the condition until it is true or the patience ends, and returns its value."""
    deadline = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < deadline:
        while GLib.MainContext.default().iteration(False):
            pass  # each step delivers an announcement
        try:
            value = condition()
        except GLib.Error:
            value = None  # the bus or the program is not there yet, or has changed meanwhile
        if value:
            return value
        time.sleep(PAUSE_SECONDS)
    raise AssertionError(f"waited in vain for {what}")


def role_of(accessible):
    """The name of its role. Older versions of AT-SPI call a button a push button."""
    role = accessible.getRoleName()
    return "button" if role == "push button" else role


def visible_below(root):
    """Every accessible that is showing, breadth first. The lists of closed boxes are left out."""
    rest = [root]
    while rest:
        accessible = rest.pop(0)
        if accessible is None:
            continue
        yield accessible
        if role_of(accessible) != "combo box":
            rest += [accessible.getChildAtIndex(i) for i in range(accessible.childCount)]


def first_program(desktop):
    """The program, if it has registered by now. The cache would give the answer from before."""
    desktop.clear_cache()
    return desktop.childCount and desktop.getChildAtIndex(0)


class Person:
    """A person who uses the program without seeing it."""

    def __init__(self, program):
        self.program = program
        self.announced = []

    def listen(self):
        pyatspi.Registry.registerEventListener(self.hear, "object:text-changed:insert")

    def hear(self, event):
        self.announced.append((event.source.name, str(event.any_data)))

    def find(self, role, name):
        def look():
            found = [
                accessible
                for accessible in visible_below(self.program)
                if role_of(accessible) == role
                and accessible.name == name
                and (role == "menu item" or accessible.getState().contains(pyatspi.STATE_SHOWING))
            ]
            assert len(found) < 2, f"{len(found)} times {role} {name}"
            return found and found[0]

        return wait_for(f"{role} {name}", look)

    def act(self, role, name, action="Press"):
        actions = self.find(role, name).queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        assert action in names, f"{role} {name} offers {names}"
        actions.doAction(names.index(action))

    def open(self, module):
        self.act("list item", module, "Toggle")
        wait_for(f"the page {module}", lambda: self.window().name == f"Dezimo [{module}]")

    def window(self):
        return self.program.getChildAtIndex(0)

    def type(self, field, text):
        self.find("text", field).queryEditableText().setTextContents(text)

    def enter(self, field, text):
        self.type(field, text)
        self.act("text", field)

    def press(self, *keys):
        for key in keys:
            self.act("button", key)

    def choose_next(self, box):
        self.act("combo box", box, "Increase")

    def expect(self, name, text, role="text"):
        accessible = self.find(role, name)

        def read():
            return accessible.queryText().getText(0, -1)

        try:
            wait_for(f"{name}: {text}", lambda: read() == text)
        except AssertionError as error:
            raise AssertionError(f'{error}, it is "{read()}"') from None

    def expect_unit(self, name, text):
        self.expect(name, text, role="combo box")


def use_the_dbm_calculator(person):
    person.open("dBm Calculator")
    person.type("Expression", "3 dBm + 3 dBm")
    person.expect("Result", "3.00")  # the mean of two incoherent powers
    person.expect_unit("Result unit", "dBm")
    person.choose_next("Result unit")
    person.expect("Result", "2")  # 10^0.3 mW = 1.995 mW
    person.expect_unit("Result unit", "mW")
    person.choose_next("Calculation mode")
    person.expect("Result", "3.99")  # in phase, 3 dB more
    person.press("Clear")
    person.press("1", "0", "dBm", "Minus", "4", "Decimal point", "5", "Backspace", "0", "dB")
    person.expect("Expression", "10dBm-4.0dB")
    wait_for("the announced result", lambda: any(name == "Result" for name, _ in person.announced))
    person.press("Plus")
    person.expect("Result", "invalid input")


def use_the_voltage_calculator(person):
    person.open("Voltage Calculator")
    person.type("Expression", "1 V + 1 V")
    person.expect("Result", "1.41E+03")  # sqrt(1^2 + 1^2) V, in mV
    person.choose_next("Result unit")
    person.expect_unit("Result unit", "V")
    person.expect("Result", "1.41")
    person.choose_next("Calculation mode")
    person.expect("Result", "2")
    person.find("spin button", "Phase in degrees").queryValue().currentValue = 90
    person.expect("Result", "1.41")


def use_the_unit_converter(person):
    person.open("Unit Converter")
    person.enter("Logarithmic power", "30")
    person.expect("Linear power", "1E+03")  # mW
    person.expect("Linear voltage", "7.07E+03")  # sqrt(1 W * 50 ohms) V, in mV
    person.expect("Logarithmic voltage", "16.99")  # 20*log10(7.07) dBV
    person.choose_next("Linear voltage unit")
    person.expect_unit("Linear voltage unit", "V")
    person.expect("Linear voltage", "7.07")
    person.act("radio button", "Vpp", "Toggle")
    person.expect("Linear voltage", "20")  # 2 * sqrt(2) times as much
    vpp = person.find("radio button", "Vpp")
    assert vpp.getState().contains(pyatspi.STATE_CHECKED), "Vpp is not checked"


def use_the_db_converter(person):
    person.open("dB Converter")
    person.enter("Power 1", "10 W")
    person.enter("Power 2", "1 W")
    person.expect("Power ratio", "10")
    person.expect("Power ratio in dB", "10.00")
    person.act("page tab", "Voltages")
    person.enter("Voltage 1", "10")
    person.enter("Voltage 2", "1")
    person.expect("Voltage ratio", "10")
    person.expect("Voltage ratio in dB", "20.00")


def use_the_vswr_converter(person):
    person.open("VSWR Converter")
    person.enter("Voltage standing wave ratio", "3")
    person.expect("Reflection coefficient", "0.5")  # (3 - 1) / (3 + 1)
    person.expect("Reflected power in percent", "25")
    person.expect("Mismatch loss in dB", "1.25")  # -10*log10(0.75)
    person.enter("Forward power", "10")
    person.expect("Reflected power", "3.98")  # 10 dBm - 6.02 dB
    person.expect("Absorbed power", "8.75")  # 10 dBm - 1.25 dB


def use_the_menus(person):
    person.act("menu item", "Load Defaults")
    person.expect("Voltage standing wave ratio", "")
    person.act("menu item", "Quit")


def main():
    # Asking for the desktop starts the accessibility bus and its registry before the program.
    desktop = pyatspi.Registry.getDesktop(0)
    wait_for("the registry", lambda: desktop.name == "main")
    with tempfile.TemporaryFile("w+") as stderr:
        process = subprocess.Popen([sys.argv[1]], stderr=stderr)
        try:
            person = Person(wait_for("the program", lambda: first_program(desktop)))
            wait_for("the window", person.window)
            person.listen()
            use_the_dbm_calculator(person)
            use_the_voltage_calculator(person)
            use_the_unit_converter(person)
            use_the_db_converter(person)
            use_the_vswr_converter(person)
            use_the_menus(person)
            status = process.wait(PATIENCE_SECONDS)
            assert status == 0, f"exit status {status}"
        finally:
            process.kill()
            process.wait()
            stderr.seek(0)
            said = [line for line in stderr if line != OF_QT_ITSELF]
    assert not said, f"the program wrote:\n{''.join(said)}"


main()
