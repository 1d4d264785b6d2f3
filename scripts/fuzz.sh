#!/usr/bin/env bash
# Tries made-up bytes on each reader, with the address and undefined behaviour sanitizers, and
# keeps the inputs that reached new code in tests/fuzz/corpus, which every build's tests run.
#   scripts/fuzz.sh [SECONDS [TARGET ...]]     60 seconds each, all targets when none is named
# An input that a target fails on is left in build/fuzz/failed; the script then ends with 1.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

seconds=${1:-60}
targets=("${@:2}")
[[ $seconds =~ ^[0-9]+$ ]] || { echo "usage: $0 [SECONDS [TARGET ...]]" >&2; exit 2; }

scripts/install.sh fuzz
cmake --preset fuzz
cmake --build --preset fuzz
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:detect_stack_use_after_return=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}

work=build/fuzz
corpus=tests/fuzz/corpus
if ((${#targets[@]} == 0)); then
    for program in "$work"/bin/orvanta_fuzz_*; do targets+=("${program##*/orvanta_fuzz_}"); done
fi

# Real files, which the first inputs are made from.
copy_seeds() {
    local into=$2
    case $1 in
        question_bank) cp data/[!a]*questions.txt "$into" ;;
        analyze_texts) cp data/analyzequestions.txt "$into" ;;
        brainstorm_file | merge) copy_from_scenarios "$into" '*.bsm' brainstorm.tmp ;;
        analyze_file | report) copy_from_scenarios "$into" '*.aze' analyze.tmp ;;
        driver_lines) copy_lines "$into" ;;
    esac
}

copy_from_scenarios() {
    find tests/scenarios -type f \( -name "$2" -o -name "$3" \) -exec cp --backup=numbered -t "$1" {} +
}

# The lines of the scenarios as the driver gets them, in files and as words of a dictionary. The
# fuzzer takes words of 64 bytes at most.
copy_lines() {
    local lines number=0
    for lines in tests/scenarios/*/*/lines.jsonl; do
        number=$((number + 1))
        sed -n 's/[$]DIR\///g; /^{"\(do\|answer\)"/p' "$lines" >"$1/$number"
    done
    cat "$1"/* | LC_ALL=C sort -u | LC_ALL=C awk 'length <= 63 && !/[^ -~]/' |
        sed 's/[\\"]/\\&/g; s/.*/"&\\x0a"/' >"$work/lines.dict"
}

failed=0
for target in "${targets[@]}"; do
    rm -rf "$work/seeds/$target"
    mkdir -p "$work/seeds/$target" "$work/found/$target" "$work/failed" "$corpus/$target"
    copy_seeds "$target" "$work/seeds/$target"
    words=tests/fuzz/words.dict
    [[ $target != driver_lines ]] || words=$work/lines.dict
    echo "== $target: $seconds seconds"
    program=$work/bin/orvanta_fuzz_$target
    "$program" -max_total_time="$seconds" -max_len=4096 -timeout=30 -dict="$words" -verbosity=0 \
        -print_final_stats=1 -artifact_prefix="$work/failed/$target-" \
        "$work/found/$target" "$corpus/$target" "$work/seeds/$target" || failed=1
    # By the lines reached alone: how often each was passed would fill the folder with likenesses.
    "$program" -merge=1 -use_counters=0 -max_len=4096 -verbosity=0 \
        "$corpus/$target" "$work/found/$target" "$work/seeds/$target" || failed=1
done
du -sh "$corpus"
exit "$failed"
