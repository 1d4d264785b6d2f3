#!/usr/bin/env bash
# Makes the program for 64-bit Windows on Debian and plays it under wine.
#   scripts/windows.sh [--qt PREFIX] [--sources DIR] [--headless]
# --qt: a Qt 6.4 for mingw-w64 that is there already; otherwise one is made once, from Debian's
# source packages, in build/windows/qt. --sources: a folder with tarballs of sources that apt does
# not give, as qtsvg-6.4.2.tar.xz. --headless: the logic and its tests alone, without Qt.
# Not part of scripts/test.sh. What it shows and what it can't: docs/windows.md.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

preset=windows qt=$PWD/build/windows/qt decoders=$PWD/build/windows/decoders
bin=build/windows/bin
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

# The libraries and plugins beside the program, as they lie when it is installed.
put_libraries_beside() {
    cp -u -- "$qt"/bin/Qt6{Core,Gui,Widgets,PrintSupport,Svg}.dll "$bin/"
    cp -u -- "$decoders"/bin/*.dll "$bin/"
    mkdir -p "$bin"/{platforms,imageformats}
    cp -u -- "$qt/plugins/platforms/qwindows.dll" "$bin/platforms/"
    cp -u -- "$qt/plugins/imageformats/"q{svg,jpeg,gif,ico}.dll "$bin/imageformats/"
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
if [[ $preset == windows ]]; then part "Putting the libraries beside" put_libraries_beside; fi
part "Tests under wine" xvfb-run -a ctest --preset "$preset"
