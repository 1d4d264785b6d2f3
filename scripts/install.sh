#!/usr/bin/env bash
# Installs what the build, the tests, the tour and the checks need and this system lacks.
#   scripts/install.sh [run|test|tour|check|fuzz|coverage|mutate ...]     all of them when none is named
set -euo pipefail

sound="qt6-multimedia-dev libavcodec-dev libswresample-dev zlib1g-dev pkg-config"
voice="festival festvox-us-slt-hts sox ffmpeg"
declare -A packages=(
    [run]="g++ cmake ninja-build libboost1.81-dev qt6-base-dev qt6-svg-dev fonts-dejavu-core xdg-utils
           $sound $voice"
    [test]="g++ cmake ninja-build libboost1.81-dev qt6-base-dev qt6-svg-dev fonts-dejavu-core libgtest-dev
            libbenchmark-dev nlohmann-json3-dev xvfb xauth xdotool dbus ccache
            libreoffice-writer-nogui poppler-utils abiword pandoc unrtf fonts-liberation
            $sound $voice pulseaudio pulseaudio-utils
            python3 python3-gi gir1.2-atspi-2.0 at-spi2-core
            chromium php-cli tidy"
    [tour]="g++ cmake ninja-build libboost1.81-dev qt6-base-dev qt6-svg-dev fonts-dejavu-core nlohmann-json3-dev
            libgtest-dev libbenchmark-dev xvfb xauth openbox dbus chromium"
    [check]="clang-format clang-tidy git shellcheck python3 g++ cmake ninja-build libboost1.81-dev
             qt6-base-dev qt6-svg-dev nlohmann-json3-dev libgtest-dev libbenchmark-dev $sound"
    [fuzz]="clang libclang-rt-dev cmake ninja-build libboost1.81-dev qt6-base-dev qt6-svg-dev nlohmann-json3-dev
            libgtest-dev libbenchmark-dev $sound"
    [coverage]="gcovr"
    [mutate]="bubblewrap lld"
)

wanted=()
for purpose in "${@:-run test tour check fuzz coverage mutate}"; do
    for name in $purpose; do
        [[ -n ${packages[$name]:-} ]] ||
            { echo "usage: $0 [run|test|tour|check|fuzz|coverage|mutate ...]" >&2; exit 2; }
        read -r -d '' -a words <<<"${packages[$name]}" || true
        wanted+=("${words[@]}")
    done
done
mapfile -t wanted < <(printf '%s\n' "${wanted[@]}" | sort -u)

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "There is no apt here, so nothing is installed. These packages, named as on Debian, are" \
         "needed: ${wanted[*]}. Going on with what is here."
    exit 0
fi

installed=$(dpkg-query -W -f='${db:Status-Status} ${binary:Package}\n' | sed -n 's/^installed //p' |
    sed 's/:.*//')
missing=()
for package in "${wanted[@]}"; do
    grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done
((${#missing[@]})) || exit 0

as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "Missing packages: ${missing[*]}. Install them as root; there is no sudo here." >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get -q update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q install -y --no-install-recommends "${missing[@]}"
