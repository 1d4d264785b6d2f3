#!/usr/bin/env bash
# Makes the program for 64-bit Windows on Debian and plays it under wine.
#   scripts/windows.sh [--qt PREFIX] [--sources DIR] [--headless]
# --qt: a Qt 6.4 for mingw-w64 that is there already; otherwise one is made once, from Debian's
# source packages, in build/windows/qt. --sources: a folder with tarballs of sources that apt does
# not give, as qtsvg-6.4.2.tar.xz. --headless: the logic and its tests alone, without Qt.
# Not part of scripts/test.sh. What it shows and what it can't: docs/windows.md.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

preset=windows qt='' sources=''
while (($#)); do
    case $1 in
        --headless) preset=windows-headless ;;
        --qt) qt=$(realpath -- "$2") && shift ;;
        --sources) sources=$(realpath -- "$2") && shift ;;
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

# apt with the sources of the packages that this system gets, in a list of its own.
made=$PWD/build/windows/sources
apt_source() {
    apt-get -q -o Dir::Etc::sourcelist="$made/lists/none" -o Dir::Etc::sourceparts="$made/lists" \
        -o Dir::State::lists="$made/state" "$@"
}
list_sources() {
    mkdir -p "$made/lists" "$made/state/partial"
    local list
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [[ -f $list ]] || continue
        sed -n 's/^deb /deb-src /p' "$list" >"$made/lists/$(basename "$list" .list).list"
    done
    for list in /etc/apt/sources.list.d/*.sources; do
        [[ -f $list ]] || continue
        sed 's/^Types:.*/Types: deb-src/' "$list" >"$made/lists/$(basename "$list")"
    done
    apt_source update
}

# Unpacks the source of a module of Qt; false where neither apt nor the folder has it.
module_folder() { find "$made" -maxdepth 1 -type d -name "$1-*" | head -n 1; }
unpack_module() {
    local package=$1 module=$2 tarball
    [[ -z $(module_folder "$module") ]] || return 0
    (cd "$made" && apt_source source --download-only "$package") ||
        echo "apt has no source of $package."
    for tarball in "$made/$package"_*.orig.tar.* ${sources:+"$sources/${module%-everywhere-src}"*.tar.*}; do
        [[ -f $tarball ]] || continue
        mkdir -p "$made/$module-unpacked"
        tar -xf "$tarball" -C "$made/$module-unpacked" --strip-components=1
        mv "$made/$module-unpacked" "$made/$module-6"
        return 0
    done
    return 1
}

# The tools of Qt that run here are Debian's own, of the same version, so that none is made twice.
configure_module() {
    local module=$1
    shift
    cmake -S "$(module_folder "$module")" -B "$made/build-$module" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw.cmake" -DORVANTA_WINDOWS_QT="$qt" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt" "$@"
}
build_module() {
    configure_module "$@"
    cmake --build "$made/build-$1"
    cmake --install "$made/build-$1"
}
all_sources() {
    local missing=0
    list_sources
    unpack_module qt6-base qtbase-everywhere-src || missing=1
    unpack_module qt6-svg qtsvg-everywhere-src || missing=1
    if ((missing)); then
        echo "A source is missing; put its tarball in a folder and name that: --sources DIR" >&2
        exit 1
    fi
}
# What the program has no use for is left out. Debian's sources lack the header of drawing tablets.
make_qt() {
    build_module qtbase-everywhere-src -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DFEATURE_sql=OFF -DFEATURE_tabletevent=OFF -DFEATURE_dbus=OFF -DFEATURE_vulkan=OFF \
        -DINPUT_opengl=no -DFEATURE_system_zlib=OFF -DFEATURE_system_pcre2=OFF \
        -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF \
        -DFEATURE_system_harfbuzz=OFF -DFEATURE_openssl=OFF
    build_module qtsvg-everywhere-src
    touch "$qt/made"
}

# Qt's libraries and plugins beside the program, as they lie when it is installed.
put_qt_beside() {
    local bin=build/windows/bin plugin
    cp -u -- "$qt"/bin/Qt6{Core,Gui,Widgets,PrintSupport,Svg}.dll "$bin/"
    for plugin in platforms styles iconengines imageformats printsupport; do
        [[ -d $qt/plugins/$plugin ]] || continue
        mkdir -p "$bin/$plugin"
        cp -u -- "$qt/plugins/$plugin"/*.dll "$bin/$plugin/"
    done
}

part "Installing what is missing" scripts/install.sh windows
if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
options=()
if [[ $preset == windows ]]; then
    if [[ -z $qt ]]; then
        qt=$PWD/build/windows/qt
        if [[ ! -f $qt/made ]]; then
            part "Getting the sources of Qt" all_sources
            part "Making Qt (half an hour on two cores)" make_qt
        fi
    fi
    options=(-DORVANTA_WINDOWS_QT="$qt")
fi
part "Configuring" cmake --preset "$preset" "${options[@]}"
part "Compiling" cmake --build --preset "$preset"
if [[ $preset == windows ]]; then part "Putting Qt beside the program" put_qt_beside; fi
part "Tests under wine" xvfb-run -a ctest --preset "$preset"
