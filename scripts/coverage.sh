#!/usr/bin/env bash
# Shows how many lines and branches of src/ the tests reach, folder by folder.
#   scripts/coverage.sh [CTEST ARGUMENT ...]     such as -R scenario; all tests when none is given
# What no test reaches is marked in build/coverage/report/index.html then.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

scripts/install.sh test coverage
build=build/coverage
cmake --preset dev -B "$build" -DCMAKE_CXX_FLAGS=--coverage
cmake --build "$build"
find "$build" -name '*.gcda' -delete
(cd "$build" && ctest --output-on-failure --timeout 600 --parallel "$(nproc)" "$@")

mkdir -p "$build/report"
# A program that a test kills leaves half-written counts; they count as none.
gcovr --root . --filter src/ --gcov-ignore-parse-errors --exclude-throw-branches \
    --json "$build/report/coverage.json" --html-details "$build/report/index.html" "$build"
printf '%-14s %8s %8s\n' folder lines branches
for folder in src/*/ src/; do
    read -r lines branches < <(gcovr --root . --filter "$folder" --exclude-throw-branches \
        --add-tracefile "$build/report/coverage.json" --json-summary |
        python3 -c 'import json, sys; s = json.load(sys.stdin)
print(s["line_percent"], s["branch_percent"])')
    printf '%-14s %8s %8s\n' "${folder#src/}" "$lines" "$branches"
done
