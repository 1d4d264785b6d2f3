#!/usr/bin/env bash
# Changes src/ in one small place, builds, and looks whether the tests notice; does so many times.
#   scripts/mutate.sh [COUNT [SEED [WORKERS [PATH ...]]]]     100 mutants of src, seed 1, 2 workers
# The changes are made in copies of the tree in build/mutate. A change that does not compile is not
# counted; another one takes its place. The changes that no test noticed are printed at the end;
# build/mutate/report.txt tells of each change which test noticed it.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

for number in "${@:1:3}"; do
    [[ $number =~ ^[0-9]+$ ]] ||
        { echo "usage: $0 [COUNT [SEED [WORKERS [PATH ...]]]]" >&2; exit 2; }
done
scripts/install.sh test mutate
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_NOHASHDIR=1
    export CCACHE_SLOPPINESS=pch_defines,time_macros
fi
exec python3 scripts/mutate.py "${1:-100}" "${2:-1}" "${3:-2}" "${@:4}"
