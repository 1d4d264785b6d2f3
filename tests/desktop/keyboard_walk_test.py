"""Goes through an analysis with the keyboard alone: adds, ranks, maps and un-maps.

    keyboard_walk_test.py PROGRAM DATA_FOLDER

On a display and a bus of its own, as accessibility_test.py. The keys are those of the display's
own keyboard; at each step the bus tells what has the focus, under which name, as what, and in
which state.
"""

import os
import subprocess
import sys

from gi.repository import GLib

from accessibility_test import (INSIDE, Atspi, Program, expect, failures,
                                on_a_desktop_of_its_own, shown, wait_for)

STATEMENTS = (("STRENGTH", ("Own fleet", "Loyal customers")), ("WEAKNESS", ("High rent",)),
              ("OPPORTUNITY", ("Cargo bikes", "Old town", "New school")), ("THREATS", ("A chain",)))


def brainstorm_file(name):
    lines = ["<NAME>", name, "</NAME>", "<MODULE>", "GBS", "</MODULE>"]
    for section, texts in STATEMENTS:
        lines += [f"<{section}>", *texts, f"</{section}>"]
    return "".join(line + "\r\n" for line in lines)


def keys(program, *names):
    """Presses keys, one after another."""
    activate(program)
    xdotool("key", "--delay", "40", *names)


def type_text(program, text):
    activate(program)
    xdotool("type", "--delay", "20", text)


def activate(program):
    """No window manager gives the window in front the keyboard."""
    window = program.window()
    if has_state(window, Atspi.StateType.ACTIVE):
        return
    xdotool("search", "--onlyvisible", "--name", f"^{window.get_name()}$", "windowfocus")
    wait_for(lambda: has_state(window, Atspi.StateType.ACTIVE), "the window with the keyboard")


def xdotool(*words):
    subprocess.run(["xdotool", *words], check=True, stdout=subprocess.DEVNULL)


def focused(program):
    """The innermost node that has the keyboard; None for none."""
    found = [node for window in program.windows() for node in shown(window)
             if has_state(node, Atspi.StateType.FOCUSED) and not is_row_of_other(node)]
    return found[-1] if found else None


def is_row_of_other(node):
    """The toolkit tells the current row of a list as focused also where another control has the
    keyboard."""
    return (node.get_role_name() == "list item" and
            not has_state(node.get_parent(), Atspi.StateType.FOCUSED))


def has_state(node, state):
    return node.get_state_set().contains(state)


def wait_for_focus(program, role, name, description=""):
    """What has the keyboard is this; returns it."""
    def look():
        node = focused(program)
        return (node and node.get_role_name() == role and node.get_name() == name and
                node.get_description().startswith(description) and node)

    try:
        return wait_for(look, f'the focus on the {role} "{name}"')
    except SystemExit:
        node = focused(program)
        print("the focus is on", node and (node.get_role_name(), node.get_name(),
                                           node.get_description()), flush=True)
        raise


def tab_to(program, role, name, key="Tab"):
    for _ in range(25):
        node = focused(program)
        if node and node.get_role_name() == role and node.get_name() == name:
            return
        before = node and place_in_tree(node)
        keys(program, key)
        wait_for(lambda: moved_from(program, before), f"a focus behind {key}")
    raise SystemExit(f'FAILED: {key} does not lead to the {role} "{name}"')


def place_in_tree(node):
    return node.get_role_name(), node.get_name(), node.get_index_in_parent()


def moved_from(program, before):
    node = focused(program)
    return node and place_in_tree(node) != before


def texts(program, name):
    return [text for text, _ in program.rows(name)]


def wait_for_texts(program, name, expected):
    wait_for(lambda: texts(program, name) == expected, f'in "{name}" {expected}')


class MenuWatch:
    """Hears of the commands that the arrows reach: a menu is no part of the tree of the program."""

    EVENTS = "object:state-changed:focused", "object:state-changed:showing"

    def __init__(self):
        self.reached = []
        self.popped_up = False
        self.listener = Atspi.EventListener.new(self._hear)

    def __enter__(self):
        for event in self.EVENTS:
            self.listener.register(event)
        return self

    def __exit__(self, *_):
        for event in self.EVENTS:
            self.listener.deregister(event)

    def _hear(self, event):
        try:
            self._take(event)
        except GLib.Error:  # what it is about has gone already
            pass

    def _take(self, event):
        role = event.source.get_role_name()
        if event.type.endswith("showing") and role == "popup menu":
            self.popped_up = bool(event.detail1)
        elif event.detail1 and role == "menu item":
            self.reached.append(event.source)

    def wait(self, look, what):
        def hear_and_look():
            while GLib.MainContext.default().iteration(False):
                pass
            return look()
        return wait_for(hear_and_look, what)

    def next_command(self):
        count = len(self.reached)
        xdotool("key", "Down")
        self.wait(lambda: len(self.reached) > count, "the next command of the menu")
        return self.reached[-1]


def choose_in_menu(program, command):
    """Brings the menu of the list up and chooses the command by its arrows."""
    names = []
    with MenuWatch() as watch:
        keys(program, "shift+F10")
        watch.wait(lambda: watch.popped_up, "the menu")
        while not names or names.count(names[-1]) < 2:
            item = watch.next_command()
            names.append(item.get_name())
            if names[-1].startswith(command):
                expect(has_state(item, Atspi.StateType.ENABLED), f'"{command}" is grey')
                return xdotool("key", "Return")
    raise SystemExit(f'FAILED: no arrow leads to "{command}", but to {names}')


