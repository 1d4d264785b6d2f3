#!/usr/bin/env bash
# Installs what a purpose needs and this system lacks; nothing that is installed is taken away.
#   scripts/install.sh [PURPOSE ...]     run, test, tour and check when none is named
# Says beforehand what it loads, what for and how much.
set -euo pipefail

# What is needed for one thing. A line of what_for says what that is.
declare -A packages=(
    [build]="g++ cmake ninja-build libboost1.81-dev"
    [window]="qt6-base-dev qt6-svg-dev qt6-multimedia-dev libavcodec-dev libswresample-dev
              zlib1g-dev pkg-config fonts-dejavu-core xdg-utils"
    [wayland]="qt6-wayland"
    [voice]="festival festvox-us-slt-hts sox ffmpeg"
    [libraries]="libgtest-dev libbenchmark-dev nlohmann-json3-dev python3 ccache"
    [screen]="xvfb xauth xdotool openbox dbus"
    [bus]="python3-gi gir1.2-atspi-2.0 at-spi2-core"
    [readers]="libreoffice-writer-nogui poppler-utils abiword pandoc unrtf fonts-liberation"
    [pages]="chromium-headless-shell php-cli tidy poppler-utils"
    [browser]="chromium-headless-shell"
    [listening]="pulseaudio pulseaudio-utils"
    [style]="clang-format clang-tidy git shellcheck"
    [fuzzing]="clang libclang-rt-dev"
    [counting]="gcovr"
    [changing]="bubblewrap lld"
    [packing]="dpkg-dev file gzip lintian desktop-file-utils appstream libxml2-utils"
    [fresh_system]="mmdebstrap"
    [mingw]="g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine wine64 nsis zip imagemagick"
)
declare -A what_for=(
    [build]="compiling"
    [window]="the window and its sound"
    [wayland]="the window on this Wayland desktop"
    [voice]="speaking the questions"
    [libraries]="building the tests"
    [screen]="a screen that nobody sees"
    [bus]="tests that play as an assistive program"
    [readers]="tests that read the documents with other programs"
    [pages]="tests of the web pages"
    [browser]="the report in a browser"
    [listening]="tests that listen to the voice"
    [style]="checks of the source"
    [fuzzing]="made-up input"
    [counting]="counting the lines that tests reach"
    [changing]="trying changed sources where they can do no harm"
    [packing]="making and checking packages"
    [fresh_system]="a fresh Debian to try the package on"
    [mingw]="making the program for Windows and running it"
)
declare -A needs=(
    [window]="build window"
    [run]="build window voice"
    [headless]="build libraries"
    [asan]="build window libraries screen bus"
    [dev]="build window voice libraries screen bus readers pages listening"
    [test]="build window voice libraries screen bus readers pages listening"
    [tour]="build window libraries screen browser"
    [check]="build window libraries screen style"
    [fuzz]="build window libraries screen fuzzing"
    [coverage]="counting"
    [mutate]="changing"
    [package]="packing"
    [package_test]="fresh_system"
    [windows]="build window voice libraries screen listening mingw"
)

for purpose in "$@"; do
    [[ -n ${needs[$purpose]:-} ]] || { echo "usage: $0 [${!needs[*]}]" >&2; exit 2; }
done
(($#)) || set -- run test tour check
things=()
for purpose in "$@"; do
    read -r -a words <<<"${needs[$purpose]}"
    things+=("${words[@]}")
    if [[ $purpose == run && -n ${WAYLAND_DISPLAY:-} ]]; then things+=(wayland); fi
done
mapfile -t things < <(printf '%s\n' "${things[@]}" | sort -u)

installed=
if command -v dpkg-query >/dev/null; then
    installed=$(dpkg-query -W -f='${db:Status-Status} ${binary:Package}\n' |
        sed -n 's/^installed //p' | sed 's/:.*//')
fi
is_installed() { grep -qxF -- "$1" <<<"$installed"; }

# PulseAudio would drive out a PipeWire that is the sound of this desktop; that can be listened to
# as well.
if is_installed pipewire && ! is_installed pulseaudio; then
    packages[listening]="pipewire pipewire-pulse wireplumber pulseaudio-utils"
fi

missing=()
reasons=()
for thing in "${things[@]}"; do
    lacking=()
    read -r -d '' -a words <<<"${packages[$thing]}" || true
    for package in "${words[@]}"; do
        if ! is_installed "$package"; then lacking+=("$package"); fi
    done
    if ((${#lacking[@]})); then reasons+=("  ${what_for[$thing]}: ${lacking[*]}"); fi
    missing+=("${lacking[@]}")
done
((${#missing[@]})) || exit 0
mapfile -t missing < <(printf '%s\n' "${missing[@]}" | sort -u)

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "There is no apt here, so nothing is installed. These packages, named as on Debian, are" \
         "needed:"
    printf '%s\n' "${reasons[@]}" "Going on with what is here."
    exit 0
fi
as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "Missing packages: ${missing[*]}. Install them as root; there is no sudo here." >&2
        exit 1
    fi
    as_root=(sudo)
fi

options=(-q --no-remove --no-install-recommends)
"${as_root[@]}" apt-get -q update
echo "Needed for"
printf '%s\n' "${reasons[@]}"
# Refused at once, so that it only counts.
LC_ALL=C apt-get "${options[@]}" --assume-no install "${missing[@]}" 2>/dev/null |
    grep -E '^(Need to get|After this operation)' || true
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get "${options[@]}" -y install "${missing[@]}"
