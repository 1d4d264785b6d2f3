#!/usr/bin/env bash
# Runs a program on a virtual screen of its own, on a desktop whose letters have a size.
#   on_screen.sh WIDTHxHEIGHT SCALE POINTS PROGRAM [ARGUMENT ...]
set -euo pipefail

home=$(mktemp -d)
trap 'rm -rf -- "$home"' EXIT
# The generic desktop of Qt that reads its letters from a file is that of KDE.
printf '[General]\nfont=DejaVu Sans,%s,-1,5,50,0,0,0,0,0\n' "$3" >"$home/kdeglobals"
XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=kde \
    KDE_SESSION_VERSION=5 QT_SCALE_FACTOR=$2 \
    xvfb-run -a -n $((10000 + $$ % 9000)) -s "-screen 0 $1x24 -noreset" "${@:4}"
