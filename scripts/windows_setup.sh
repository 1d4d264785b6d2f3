#!/usr/bin/env bash
# Makes what people download for Windows, from what scripts/windows.sh has built:
#   scripts/windows_setup.sh BUILD
# the installer build/windows/packages/Orvanta-VERSION-setup.exe and the folder to be unpacked
# anywhere, Orvanta-VERSION-portable.zip. Neither is signed; docs/windows.md says how.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
build=$(realpath -- "${1:?usage: $0 BUILD}")

version=$(sed -n 's/^project(orvanta VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
years=$(sed -n 's/^Copyright (c) //p' LICENSE)
packages=$PWD/build/windows/packages
folder=$packages/Orvanta-$version
removed=$packages/removed.nsh

# A line for each file, then one for each folder, the inner ones first.
# shellcheck disable=SC2016  # $INSTDIR is the name of the folder in the installer
removing_lines() {
    find . -type f -printf '%P\n' | sort |
        sed 's|/|\\|g; s|.*|Delete "$INSTDIR\\&"|'
    find . -mindepth 1 -type d -printf '%P\n' | sort -r |
        sed 's|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|'
}

rm -rf -- "$packages"
mkdir -p "$packages"
cmake --install "$build" --prefix "$folder" >"$packages/installed.log"
find "$folder" \( -name '*.dll' -o -name '*.exe' \) -exec x86_64-w64-mingw32-strip {} +
(cd "$folder" && removing_lines) >"$removed"
makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DYEARS="$years" -DFOLDER="$folder" \
    -DREMOVED="$removed" -DFOR_ALL="$PWD/packaging/system-wide" \
    -DICON="$build/packaging/windows/orvanta.ico" -DSETUP="$folder-setup.exe" \
    packaging/windows/setup.nsi
(cd "$packages" && zip -qr "Orvanta-$version-portable.zip" "Orvanta-$version")
(cd "$packages" && ls -l ./*.exe ./*.zip)
