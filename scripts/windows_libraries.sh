#!/usr/bin/env bash
# Makes the libraries that the program takes on Windows, once, from Debian's source packages:
#   scripts/windows_libraries.sh [--qt PREFIX] [--sources DIR]
# Qt in build/windows/qt, but for --qt, which names one that is there already; the decoders of the
# voice in build/windows/decoders. --sources: a folder with tarballs of sources that apt does not
# give, as qtsvg-6.4.2.tar.xz. What can't be had is said before anything is made.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

qt=$PWD/build/windows/qt decoders=$PWD/build/windows/decoders sources=''
own_qt=1
while (($#)); do
    case $1 in
        --qt) qt=$(realpath -- "$2") && own_qt=0 && shift ;;
        --sources) sources=$(realpath -- "$2") && shift ;;
        *) echo "usage: $0 [--qt PREFIX] [--sources DIR]" >&2; exit 2 ;;
    esac
    shift
done

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
        mkdir -p "$made/unpacked"
        tar -xf "$tarball" -C "$made/unpacked" --strip-components=1
        mv "$made/unpacked" "$made/$module-unpacked"
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
lacks_qt() { ((own_qt)) && [[ ! -f $qt/made ]]; }
lacks_decoders() { [[ ! -f $decoders/made ]]; }
all_sources() {
    local missing=0
    list_sources
    if lacks_qt; then
        unpack_module qt6-base qtbase-everywhere-src || missing=1
        unpack_module qt6-svg qtsvg-everywhere-src || missing=1
    fi
    if lacks_decoders; then unpack_module ffmpeg ffmpeg || missing=1; fi
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

# The decoders of the voice and what brings their sound to one form; all else stays off.
make_decoders() (
    local source
    source=$(module_folder ffmpeg)
    mkdir -p "$made/build-ffmpeg"
    cd "$made/build-ffmpeg"
    "$source/configure" --prefix="$decoders" --enable-cross-compile --target-os=mingw32 \
        --arch=x86_64 --cross-prefix=x86_64-w64-mingw32- --disable-everything \
        --disable-autodetect --disable-programs --disable-doc --disable-avformat \
        --disable-avdevice --disable-avfilter --disable-swscale --disable-network \
        --disable-debug --disable-x86asm --enable-shared --disable-static \
        --enable-decoder=mp3float,adpcm_swf,nellymoser,pcm_u8,pcm_s16le --enable-parser=mpegaudio
    make -j"$(nproc)"
    make install
    touch "$decoders/made"
)

if lacks_qt || lacks_decoders; then all_sources; fi
if lacks_qt; then make_qt; fi
if lacks_decoders; then make_decoders; fi
