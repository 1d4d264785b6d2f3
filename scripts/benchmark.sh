#!/usr/bin/env bash
# Measures how the cost of the heavy work grows with its size: each piece of work at half its size
# and at its whole, and how many times the half the whole takes. 2 is linear growth, 1 none. What has
# a floor, a minimal program that does the same reading, keying and writing, is told as so many times
# of it. Ends with 1 where work grows beyond 1.1 times the growth of its floor. Where Qt and a virtual
# screen are installed, also how long the window holds its events, and its start beside others; where
# LibreOffice and pandoc are, the document beside theirs.
#   scripts/benchmark.sh [PATTERN]     all benchmarks, or those whose name holds the pattern; the last
#                                      three are called window, start and document
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

pattern=${1:-}
is_there() {
    local program
    for program in "$@"; do command -v "$program" >/dev/null || return 1; done
}
is_wanted() { [[ $1 == *"$pattern"* ]]; }

build=build/benchmarks desktop=OFF targets=(orvanta_benchmarks orvanta_driver)
if is_there xvfb-run pkg-config && pkg-config --exists Qt6Widgets; then
    desktop=ON
    targets+=(orvanta orvanta_window_benchmark orvanta_start_benchmark orvanta_empty_window)
fi
{
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DORVANTA_DESKTOP=$desktop \
        -DORVANTA_TESTS=ON
    cmake --build "$build" --target "${targets[@]}"
} >&2

# Memory that goes back to the system between two rounds would cost more than the work itself.
export MALLOC_MMAP_THRESHOLD_=2000000000 MALLOC_TRIM_THRESHOLD_=2000000000

measure_work() {
    # The best of several rounds in mixed order: what a busy machine adds falls away.
    "$build/bin/orvanta_benchmarks" --benchmark_filter="${pattern:-.}" --benchmark_format=csv \
        --benchmark_repetitions="${REPETITIONS:-9}" --benchmark_enable_random_interleaving=true \
        --benchmark_min_time="${SECONDS_EACH:-0.1}" |
        awk -F, '
            { gsub(/"/, "") }
            $9 == "true" { print $1 ": " $10; failed = 1; next }
            $1 ~ /\/[0-9]+/ && $1 !~ /_(mean|median|stddev|cv)$/ {
                split($1, name, "/")
                work = name[1]
                size = name[2] + 0
                time = ($1 ~ /manual_time/ ? $3 : $4) + 0  # both are time on the processor
                if (work == "memoryOfConsolidatedStatements") bytes = $8
                if (!((work, size) in best) || time < best[work, size]) best[work, size] = time
                if (!(work in half) || size < half[work]) half[work] = size
                if (!(work in whole) || size > whole[work]) whole[work] = size
            }
            END {
                for (work in whole) {
                    if (half[work] == whole[work]) continue
                    growth[work] = best[work, whole[work]] / best[work, half[work]]
                    printf "%-38s %7d -> %7d  %5.2f times\n", work, half[work], whole[work],
                           growth[work] | "sort"
                }
                close("sort")
                for (work in whole) {
                    floor = work "Floor"
                    if (!(floor in whole)) continue
                    printf "%-38s %5.2f times its floor\n", work,
                           best[work, whole[work]] / best[floor, whole[floor]] | "sort"
                    if (growth[work] > 1.1 * growth[floor]) {
                        steep = steep sprintf("%s grows by %.2f, its floor by %.2f\n", work,
                                              growth[work], growth[floor])
                    }
                }
                close("sort")
                if (bytes) printf "a statement with its companions takes %d bytes beside its text\n", bytes
                printf "%s", steep
                exit failed || steep != ""
            }'
}

status=0
case $pattern in
    window | start | document) ;;
    *) measure_work || status=1 ;;
esac

# A program that stands still would stop the rest.
on_a_screen() {
    local home
    home=$(mktemp -d)
    HOME=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home XDG_RUNTIME_DIR=$home \
        timeout 600 xvfb-run -a -s "-screen 0 1280x1024x24" "$@"
    rm -rf -- "$home"
}

if [[ $desktop == ON ]] && is_wanted window; then
    on_a_screen "$build/bin/orvanta_window_benchmark" || status=1
fi

if [[ $desktop == ON ]] && is_wanted start; then
    programs=("$build/bin/orvanta_empty_window" "$build/bin/orvanta")
    if is_there vym; then programs+=("$(command -v vym)"); fi
    on_a_screen "$build/bin/orvanta_start_benchmark" 10 "${programs[@]}" |
        awk '{ name = $4; sub(/.*\//, "", name) }
             NR == 1 { processor = $1; elapsed = $2; next }
             { printf "start of %-29s %5.2f times an empty window, %.2f elapsed, %.1f MiB\n", name,
                      $1 / processor, $2 / elapsed, $3 / 1024 }' || status=1
fi

if is_there soffice pandoc && is_wanted document; then
    scripts/compare_rtf.sh "$build/bin/orvanta_driver" || status=1
fi
exit $status
