#!/usr/bin/env bash
# Makes the program for 64-bit Windows on Debian, plays it under wine and packs it.
#   scripts/windows.sh [--qt PREFIX] [--sources DIR] [--headless]
# --qt, --sources: see scripts/windows_libraries.sh, which makes the libraries once. --headless: the
# logic and its tests alone, without Qt. The installer and the portable folder go into
# build/windows/packages/, the pictures of the tour into build/windows/tour/.
# Not part of scripts/test.sh. What it shows and what it can't: docs/windows.md.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

preset=windows qt=$PWD/build/windows/qt released=build/windows-release
libraries=()
while (($#)); do
    case $1 in
        --headless) preset=windows-headless ;;
        --qt) qt=$(realpath -- "$2") && libraries+=(--qt "$qt") && shift ;;
        --sources) libraries+=(--sources "$(realpath -- "$2")") && shift ;;
        *) echo "usage: $0 [--qt PREFIX] [--sources DIR] [--headless]" >&2; exit 2 ;;
    esac
    shift
done

# Says what is done, does it and says how long it took.
part() {
    local title=$1 start=$SECONDS
    shift
    echo "== $title"
    "$@"
    echo "   $((SECONDS - start)) s"
}

# The voice's clips are spoken by this system's tools, as for its own program.
speak_clips() {
    cmake --preset headless
    cmake --build --preset headless --target orvanta_clip_texts
    scripts/make_narration.sh build/headless/bin/orvanta_clip_texts data tools/spoken_forms.txt \
        "$released/bin/Sounds" build/windows/narration
}

part "Installing what is missing" scripts/install.sh windows
if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
options=()
if [[ $preset == windows ]]; then
    part "Making the libraries that are missing (Qt takes half an hour of two cores)" \
        scripts/windows_libraries.sh "${libraries[@]}"
    options=(-DORVANTA_WINDOWS_QT="$qt")
fi
part "Configuring" cmake --preset "$preset" "${options[@]}"
part "Compiling" cmake --build --preset "$preset"
part "Tests under wine" xvfb-run -a ctest --preset "$preset"
[[ $preset == windows ]] || exit 0

part "Configuring what is installed" cmake --preset windows-release "${options[@]}"
part "Compiling it" cmake --build --preset windows-release
part "Speaking the questions" speak_clips
part "Making the installer" scripts/windows_setup.sh "$released"
part "The tour" scripts/windows_tour.sh build/windows/packages/Orvanta-*-setup.exe
