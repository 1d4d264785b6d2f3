"""Listens to a program that is installed for all users, by a sound server of its own.

    listen_installed.py PROGRAM voice|silent

The first question of a brainstorm is to be heard, or nothing. Run it as an ordinary user; the
modules accessibility_test, names_test and play_installed have to be found.
"""

import os
import subprocess
import sys
import tempfile
import threading

import accessibility_test as bus
from accessibility_test import act, expect, wait_for
from play_installed import Installed

LISTENING = 10  # seconds; the first word comes after a part of one


class SoundServer:
    """Plays to nobody; what it plays can be heard."""

    def __init__(self):
        self.folder = tempfile.mkdtemp()
        self.address = f"unix:{self.folder}/socket"
        self.process = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1",
             "-L", f"module-native-protocol-unix auth-anonymous=1 socket={self.folder}/socket",
             "-L", "module-null-sink sink_name=probe"],
            env=dict(os.environ, XDG_RUNTIME_DIR=self.folder), stderr=subprocess.DEVNULL)
        wait_for(lambda: os.path.exists(f"{self.folder}/socket"), "the sound server")

    def is_heard(self):
        """Whether anything but silence is played before the listening ends."""
        recording = subprocess.Popen(["parec", f"--server={self.address}", "--raw",
                                      "--device=probe.monitor"], stdout=subprocess.PIPE)
        threading.Timer(LISTENING, recording.terminate).start()
        return any(any(piece) for piece in iter(lambda: recording.stdout.read(4096), b""))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


def hear_the_first_question(program, server):
    program.press("Brainstorm")
    program.wait_for_label("Step 1 of 5")
    program.write("Please enter your name", "Dana Reyes")
    act(program.find("radio button", "Marketing Planning"), "Toggle")
    program.press("Next>>")
    program.wait_for_label("Step 2 of 5")
    return server.is_heard()


def main():
    if bus.INSIDE not in os.environ:
        sys.exit(bus.on_a_desktop_of_its_own())
    with SoundServer() as server, Installed(sys.argv[1], server.address) as program:
        heard = hear_the_first_question(program, server)
        expect(heard == (sys.argv[2] == "voice"), f"the program is heard: {heard}")
    sys.exit(1 if bus.failures else 0)


if __name__ == "__main__":
    main()
