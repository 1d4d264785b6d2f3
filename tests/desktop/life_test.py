"""The running program and its end: signals, a second start, another user.

    life_test.py PROGRAM DATA_FOLDER

Needs no display. Each program runs in a folder and a home of its own.
"""

import atexit
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 60  # seconds until what should happen counts as missing
# As the program would never write it, so that a copy made anew can be told from it.
LEFT_BEHIND = "<STEP>\n ST\n</STEP>\n<NAME>\nDana\n</NAME>\n<STRENGTH>\n  Own fleet\n</STRENGTH>\n"
COPIED = ("<STEP>\r\nST\r\n</STEP>\r\n<NAME>\r\nDana\r\n</NAME>\r\n<MODULE>\r\n\r\n</MODULE>\r\n"
          "<STRENGTH>\r\nOwn fleet\r\n</STRENGTH>\r\n<WEAKNESS>\r\n</WEAKNESS>\r\n"
          "<OPPORTUNITY>\r\n</OPPORTUNITY>\r\n<THREATS>\r\n</THREATS>\r\n")
NOBODY = 65534

failures = []


def expect(condition, text):
    if not condition:
        failures.append(text)
        print("FAILED:", text, flush=True)


def wait_for(look, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if look():
            return
        time.sleep(0.02)
    raise SystemExit(f"FAILED: {what} did not happen")


class Place:
    """A folder with the program in it, and what an ended session left there."""

    def __init__(self, binary, data):
        self.root = pathlib.Path(tempfile.mkdtemp())
        self.root.chmod(0o755)
        self.folder = self.root / "app"
        self.folder.mkdir()
        self.binary = shutil.copy(binary, self.folder)
        for file in pathlib.Path(data).glob("*.txt"):
            shutil.copy(file, self.folder)
        self.copy = self.folder / "brainstorm.tmp"
        self.copy.write_text(LEFT_BEHIND, newline="")

    def start(self, name="home", user=None, arguments=(), **variables):
        home = self.root / name
        home.mkdir(mode=0o700, exist_ok=True)
        if user:
            os.chown(home, user, user)
        environment = dict(os.environ, HOME=str(home), XDG_CONFIG_HOME=str(home),
                           XDG_DATA_HOME=str(home), XDG_RUNTIME_DIR=str(home),
                           PULSE_SERVER=f"unix:{home}/no-server", QT_QPA_PLATFORM="offscreen")
        environment.update(variables)
        process = subprocess.Popen([self.binary, *arguments], env=environment, user=user,
                                   group=user)
        atexit.register(process.kill)  # a claim that fails leaves it running otherwise
        return process

    def is_locked_by(self, process, folder=None):
        try:
            inode = ((folder or self.folder) / "orvanta.lock").stat().st_ino
        except OSError:  # not yet there
            return False
        locks = [line.split() for line in pathlib.Path("/proc/locks").read_text().splitlines()]
        return any(lock[4] == str(process.pid) and lock[5].endswith(f":{inode}")
                   for lock in locks if len(lock) > 5)


def ends_well(process, what):
    try:
        expect(process.wait(PATIENCE) == 0, f"{what}: exit code {process.returncode}")
    except subprocess.TimeoutExpired:
        process.kill()
        expect(False, f"{what}: it does not end")


def signals_keep_the_session(binary, data):
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        place = Place(binary, data)
        process = place.start()
        wait_for(lambda: place.is_locked_by(process), "the start")
        process.send_signal(number)
        ends_well(process, number.name)
        expect(place.copy.read_bytes().decode() == COPIED, f"{number.name} copies the session")


def shows_a_window(screen, name):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", name],
                           env=dict(os.environ, DISPLAY=screen), capture_output=True, check=False)
    return found.returncode == 0


