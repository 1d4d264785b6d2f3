#!/usr/bin/env bash
# Makes a picture of every screen and dialog: at 1x and 2x, on a light, a dark and a high-contrast
# desktop, and with larger letters. They lie in build/screens/THEME-SCALEx/ and
# build/screens/THEME-SCALEx-POINTSpt/ then. Beside them are those of the least screens, and of teams
# with much or nothing to say.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

root=$PWD
screens=$root/build/screens

# GROUND INK BASE HIGHLIGHT, each as "red,green,blue": a colour scheme as the desktop stores it.
scheme() {
    local part
    for part in Window View Button Tooltip Selection; do
        printf '[Colors:%s]\n' "$part"
        case $part in
            View) printf 'BackgroundNormal=%s\nBackgroundAlternate=%s\n' "$3" "$1" ;;
            Selection) printf 'BackgroundNormal=%s\n' "$4" ;;
            *) printf 'BackgroundNormal=%s\n' "$1" ;;
        esac
        printf 'ForegroundNormal=%s\nForegroundLink=%s\n\n' "$2" "$4"
    done
}

declare -A schemes=(
    [light]="239,240,241 35,38,41 252,252,252 61,174,233"
    [dark]="42,46,50 252,252,252 27,30,32 61,174,233"
    [contrast]="0,0,0 255,255,0 0,0,0 0,255,255"
)

if [[ ${1:-} == inside ]]; then
    read -r -a colours <<<"${schemes[$2]}"
    {
        scheme "${colours[@]}"
        printf '[General]\nfont=DejaVu Sans,%s,-1,5,50,0,0,0,0,0\n' "$5"
    } >"$XDG_CONFIG_HOME/kdeglobals"
    exec "$root/build/dev/bin/orvanta_screens" "$screens/$3" "$4"
fi

# FOLDER THEME SCREEN SCALE TEAM POINTS: what it looks like on a screen of that size and scale, with
# letters of that size.
take() {
    local runtime
    runtime=$(mktemp -d)
    mkdir -p "$screens/$1"
    mkdir -m 700 -- "$runtime/Dana"
    # The generic desktop of Qt that reads its colours and letters from a file is that of KDE.
    XDG_RUNTIME_DIR=$runtime XDG_CONFIG_HOME=$runtime HOME=$runtime/Dana \
        QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=kde KDE_SESSION_VERSION=5 \
        QT_SCALE_FACTOR=$4 \
        xvfb-run -a -s "-screen 0 $3x24" scripts/screens.sh inside "$2" "$1" "$5" "$6"
    rm -rf -- "$runtime"
}

scripts/install.sh test
if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset dev
cmake --build --preset dev --target orvanta_screens
rm -rf -- "$screens"
for theme in light dark contrast; do
    for scale in 1 2; do
        take "$theme-${scale}x" "$theme" 2560x2048 "$scale" usual 9
    done
done
for points in 11.25 13.5 18; do
    take "light-1x-${points}pt" light 2560x2048 1 usual "$points"
done
for team in wordy silent crowd; do
    take "light-1x-$team" light 2560x2048 1 "$team" 9
done
for team in usual wordy silent crowd; do
    take "800x600-$team" light 800x600 1 "$team" 9
    take "1366x768-1.5x-$team" light 1366x768 1.5 "$team" 9
done
