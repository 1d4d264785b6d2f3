"""Installs the build into folders of this test, looks at what lies where, and starts it there.

    install_test.py CMAKE BUILD_FOLDER SOURCE_FOLDER

Needs no display.
"""

import configparser
import os
import pathlib
import signal
import struct
import subprocess
import sys
import tempfile
import time

PATIENCE = 60  # seconds until what should happen counts as missing
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
FORMATS = ("application-x-orvanta-brainstorm", "application-x-orvanta-analysis")

failures = []


def expect(condition, text):
    if not condition:
        failures.append(text)
        print("FAILED:", text, flush=True)


def install(prefix, *options, stage=None):
    environment = dict(os.environ)
    environment.pop("DESTDIR", None)
    if stage:
        environment["DESTDIR"] = str(stage)
    subprocess.run([cmake, "--install", build, "--prefix", str(prefix), *options], check=True,
                   env=environment, stdout=subprocess.DEVNULL)


def tree(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if not path.is_dir())


def program_folder_holds_all_that_the_program_reads(prefix):
    folder = prefix / "lib" / "orvanta"
    for bank in (source / "data").glob("*.txt"):
        expect((folder / bank.name).read_bytes() == bank.read_bytes(), f"{bank.name} is installed")
    for page in ("orvanta-overview", "support"):
        expect((folder / "site" / page / "index.html").is_file(), f"the page {page} is installed")
    clips = {clip.name for clip in (build / "bin" / "Sounds").glob("*.swf")}
    installed = {clip.name for clip in (folder / "Sounds").glob("*.swf")}
    expect(installed == clips, f"{len(installed)} clips of {len(clips)} are installed")
    expect(not (folder / "system-wide").exists(), "only a package says that it is for all users")


def nothing_else_lies_elsewhere(prefix):
    elsewhere = [path for path in tree(prefix) if not path.startswith("lib/orvanta/")]
    kinds = ("bin/orvanta", "share/applications/", "share/doc/orvanta/", "share/icons/hicolor/",
             "share/man/man1/", "share/metainfo/", "share/mime/packages/")
    strange = [path for path in elsewhere if not path.startswith(kinds)]
    expect(not strange, f"these files are strange: {strange}")
    expect(os.readlink(prefix / "bin" / "orvanta") == "../lib/orvanta/orvanta",
           "the link goes with its folder")


def desktop_finds_program_and_icons(prefix):
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(prefix / "share" / "applications" / "orvanta.desktop")
    entry = entry["Desktop Entry"]
    expect((prefix / "bin" / entry["Exec"]).exists(), "the entry starts what is installed")
    for context, name in [("apps", entry["Icon"])] + [("mimetypes", name) for name in FORMATS]:
        theme = prefix / "share" / "icons" / "hicolor"
        expect((theme / "scalable" / context / f"{name}.svg").is_file(), f"{name} scales")
        for size in SIZES:
            icon = (theme / f"{size}x{size}" / context / f"{name}.png").read_bytes()
            expect(struct.unpack(">2I", icon[16:24]) == (size, size), f"{name} of {size} pixels")
            expect(len(icon) > 150, f"{name} of {size} pixels is drawn")


def starts(prefix, home):
    """Starts the program by its link and ends it when it holds its lock; tells where that is."""
    home.mkdir(mode=0o700)
    environment = dict(os.environ, HOME=str(home), XDG_CONFIG_HOME=str(home),
                       XDG_DATA_HOME=str(home), XDG_RUNTIME_DIR=str(home),
                       PULSE_SERVER=f"unix:{home}/no-server", QT_QPA_PLATFORM="offscreen")
    process = subprocess.Popen([prefix / "bin" / "orvanta"], env=environment)
    places = {"beside it": prefix / "lib" / "orvanta", "user": home / "Orvanta" / "Orvanta"}
    end = time.monotonic() + PATIENCE
    found = None
    while not found and time.monotonic() < end:
        found = next((place for place, folder in places.items() if (folder / "System").is_dir()),
                     None)
        time.sleep(0.02)
    process.send_signal(signal.SIGTERM)
    try:
        expect(process.wait(PATIENCE) == 0, f"it ended with {process.returncode}")
    finally:
        process.kill()
    return found


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        staged, portable = folder / "stage" / "usr", folder / "a portable folder"
        install("/usr", stage=folder / "stage")
        install(portable)
        program_folder_holds_all_that_the_program_reads(staged)
        nothing_else_lies_elsewhere(staged)
        desktop_finds_program_and_icons(staged)
        expect(tree(staged) == tree(portable), "a portable folder holds the same")
        expect(starts(portable, folder / "one") == "beside it", "a portable folder keeps its files")
        before = tree(staged) + ["lib/orvanta/system-wide"]
        install("/usr", "--component", "system_wide", stage=folder / "stage")
        expect(starts(staged, folder / "other") == "user", "for all users it uses the user's folder")
        expect(tree(staged) == sorted(before), "for all users nothing is written beside it")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    cmake, build, source = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    main()
