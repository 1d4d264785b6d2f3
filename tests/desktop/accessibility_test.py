"""Plays the program as an assistive program does: through the accessibility bus alone.

    accessibility_test.py PROGRAM DATA_FOLDER

Brings its own display and bus along, so that it neither meets nor disturbs those of a desktop.
Walks every screen and dialog, looks for controls that have no name or none of their own, presses
buttons through their accessible action, sets texts and reads rows. The program must end by itself
and leave nothing on standard error, though there is no sound to be had here.
"""

import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

warnings.simplefilter("ignore", DeprecationWarning)  # the bindings warn of themselves

INSIDE = "ORVANTA_ACCESSIBILITY_TEST"
PATIENCE = 60  # seconds until what should come up counts as missing
# What only holds others or belongs to a named control beside it; cells may be empty.
NAMELESS = {"filler", "frame", "layered pane", "panel", "scroll bar", "separator", "split pane",
            "table cell", "tool bar", "unknown"}

failures = []


def expect(condition, text):
    if not condition:
        failures.append(text)
        print("FAILED:", text, flush=True)


def wait_for(look, what):
    """What look() finds as soon as it finds something; the test ends if nothing comes up."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = look()
        except GLib.Error:  # it went while it was being looked at
            found = None
        if found:
            return found
        time.sleep(0.02)
    raise SystemExit(f"FAILED: {what} did not come up")


def children(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child:
            yield child


def shown(node):
    """All that a person sees within a node, itself included."""
    if not node.get_state_set().contains(Atspi.StateType.SHOWING):
        return
    yield node
    for child in children(node):
        yield from shown(child)


def clip():
    """A movie that starts a second of sound."""
    form = 0x3E  # not packed, 44,100 samples of 16 bits a second, one channel
    definition = struct.pack("<HBI", 1, form, 44100) + bytes(88200)
    tags = struct.pack("<HI", 14 << 6 | 0x3F, len(definition)) + definition
    tags += struct.pack("<HHB", 15 << 6 | 3, 1, 0) + struct.pack("<H", 0)
    body = struct.pack("<BHH", 0, 0, 1) + tags
    return b"FWS\x04" + struct.pack("<I", 8 + len(body)) + body


class Program:
    """The running program, seen through the bus."""

    def __init__(self, binary, data, home="home", app="app", documents=None):
        self.root = pathlib.Path(tempfile.mkdtemp())
        self.home = self.root / home
        self.errors = self.home / "errors"
        self.folder = folder = self.home / app
        (folder / "Sounds").mkdir(parents=True)
        (folder / "Sounds" / "gbs_S1.swf").write_bytes(clip())
        shutil.copy(binary, folder)
        for file in pathlib.Path(data).glob("*.txt"):
            shutil.copy(file, folder)
        shutil.copytree(pathlib.Path(binary).parent / "site", folder / "site")
        self.home.chmod(0o700)
        if documents:
            (self.home / documents).mkdir()
            (self.home / "user-dirs.dirs").write_text(f'XDG_DOCUMENTS_DIR="$HOME/{documents}"\n')
        self.command = str(folder / pathlib.Path(binary).name)
        self.environment = dict(os.environ, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home),
                                XDG_DATA_HOME=str(self.home), XDG_RUNTIME_DIR=str(self.home),
                                PATH=f"{self._opener()}:{os.environ['PATH']}",
                                PULSE_SERVER=f"unix:{self.home}/no-server",
                                QT_LOGGING_RULES="qt.accessibility.*=false",  # see __exit__
                                QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self._start()

    def _start(self):
        with open(self.errors, "wb") as errors:
            self.process = subprocess.Popen([self.command], env=self.environment, stderr=errors)

    def __enter__(self):
        try:
            self.application = wait_for(self._on_the_bus, "the program")
            # What this library keeps is out of date after each press.
            self.application.set_cache_mask(Atspi.Cache.NONE)
        except BaseException:
            self.__exit__()
            raise
        return self

    def restart(self):
        self.process.kill()
        self.process.wait()
        wait_for(lambda: not self._on_the_bus(), "the end on the bus")
        self._start()
        self.__enter__()

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        # Of rows that go between two questions of this test Qt warns, in part without a category.
        errors = [line for line in self.errors.read_text().splitlines()
                  if not line.startswith("QAccessible")]
        expect(not errors, f"standard error says {errors}")
        shutil.rmtree(self.root)

    def _opener(self):
        """Takes the place of the desktop's programs and writes down what they are to open."""
        folder = self.root / "bin"  # the toolkit takes no blank in its path
        folder.mkdir()
        opener = folder / "xdg-open"
        opener.write_text(f'#!/bin/sh\necho "$1" >>"{self.root}/opened"\n')
        opener.chmod(0o755)
        return folder

    def wait_for_opened(self, target):
        """The last that was handed to the desktop."""
        log = self.root / "opened"
        wait_for(lambda: log.exists() and log.read_text().splitlines()[-1:] == [target],
                 f"the opening of {target}")

    def copy_of(self, page):
        """The address of the installed copy of a page."""
        return (self.folder / "site" / page / "index.html").as_uri()

    def lose_copies(self):
        shutil.rmtree(self.folder / "site")

    def wait_for_end(self):
        try:
            expect(self.process.wait(PATIENCE) == 0, f"it ended with {self.process.returncode}")
        except subprocess.TimeoutExpired:
            expect(False, "the program does not end")

    @staticmethod
    def _on_the_bus():
        return next((a for a in children(Atspi.get_desktop(0)) if a.get_name() == "Orvanta"), None)

    def windows(self):
        return [w for w in children(self.application) if next(shown(w), None)]

    def window(self):
        """The window in front: a dialog or else the main window."""
        return self.windows()[-1]

    def find(self, role, name):
        def look():
            for window in reversed(self.windows()):
                for node in shown(window):
                    if node.get_role_name() == role and node.get_name() == name:
                        return node
            return None
        return wait_for(look, f'the {role} "{name}"')

    def waits_for_gone(self, role, name):
        wait_for(lambda: not any(n.get_role_name() == role and n.get_name() == name
                                 for w in self.windows() for n in shown(w)),
                 f'the end of the {role} "{name}"')

    def press(self, name, role="push button"):
        act(self.find(role, name), "Press")

    def write(self, name, text):
        box = self.find("text", name)
        expect(box.set_text_contents(text), f'the text "{name}" takes no text')
        wait_for(lambda: Atspi.Text.get_text(box, 0, -1) == text, f'the text in "{name}"')

    def rows(self, name):
        """Name and description of the rows of a list."""
        return [(row.get_name(), row.get_description()) for row in children(self.find("list", name))]

    def wait_for_rows(self, name, count):
        wait_for(lambda: len(self.rows(name)) == count, f'{count} rows in "{name}"')

    def wait_for_label(self, start):
        wait_for(lambda: has_label(self, start), start)

    def check_names(self, screen):
        """Finds the controls of the window in front that say nothing of themselves."""
        nodes = list(shown(self.window()))
        expect(len(nodes) > 3, f"{screen} is empty")
        expect(nodes[0].get_name().strip(), f"{screen}: the window has no title")
        for node in nodes[1:]:
            role = node.get_role_name()
            expect(role in NAMELESS or node.get_name().strip(),
                   f"{screen}: a {role} has no name, at {place_of(node)}")
            enabled = node.get_state_set().contains(Atspi.StateType.ENABLED)
            expect(role != "push button" or not enabled or Atspi.Action.get_n_actions(node) > 0,
                   f'{screen}: the button "{node.get_name()}" can not be pressed')
        buttons = [n.get_name() for n in nodes if n.get_role_name() == "push button"]
        twins = {name for name in buttons if buttons.count(name) > 1}
        expect(not twins, f"{screen}: several buttons are called {twins}")
        print(f"{screen}: {len(nodes)} controls and rows", flush=True)


