"""Plays the program where the code page of its texts does not reach: in a folder named in Greek,
for a person whose own folders are named in Japanese.

    names_test.py PROGRAM DATA_FOLDER

As accessibility_test.py does: on a display and a bus of its own, through the bus alone.
"""

import os
import resource
import sys
import time

from accessibility_test import (INSIDE, Atspi, Program, acknowledge, act, expect, failures, has,
                                on_a_desktop_of_its_own, press_until, shown, wait_for)

HOME, APP, DOCUMENTS = "日本 – Łódź", "Πρόγραμμα", "文書"
# Two names that the code page writes alike, with five question marks.
ONE, OTHER = "Δάφνη", "Φάνης"
LOST = "Λήθη"


def begin(program, strength):
    program.press("Brainstorm")
    program.wait_for_label("Step 1 of 5")
    options = [n.get_name() for n in shown(program.window()) if n.get_role_name() == "radio button"]
    expect(len(options) == 5, f"the modules are {options}")
    program.write("Please enter your name", "Dana Reyes")
    act(program.find("radio button", "General Business Strategy"), "Toggle")
    program.press("Next>>")
    program.wait_for_label("Step 2 of 5")
    program.write("New Strength", strength)
    program.press("Add")
    program.wait_for_rows("Strength list", 1)


def answer(program, strength):
    begin(program, strength)
    press_until(program, "Next>>", lambda: has(program, "push button", "Save..."))


def save(program, name):
    program.press("Save...")
    choose(program, "Save", name)
    acknowledge(program, "message after saving", "Your brainstorming session completed.")


def choose(program, button, name):
    program.find("text", "File name:")
    program.write("File name:", name)
    program.press(button)
    program.waits_for_gone("text", "File name:")


def two_sessions(program, documents):
    """One in the folder that the first dialog offers, the other beside it."""
    for name, strength in ((ONE, "Own fleet"), (OTHER, "Loyal customers")):
        answer(program, strength)
        save(program, name)
    names = sorted(file.name for file in (documents / "My SWOT").iterdir())
    expect(names == sorted([f"{ONE}.bsm", f"{OTHER}.bsm"]), f"the saved files are {names}")


def wait_for_a_copy(program):
    """The copy of the session that is made each half minute would fail as well, with a box."""
    copy = program.folder / "brainstorm.tmp"
    wait_for(lambda: copy.exists() and time.time() - copy.stat().st_mtime < 5, "a new copy")


def a_failed_save_is_told(program, _):
    """As on a full disk: no file may grow beyond a hundred bytes."""
    answer(program, "Skilled staff")
    wait_for_a_copy(program)
    process, limit = program.process.pid, resource.RLIMIT_FSIZE
    whole = resource.prlimit(process, limit)
    resource.prlimit(process, limit, (100, whole[1]))
    save(program, LOST)
    program.wait_for_label(f"{LOST}.bsm was not written")
    resource.prlimit(process, limit, whole)


def analyze(program, documents):
    program.press("Analyze")
    program.wait_for_label("Step 1 of 7")
    for rows, name in enumerate((ONE, OTHER), 1):
        program.press("Add")
        choose(program, "Open", name)
        program.wait_for_rows("Open Brainstorm Files", rows)
    files = [row[0] for row in program.rows("Open Brainstorm Files")]
    expect(files == [str(documents / "My SWOT" / f"{name}.bsm") for name in (ONE, OTHER)],
           f"the files are {files}")
    program.press("Next>>")
    program.wait_for_label("Step 2 of 7")
    strengths = [row[0] for row in program.rows("Strength list")]
    expect(strengths == ["Own fleet", "Loyal customers"], f"the strengths are {strengths}")
    for step in range(3, 8):
        program.press("Next>>")
        program.wait_for_label(f"Step {step} of 7")
    program.press("Next>>")
    choose(program, "Save", f"~/{DOCUMENTS}/ανάλυση")
    acknowledge(program, "message after saving", "Your analyze session completed.")


def browse(program, name, chosen):
    program.press("Reports")
    program.press("Browse...")
    choose(program, "Open", name)
    box = program.find("text", "Analyze File")
    wait_for(lambda: Atspi.Text.get_text(box, 0, -1) == str(chosen), "the chosen file in its box")


def report(program, documents):
    browse(program, f"~/{DOCUMENTS}/ανάλυση", documents / "ανάλυση.aze")
    program.press("OK")
    choose(program, "Save", f"~/{DOCUMENTS}/αναφορά")
    program.wait_for_opened((documents / "αναφορά.rtf").as_uri())
    expect("Own fleet" in (documents / "αναφορά.rtf").read_text(), "the document has the strength")


def settings_bring_the_folder_back(program, documents):
    program.restart()
    browse(program, "ανάλυση", documents / "ανάλυση.aze")


def a_session_behind_a_file_dialog_is_kept(program, _):
    """The question before the dialog was answered No, and the program is ended instead."""
    program.restart()
    begin(program, "Skilled staff")
    program.press("<<Back")
    program.wait_for_label("Step 1 of 5")
    program.press("Open Brainstorm File...")
    program.press("No")
    program.find("text", "File name:")
    program.process.terminate()
    program.wait_for_end()
    copy = (program.folder / "brainstorm.tmp").read_text()
    expect("Skilled staff" in copy, f"the copy holds {copy}")


def main():
    if INSIDE not in os.environ:
        sys.exit(on_a_desktop_of_its_own())
    with Program(sys.argv[1], sys.argv[2], HOME, APP, DOCUMENTS) as program:
        documents = program.home / DOCUMENTS
        for claim in (two_sessions, a_failed_save_is_told, analyze, report,
                      settings_bring_the_folder_back,
                      a_session_behind_a_file_dialog_is_kept):
            claim(program, documents)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
