#!/usr/bin/env bash
# Makes the Debian packages, the program and its sound, and the tarball of the portable folder, has
# Debian's own tools look at the packages, and leaves all in build/package/packages/.
#   scripts/package.sh          makes them
#   scripts/package.sh test     and installs, plays and removes the packages on a fresh Debian in a
#                               folder; takes root
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

build=build/package
purposes=(run package)
case ${1:-} in
    '') ;;
    test)
        ((EUID == 0)) || { echo "The test installs a system, which takes root." >&2; exit 1; }
        purposes+=(package_test)
        ;;
    *) echo "usage: $0 [test]" >&2; exit 2 ;;
esac

# Prints what is wrong with the packages; silent when all is well.
check_packages() {
    local content
    content=$(mktemp -d)
    dpkg-deb -x "$1" "$content"
    lintian --allow-root --fail-on error,warning -- "$@"
    desktop-file-validate "$content"/usr/share/applications/*.desktop
    appstreamcli validate --no-net "$content"/usr/share/metainfo/*.metainfo.xml
    xmllint --noout "$content"/usr/share/mime/packages/*.xml
    rm -rf -- "$content"
}

scripts/install.sh "${purposes[@]}"
if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
# The same source gives the same bytes, whenever it is packed.
if [[ -z ${SOURCE_DATE_EPOCH:-} ]] && command -v git >/dev/null; then
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
    export SOURCE_DATE_EPOCH
fi
cmake --preset package
cmake --build --preset package
[[ -n $(find "$build/bin/Sounds" -name '*.swf' -print -quit) ]] ||
    { echo "No package without the voice: its clips were not made." >&2; exit 1; }
rm -rf -- "$build/packages"
(cd "$build" && cpack)
packages=("$build"/packages/orvanta_*.deb "$build"/packages/orvanta-sound_*.deb)
check_packages "${packages[@]}"
if [[ ${1:-} == test ]]; then tests/packaging/package_test.sh "${packages[@]}"; fi
ls -l "$build/packages"/orvanta*