def place_of(node):
    extents = Atspi.Component.get_extents(node, Atspi.CoordType.WINDOW)
    return extents.x, extents.y, extents.width, extents.height


def labels_of(node):
    return [relation.get_target(i).get_name() for relation in node.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
            for i in range(relation.get_n_targets())]


def act(node, action):
    for i in range(Atspi.Action.get_n_actions(node)):
        if Atspi.Action.get_action_name(node, i) == action:
            expect(Atspi.Action.do_action(node, i), f'"{node.get_name()}" refuses {action}')
            return
    expect(False, f'"{node.get_name()}" has no action {action}')


def brainstorm(program, folder):
    program.find("push button", "Brainstorm")
    program.check_names("home")
    program.press("Brainstorm")
    program.wait_for_label("Step 1 of 5")
    program.check_names("module choice")
    invite(program)
    program.write("Please enter your name", "Dana Reyes")
    act(program.find("radio button", "General Business Strategy"), "Toggle")
    program.press("Next>>")
    for step, kind, several in ((2, "Strength", "Strengths"), (3, "Weakness", "Weaknesses"),
                                (4, "Opportunity", "Opportunities"), (5, "Threat", "Threats")):
        press_until(program, "Next>>", lambda: has_label(program, f"Step {step} of 5: {several}"))
        for row, statement in enumerate((f"First {kind.lower()}", f"Second {kind.lower()}"), 1):
            program.write(f"New {kind}", statement)
            program.press("Add")
            program.wait_for_rows(f"{kind} list", row)
        for button, rows in (("Undo", 1), ("Redo", 2)):
            program.press(button)
            program.wait_for_rows(f"{kind} list", rows)
        expect(program.rows(f"{kind} list")[1] ==
               (f"Second {kind.lower()}", f"{kind}, row 2 of 2"),
               f"the rows say {program.rows(f'{kind} list')}")
        program.check_names(several)
    edit(program)
    press_until(program, "Next>>", lambda: has(program, "push button", "Save..."))
    program.press("Save...")
    program.find("text", "File name:")
    program.check_names("file dialog")
    program.write("File name:", str(folder / "dana.bsm"))
    program.press("Save")
    acknowledge(program, "message after saving", "Your brainstorming session completed.")


