#!/usr/bin/env bash
# What takes longer than a test run should.
#   scripts/soak.sh                                 both, as told below
#   scripts/soak.sh kills [SESSIONS [FIRST_SEED]]
#       Plays made-up sessions, 1000 unless told otherwise, each killed at a random moment, and
#       looks whether the next start brings back what stood.
#   scripts/soak.sh monkey [SECONDS [FIRST_SEED]]
#       Acts by chance in the real window, under the sanitizers, for ten minutes unless told
#       otherwise. The first seed is the time of day unless told otherwise.
# A failure names the seed of its session; one session is played again by "kills 1 SEED" and
# "monkey 0 SEED".
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

what=${1:-both}
for number in "${@:2}"; do
    [[ $number =~ ^[0-9]+$ ]] || what=wrong
done
(($# <= 3)) || what=wrong

play_kills() {
    cmake --preset headless
    cmake --build --preset headless --target orvanta_driver orvanta_kills
    build/headless/bin/orvanta_kills build/headless/bin/orvanta_driver "${1:-1000}" "${2:-1}"
}

play_monkey() {
    local seconds=${1:-600} seed=${2:-$(date +%s)} sessions=0
    ((seconds > 0)) || sessions=1
    export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:detect_stack_use_after_return=1}
    export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$PWD/tests/leaks.supp:print_suppressions=0}
    export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}
    cmake --preset asan
    cmake --build --preset asan --target orvanta_monkey
    echo "monkey: $seconds seconds, first seed $seed"
    build/asan/bin/orvanta_monkey "$sessions" "$seconds" "$seed"
}

case $what in
    both | monkey) scripts/install.sh dev ;;
    kills) scripts/install.sh headless ;;
    *)
        echo "usage: $0 [kills [SESSIONS [FIRST_SEED]] | monkey [SECONDS [FIRST_SEED]]]" >&2
        exit 2
        ;;
esac
[[ $what == monkey ]] || play_kills "${@:2}"
[[ $what == kills ]] || play_monkey "${@:2}"
