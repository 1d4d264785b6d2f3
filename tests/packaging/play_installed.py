"""Plays a program that is installed for all users as a person does, through the accessibility bus.

    play_installed.py PROGRAM

A brainstorm, an analysis with mappings made in the menus of its lists, both reports. Run it as an
ordinary user; the modules accessibility_test and names_test have to be found.
"""

import os
import pathlib
import sys
import tempfile
import time

import accessibility_test as bus
from accessibility_test import Atspi, acknowledge, act, children, expect, has, shown, wait_for
from names_test import choose

KEY_UP, KEY_DOWN, KEY_RETURN = 0xFF52, 0xFF54, 0xFF0D  # X's symbols
STATEMENTS = {"Strength": "Own fleet", "Weakness": "No service at night",
              "Opportunity": "Shops deliver at once", "Threat": "Rain"}
SEVERAL = {"Strength": "Strengths", "Weakness": "Weaknesses", "Opportunity": "Opportunities",
           "Threat": "Threats"}


def choose_by_keys(way):
    """In what has popped up, and so takes all keys."""
    time.sleep(1)  # nothing on the bus says that it takes them by now
    for key in (way, KEY_RETURN):
        Atspi.generate_keyboard_event(key, None, Atspi.KeySynthType.SYM)


class Installed(bus.Program):
    """Starts what is there, in the user's own home, in place of a copy of it."""

    def __init__(self, command, sound_server=None):
        self.root = pathlib.Path(tempfile.mkdtemp())
        self.home = pathlib.Path.home()
        self.errors = self.root / "errors"
        self.folder = pathlib.Path(command).resolve().parent
        self.command = command
        self.environment = dict(os.environ, PATH=f"{self._opener()}:{os.environ['PATH']}",
                                QT_LOGGING_RULES="qt.accessibility.*=false",
                                PULSE_SERVER=sound_server or f"unix:{self.root}/no-server",
                                QT_QPA_PLATFORM="xcb",
                                QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self._start()

    def choose_first_in_menu(self, row):
        """With the right mouse button and two keys, as the bus presses them: a menu that pops up
        is no part of the window."""
        place = Atspi.Component.get_extents(row, Atspi.CoordType.SCREEN)
        Atspi.generate_mouse_event(place.x + place.width // 2, place.y + place.height // 2, "b3c")
        choose_by_keys(KEY_DOWN)


def brainstorm(program):
    program.press("Brainstorm")
    program.wait_for_label("Step 1 of 5")
    program.write("Please enter your name", "Dana Reyes")
    act(program.find("radio button", "Marketing Planning"), "Toggle")
    program.press("Next>>")
    for step, kind in enumerate(STATEMENTS, 2):
        bus.press_until(program, "Next>>",
                        lambda: bus.has_label(program, f"Step {step} of 5: {SEVERAL[kind]}"))
        program.write(f"New {kind}", STATEMENTS[kind])
        program.press("Add")
        program.wait_for_rows(f"{kind} list", 1)
    bus.press_until(program, "Next>>", lambda: has(program, "push button", "Save..."))
    program.press("Save...")
    choose(program, "Save", "dana")
    acknowledge(program, "message after saving", "Your brainstorming session completed.")


def analyze(program):
    program.press("Analyze")
    program.wait_for_label("Step 1 of 7")
    program.press("Add")
    choose(program, "Open", "dana")
    program.wait_for_rows("Open Brainstorm Files", 1)
    for step in range(2, 8):
        program.press("Next>>")
        program.wait_for_label(f"Step {step} of 7")
        if step == 6:
            map_onto(program, "Opportunities", "Strengths")
        elif step == 7:
            map_onto(program, "Threats", "Weaknesses")
    program.press("Next>>")
    choose(program, "Save", "team")
    acknowledge(program, "message after saving", "Your analyze session completed.")


def map_onto(program, parents, picking):
    act(next(children(program.find("list", parents))), "Toggle")
    program.choose_first_in_menu(next(children(program.find("list", picking))))
    program.wait_for_rows(parents, 2)


def choose_format(program, name):
    formats = wait_for(lambda: next((n for n in shown(program.window())
                                     if n.get_role_name() == "combo box"), None), "the formats")
    if formats.get_name() != name:
        act(formats, "ShowMenu")
        program.find("list item", name)
        choose_by_keys(KEY_UP)
        wait_for(lambda: formats.get_name() == name, f"the choice of {name}")


def report(program, name, work_folder):
    program.press("Reports")
    choose_format(program, name)
    program.press("Browse...")
    choose(program, "Open", str(work_folder / "team.aze"))
    program.press("OK")


def main():
    if bus.INSIDE not in os.environ:
        sys.exit(bus.on_a_desktop_of_its_own())
    with Installed(sys.argv[1]) as program:
        own = program.home / ".local" / "share" / "Orvanta" / "Orvanta"
        work_folder = program.home / "Documents" / "My SWOT"
        brainstorm(program)
        analyze(program)
        report(program, "HTML Format", work_folder)
        program.wait_for_opened((own / "System" / "report.htm").as_uri())
        page = (own / "System" / "report.htm").read_text()
        report(program, "RTF Format", work_folder)
        choose(program, "Save", str(work_folder / "team"))
        program.wait_for_opened((work_folder / "team.rtf").as_uri())
        document = (work_folder / "team.rtf").read_text()
        for statement in STATEMENTS.values():
            expect(statement in page, f'the web page says "{statement}"')
            expect(statement in document, f'the document says "{statement}"')
        program.press("Overview")
        program.wait_for_opened(program.copy_of("orvanta-overview"))
        program.press("Quit Orvanta")
        program.wait_for_end()
    sys.exit(1 if bus.failures else 0)


if __name__ == "__main__":
    main()