def invite(program):
    """The link beside the module choice."""
    program.press("Distribute To Team Members")
    acknowledge(program, "message without a module", "Please select any SWOT analysis type.")
    act(program.find("radio button", "Human Resources Planning"), "Toggle")
    program.press("Distribute To Team Members")
    program.wait_for_opened("mailto:?subject=Invitation%20for%20Brainstorming%20Session&body="
                            "Download%20link%3A%20http%3A%2F%2Fwww.orvanta.example"
                            "%2Fdownload.php?type%3Dhrp%20")


def edit(program):
    act(next(children(program.find("list", "Threat list"))), "Toggle")
    program.press("Edit")
    box = program.find("text", "Edit Statement")
    program.check_names("Edit dialog")
    expect(Atspi.Text.get_text(box, 0, -1) == "First threat", "the dialog shows another text")
    program.write("Edit Statement", "Reworded threat")
    program.press("OK")
    wait_for(lambda: program.rows("Threat list")[0][0] == "Reworded threat", "the new text")


def acknowledge(program, screen, text):
    program.find("push button", "OK")
    expect(has_label(program, text), f"the {screen} does not say: {text}")
    program.check_names(screen)
    program.press("OK")
    program.waits_for_gone("push button", "OK")


def analyze(program, folder):
    program.press("Analyze")
    program.wait_for_label("Step 1 of 7")
    program.press("Add")
    program.find("text", "File name:")
    program.write("File name:", str(folder / "dana.bsm"))
    program.press("Open")
    program.wait_for_rows("Open Brainstorm Files", 1)
    program.check_names("source files")
    for step, name in ((2, "Strengths"), (3, "Weaknesses"), (4, "Opportunities"), (5, "Threats"),
                       (6, "Mapping onto opportunities"), (7, "Mapping onto threats")):
        program.press("Next>>")
        program.wait_for_label(f"Step {step} of 7: {name}")
        if name == "Strengths":
            program.write("New Strength", "Third strength")
            program.press("Add")
            program.wait_for_rows("Strength list", 3)
        program.check_names(f"analysis, {name}")
    expect(program.rows("Threats")[0] ==
           ("Reworded threat", "Threat, row 1 of 2, said by Dana Reyes, 0 strengths and 0 "
            "weaknesses under it"), f"the threats say {program.rows('Threats')}")


