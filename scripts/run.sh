#!/usr/bin/env bash
# Builds the program and starts it. Where no window can be shown, the tour is run instead.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

show_tour() {
    echo "$1, so no window can be shown. Running the tour instead: it plays the program in a window" \
         "nobody sees and leaves pictures in build/tour/."
    exec scripts/tour.sh
}

# The display is asked first: the tour needs neither the voice nor the whole program.
[[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] ||
    show_tour "There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set)"
scripts/install.sh window
if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset release
cmake --build --preset release --target orvanta_try_display
build/release/bin/orvanta_try_display 2>/dev/null ||
    show_tour "The display that DISPLAY or WAYLAND_DISPLAY names does not answer"
scripts/install.sh run
cmake --build --preset release --target all narration
exec build/release/bin/orvanta "$@"