def the_end_of_the_display_keeps_the_session(binary, data):
    for number in (signal.SIGTERM, signal.SIGKILL):
        reading, writing = os.pipe()
        display = subprocess.Popen(["Xvfb", "-displayfd", str(writing)], pass_fds=[writing],
                                   stderr=subprocess.DEVNULL)
        os.close(writing)
        with open(reading, encoding="ascii") as told:
            screen = ":" + told.readline().strip()
        place = Place(binary, data)
        process = place.start(QT_QPA_PLATFORM="xcb", DISPLAY=screen)
        wait_for(lambda: place.is_locked_by(process), "the start")
        wait_for(lambda: shows_a_window(screen, "Orvanta"), "the window")
        display.send_signal(number)
        display.wait()
        process.wait(PATIENCE)
        expect(place.copy.read_bytes().decode() == COPIED,
               f"the end of the display by {number.name} copies the session")


def a_start_removes_old_leftovers(binary, data):
    place = Place(binary, data)
    home = place.root / "home"
    home.mkdir(mode=0o700)
    (home / "Documents").mkdir()
    own = home / "Orvanta" / "Orvanta"
    folders = [place.folder, place.folder / "System", own, own / "rescue"]
    for folder in folders:
        folder.mkdir(parents=True, exist_ok=True)
        for name in (".orvanta-Old123", ".orvanta-New123"):
            (folder / name).touch()
    two_days_ago = time.time() - 2 * 24 * 60 * 60
    not_its_own = place.root / ".orvanta-Old123"
    not_its_own.touch()
    for file in [folder / ".orvanta-Old123" for folder in folders] + [not_its_own]:
        os.utime(file, (two_days_ago, two_days_ago))
    process = place.start()
    wait_for(lambda: (home / "Documents" / "My SWOT").is_dir(), "the start")
    for folder in folders:
        expect(not (folder / ".orvanta-Old123").exists(), f"{folder} has no old leftover")
        expect((folder / ".orvanta-New123").exists(), f"{folder} keeps a new file")
    expect(not_its_own.exists(), "no other folder is looked into")
    process.kill()
    process.wait()


def a_fresh_account_gets_its_folders(binary, data):
    place = Place(binary, data)
    home = place.root / "home"
    home.mkdir(mode=0o700)
    (home / "user-dirs.dirs").write_text('XDG_DOCUMENTS_DIR="$HOME/files/of mine"\n')
    process = place.start()
    wait_for(lambda: (home / "files" / "of mine" / "My SWOT").is_dir(), "the user's folder")
    process.kill()
    process.wait()


def a_second_start_leaves_the_first_alone(binary, data):
    place = Place(binary, data)
    first = place.start()
    wait_for(lambda: place.is_locked_by(first), "the first start")
    ends_well(place.start(), "the second start")
    expect(first.poll() is None, "the first one goes on")
    expect(place.copy.read_text() == LEFT_BEHIND, "its session is not touched")
    first.kill()
    first.wait()
    third = place.start()
    wait_for(lambda: place.is_locked_by(third), "a start after a crash")
    third.send_signal(signal.SIGTERM)
    ends_well(third, "the start after a crash")
    expect(place.copy.read_bytes().decode() == COPIED, "the session of the crash is back")


def another_user_has_a_folder_of_their_own(binary, data):
    if os.geteuid() != 0:
        print("Two users are tried as root alone")
        return
    place = Place(binary, data)
    place.folder.chmod(0o777)
    first = place.start()
    wait_for(lambda: place.is_locked_by(first), "the first user's start")
    other = place.start("other", NOBODY)
    own = place.root / "other" / "Orvanta" / "Orvanta"
    wait_for(lambda: place.is_locked_by(other, own), "the other user's start")
    for process in (other, first):
        process.send_signal(signal.SIGTERM)
        ends_well(process, "one of two users")
    expect(not (own / "brainstorm.tmp").exists(), "the other user gets no session of the first")


def a_session_in_the_users_own_folder_is_found(binary, data):
    place = Place(binary, data)
    own = place.root / "home" / "Orvanta" / "Orvanta"
    own.mkdir(parents=True)
    place.copy.rename(own / "brainstorm.tmp")
    process = place.start()
    wait_for(lambda: place.is_locked_by(process, own), "the start")
    ends_well(place.start(), "the second start")
    process.send_signal(signal.SIGTERM)
    ends_well(process, "the first start")
    expect((own / "brainstorm.tmp").read_bytes().decode() == COPIED, "the session is back")


