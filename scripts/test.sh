#!/usr/bin/env bash
# Builds the program and runs all tests: first without the window, then with it, then with the
# address and undefined behaviour sanitizers.
#   scripts/test.sh [headless|dev|asan ...]     all three when none is named
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

presets=("$@")
((${#presets[@]})) || presets=(headless dev asan)
scripts/install.sh "${presets[@]}"
if command -v ccache >/dev/null; then
    # The presets share what they compile alike.
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    export CCACHE_SLOPPINESS=pch_defines,time_macros
fi
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:detect_stack_use_after_return=1}
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$PWD/tests/leaks.supp:print_suppressions=0}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}

for preset in "${presets[@]}"; do
    echo "== $preset: configure"
    # What needs no window is tested without it, where that is asked for as well.
    logic_tests=ON
    [[ $preset == dev && " ${presets[*]} " == *" headless "* ]] && logic_tests=OFF
    cmake --preset "$preset" -DORVANTA_LOGIC_TESTS=$logic_tests
    echo "== $preset: build"
    cmake --build --preset "$preset"
    echo "== $preset: test"
    # One more than processors, since some tests wait for a screen more than they work; another one
    # where the voice is listened to for two minutes, which takes hardly any work.
    beside=1
    [[ $preset == dev ]] && beside=2
    ctest --preset "$preset" --parallel $(($(nproc) + beside))
    # Faults and kills are told in figures; the faults don't run under the sanitizers.
    grep -hE '^(faults|kills): ' "build/$preset/Testing/Temporary/LastTest.log" || true
done
