#!/usr/bin/env bash
# Shows how many lines and branches of src/ the tests reach, folder by folder.
#   scripts/coverage.sh [CTEST ARGUMENT ...]     such as -R scenario; all tests when none is given
# What no test reaches is marked in build/coverage/report/index.html then.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

scripts/install.sh test coverage
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    export CCACHE_SLOPPINESS=pch_defines,time_macros
fi
build=build/coverage
# Processes that a test forks off tell their counts themselves.
cmake --preset dev -B "$build" -DCMAKE_CXX_FLAGS=--coverage \
    -DCMAKE_EXE_LINKER_FLAGS=-Wl,--undefined=__gcov_dump
cmake --build "$build"
find "$build" -name '*.gcda' -delete
(cd "$build" && ctest --output-on-failure --timeout 600 --parallel "$(nproc)" "$@")

mkdir -p "$build/report"
# A program that a test kills leaves half-written counts; they count as none.
gcovr --root . --filter src/ --gcov-ignore-parse-errors --exclude-throw-branches \
    --json "$build/report/coverage.json" --html-details "$build/report/index.html" "$build"
print_row() {
    local lines branches
    read -r lines branches < <(gcovr --root . --filter "$2" --exclude-throw-branches \
        --add-tracefile "$build/report/coverage.json" --json-summary |
        python3 -c 'import json, sys; s = json.load(sys.stdin)
print(s["line_percent"], s["branch_percent"])')
    printf '%-20s %8s %8s\n' "$1" "$lines" "$branches"
}
printf '%-20s %8s %8s\n' folder lines branches
for folder in src/*/; do
    print_row "${folder#src/}" "$folder"
done
print_row 'all but desktop/' 'src/(?!desktop/)'
print_row 'all' src/