def mute(program):
    """Off, then on again."""
    for state in (True, False):
        act(program.find("check box", "Sound Off"), "Toggle")
        wait_for(lambda: is_checked(program.find("check box", "Sound Off")) == state,
                 "a change of the sound switch")


def is_checked(node):
    return node.get_state_set().contains(Atspi.StateType.CHECKED)


def dialogs(program):
    program.press("Overview")
    # No page can be at this host.
    program.wait_for_opened(program.copy_of("orvanta-overview"))
    program.press("About")
    program.find("push button", "OK")
    program.check_names("About box")
    program.press("http://www.orvanta.example/support/")
    program.wait_for_opened(program.copy_of("support"))
    program.press("OK")
    program.waits_for_gone("push button", "OK")
    program.lose_copies()
    program.press("Overview")
    program.wait_for_opened("http://www.orvanta.example/orvanta-overview/")
    program.press("Reports")
    # The name of a combo box is its choice; what it chooses is told by its label.
    formats = wait_for(lambda: next((n for n in shown(program.window())
                                     if n.get_role_name() == "combo box"), None), "the formats")
    expect(labels_of(formats) == ["Report Format"], f"the formats are {labels_of(formats)}")
    program.check_names("Report dialog")
    program.press("Cancel")
    program.waits_for_gone("label", "Report Format")


def quit_unsaved(program):
    program.press("Quit Orvanta")
    program.find("push button", "No")
    program.check_names("question before the end")
    program.press("No")
    program.wait_for_end()


def preview(program):
    """In a run of its own: nothing that the bus can press closes the window of the preview."""
    program.press("Brainstorm")
    program.wait_for_label("Step 1 of 5")
    act(program.find("radio button", "Marketing Planning"), "Toggle")
    program.press("Print Questions...")
    wait_for(lambda: program.window().get_name() == "Marketing Planning", "the preview")
    program.check_names("print preview")


def has(program, role, name):
    return any(node.get_role_name() == role and node.get_name() == name
               for window in program.windows() for node in shown(window))


def has_label(program, start):
    return any(node.get_role_name() == "label" and node.get_name().startswith(start)
               for window in program.windows() for node in shown(window))


def press_until(program, button, reached):
    """Presses a button until something is there; each press has to change the line that tells
    where the person is, which is the last to change."""
    for _ in range(100):
        if reached():
            return
        before = whereabouts(program)
        program.press(button)
        wait_for(lambda: whereabouts(program) != before, f'a change after "{button}"')
    raise SystemExit(f'FAILED: no press of "{button}" leads on')


def whereabouts(program):
    return next(node.get_name() for node in shown(program.window())
                if node.get_role_name() == "label" and node.get_name().startswith("Step "))


def on_a_desktop_of_its_own():
    """Runs this test once more, with a bus whose socket lies in a folder of its own."""
    with tempfile.TemporaryDirectory() as runtime:
        environment = dict(os.environ, XDG_RUNTIME_DIR=runtime, XDG_CACHE_HOME=runtime,
                           **{INSIDE: "1"})
        # What the bus starts is to know the display: it moves the pointer for those who ask it to.
        # Of tests that look for a free number at the same moment one would get the other's display.
        number = str(1000 + os.getpid() % 9000)
        # A display that resets itself when its last client leaves, the bus say, answers nobody then.
        display = ["xvfb-run", "-a", "-n", number, "-s", "-screen 0 1280x1024x24 -noreset"]
        return subprocess.run([*display, "dbus-run-session", "--", sys.executable, *sys.argv],
                              env=environment, check=False).returncode


def main():
    if INSIDE not in os.environ:
        sys.exit(on_a_desktop_of_its_own())
    with Program(sys.argv[1], sys.argv[2]) as program:
        brainstorm(program, program.home)
        mute(program)
        dialogs(program)
        analyze(program, program.home)
        quit_unsaved(program)
    with Program(sys.argv[1], sys.argv[2]) as program:
        preview(program)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