def begins_at_no_control(program):
    """A space bar that is pressed as the window comes up does nothing."""
    program.find("push button", "Analyze")
    activate(program)
    node = focused(program)
    expect(not node or node == program.window(),
           f"no control has the keyboard at the start, but {node and node.get_name()} has it")


def open_analysis(program):
    program.find("push button", "Analyze")
    tab_to(program, "push button", "Analyze")
    keys(program, "space")
    program.wait_for_label("Step 1 of 7")
    wait_for_focus(program, "list", "Open Brainstorm Files")
    tab_to(program, "push button", "Add")
    keys(program, "Return")
    program.find("text", "File name:")
    wait_for_focus(program, "text", "File name:")
    type_text(program, str(program.home / "ann.bsm"))
    keys(program, "Return")
    program.wait_for_rows("Open Brainstorm Files", 1)


def add(program):
    next_step(program, "Strengths")
    box = wait_for_focus(program, "text", "New Strength")
    expect(has_state(box, Atspi.StateType.EDITABLE), "the answer box can not be written in")
    type_text(program, "Third strength")
    keys(program, "Return")
    wait_for_texts(program, "Strength list", ["Own fleet", "Loyal customers", "Third strength"])
    wait_for_focus(program, "text", "New Strength")


def next_step(program, name):
    keys(program, "ctrl+Return")
    wait_for(lambda: any(node.get_name().endswith(name) or f"{name}:" in node.get_name() or
                         f": {name}" in node.get_name()
                         for node in shown(program.window()) if node.get_role_name() == "label" and
                         node.get_name().startswith("Step ")), f"the step {name}")


def row_in_focus(program, text, description):
    row = wait_for_focus(program, "list item", text, description)
    expect(has_state(row, Atspi.StateType.SELECTED), f'"{text}" is not told as chosen')
    expect(has_state(row, Atspi.StateType.SELECTABLE), f'"{text}" can not be chosen')
    return row


def rank(program):
    next_step(program, "Weaknesses")
    wait_for_focus(program, "text", "New Weakness")
    next_step(program, "Opportunities")
    wait_for_focus(program, "text", "New Opportunity")
    tab_to(program, "list item", "Cargo bikes")
    keys(program, "Down")
    row_in_focus(program, "Cargo bikes", "Opportunity, row 1 of 3")
    keys(program, "alt+Down")
    wait_for_texts(program, "Opportunity list", ["Old town", "Cargo bikes", "New school"])
    row_in_focus(program, "Cargo bikes", "Opportunity, row 2 of 3")
    keys(program, "alt+Up")
    row_in_focus(program, "Cargo bikes", "Opportunity, row 1 of 3")
    choose_in_menu(program, "Move Down")
    row_in_focus(program, "Cargo bikes", "Opportunity, row 2 of 3")
    choose_in_menu(program, "Move Up")
    row_in_focus(program, "Cargo bikes", "Opportunity, row 1 of 3")
    wait_for_texts(program, "Opportunity list", ["Cargo bikes", "Old town", "New school"])


def map_by_key_and_menu(program):
    next_step(program, "Threats")
    wait_for_focus(program, "text", "New Threat")
    next_step(program, "Mapping onto opportunities")
    tab_to(program, "list item", "Cargo bikes")
    keys(program, "Down", "Down")
    row_in_focus(program, "Old town", "Opportunity, row 2 of 3")
    keys(program, "shift+Tab")
    wait_for_focus(program, "list item", "Own fleet")
    keys(program, "Down")
    row_in_focus(program, "Own fleet", "Strength, row 1 of 3")
    keys(program, "ctrl+m")
    wait_for_texts(program, "Opportunities", ["Cargo bikes", "Old town", "Own fleet", "New school"])
    row_in_focus(program, "Own fleet", "Strength, row 1 of 3")
    keys(program, "Down")
    choose_in_menu(program, "Map onto Old town")
    wait_for(lambda: sorted(texts(program, "Opportunities")) ==
             ["Cargo bikes", "Loyal customers", "New school", "Old town", "Own fleet"],
             "the second strength")
    row_in_focus(program, "Loyal customers", "Strength, row 2 of 3")


def unmap_by_key_and_menu(program):
    keys(program, "Tab")
    wait_for(lambda: focused(program).get_description().endswith("under: Old town"),
             "the mapped row with the keyboard")
    mapped = focused(program)
    row_in_focus(program, mapped.get_name(), "Strength, row ")
    keys(program, "Delete")
    program.wait_for_rows("Opportunities", 4)
    left = next(text for text in texts(program, "Opportunities")
                if text in ("Own fleet", "Loyal customers"))
    while focused(program).get_name() != left:
        before = place_in_tree(focused(program))
        keys(program, "Down" if texts(program, "Opportunities").index(left) >
             focused(program).get_index_in_parent() else "Up")
        wait_for(lambda: moved_from(program, before), "another row")
    choose_in_menu(program, "Remove")
    wait_for_texts(program, "Opportunities", ["Cargo bikes", "Old town", "New school"])


def main():
    if INSIDE not in os.environ:
        sys.exit(on_a_desktop_of_its_own())
    with Program(sys.argv[1], sys.argv[2]) as program:
        (program.home / "ann.bsm").write_bytes(brainstorm_file("Ann").encode())
        begins_at_no_control(program)
        open_analysis(program)
        add(program)
        rank(program)
        map_by_key_and_menu(program)
        unmap_by_key_and_menu(program)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
