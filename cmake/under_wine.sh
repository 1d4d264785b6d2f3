#!/bin/sh
# Runs a program for Windows. The first one starts wine's own services, which live on for a while:
# had they the program's output, whoever reads that to its end would wait for them.
export WINEPREFIX="${WINEPREFIX:-$(dirname -- "$0")/../build/wine}" WINEDEBUG="${WINEDEBUG:--all}"
WINEPREFIX=$(realpath -m -- "$WINEPREFIX")  # wine takes no other name
output=$(mktemp) || exit
trap 'rm -f "$output"' EXIT
wine "$@" </dev/null >"$output" 2>&1
result=$?
cat "$output"
exit "$result"