def a_folder_may_have_a_name_that_is_no_text(binary, data):
    place = Place(binary, data)
    odd = os.fsencode(place.root) + b"/caf\xe9"
    os.rename(place.folder, odd)
    place.folder, place.binary = pathlib.Path(os.fsdecode(odd)), odd + b"/orvanta"
    process = place.start()
    wait_for(lambda: place.is_locked_by(process), "the start")
    process.send_signal(signal.SIGTERM)
    ends_well(process, "a program in a folder whose name is no text")
    expect(pathlib.Path(place.folder, "brainstorm.tmp").read_bytes().decode() == COPIED,
           "its session is back")


def settings_that_no_memory_can_hold_go_aside(binary, data):
    place = Place(binary, data)
    settings = place.root / "home" / "Orvanta" / "Orvanta.ini"
    settings.parent.mkdir(parents=True)
    with settings.open("wb") as file:
        file.truncate(200 << 30)
    process = place.start()
    wait_for(lambda: process.poll() is not None or place.is_locked_by(process), "the start")
    process.send_signal(signal.SIGTERM)
    ends_well(process, "a start with damaged settings")


def a_system_wide_program_writes_nothing_beside_itself(binary, data):
    """Whoever starts it, and though the folder takes files."""
    place = Place(binary, data)
    (place.folder / "system-wide").touch()
    before = sorted(place.folder.rglob("*"))
    process = place.start()
    own = place.root / "home" / "Orvanta" / "Orvanta"
    wait_for(lambda: place.is_locked_by(process, own), "the start")
    wait_for(lambda: (own / "System").is_dir(), "the folder of the report")
    process.send_signal(signal.SIGTERM)
    ends_well(process, "a program that is there for all")
    expect(sorted(place.folder.rglob("*")) == before, "its folder holds what was installed")
    expect(place.copy.read_text() == LEFT_BEHIND, "no session is taken from there")


def arguments_are_not_read(binary, data):
    for arguments in (("-platform", "nonsense"), ("--version",), ("nonsense.bsm",)):
        place = Place(binary, data)
        process = place.start(arguments=arguments)
        wait_for(lambda: process.poll() is not None or place.is_locked_by(process),
                 f"the start with {arguments}")
        expect(process.poll() is None, f"started with {arguments} it comes up")
        process.send_signal(signal.SIGTERM)
        ends_well(process, f"the start with {arguments}")


def a_start_without_a_display_says_so(binary, data):
    kept = {name: value for name, value in os.environ.items()
            if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    for named in ({}, {"DISPLAY": ":4711"}, {"WAYLAND_DISPLAY": "nothing"},
                  {"DISPLAY": "no.such.host:0", "WAYLAND_DISPLAY": "/nowhere/nothing"}):
        place = Place(binary, data)
        ended = subprocess.run([place.binary], env={**kept, "HOME": str(place.root), **named},
                               capture_output=True, text=True, timeout=PATIENCE)
        expect(ended.returncode == 1, f"{named}: exit code {ended.returncode}")
        lines = ended.stderr.splitlines()
        expect(len(lines) == 1 and lines[0].startswith("Orvanta can't show its window"),
               f"{named}: it says {lines}")
        expect(place.copy.read_text() == LEFT_BEHIND, f"{named}: the session is not touched")


if __name__ == "__main__":
    for claim in (signals_keep_the_session, the_end_of_the_display_keeps_the_session, arguments_are_not_read,
                  a_second_start_leaves_the_first_alone, another_user_has_a_folder_of_their_own,
                  a_session_in_the_users_own_folder_is_found,
                  a_folder_may_have_a_name_that_is_no_text,
                  settings_that_no_memory_can_hold_go_aside,
                  a_system_wide_program_writes_nothing_beside_itself,
                  a_start_removes_old_leftovers, a_fresh_account_gets_its_folders,
                  a_start_without_a_display_says_so):
        claim(*sys.argv[1:3])
        if failures:
            break  # each of the others may have its whole patience to lose
    sys.exit(1 if failures else 0)
