#!/usr/bin/env bash
# Measures how the cost of the heavy work grows with its size: each piece of work at half its size
# and at its whole, and how many times the half the whole takes. 2 is linear growth, 1 none. What has
# a floor, a minimal program that does the same reading, keying and writing, is told as so many times
# of it. Ends with 1 where work grows beyond 1.1 times the growth of its floor.
#   scripts/benchmark.sh [PATTERN]     all benchmarks, or those whose name holds the pattern
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

build=build/benchmarks
{
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DORVANTA_DESKTOP=OFF
    cmake --build "$build" --target orvanta_benchmarks
} >&2

# Memory that goes back to the system between two rounds would cost more than the work itself.
export MALLOC_MMAP_THRESHOLD_=2000000000 MALLOC_TRIM_THRESHOLD_=2000000000

# The best of several rounds in mixed order: what a busy machine adds falls away.
"$build/bin/orvanta_benchmarks" --benchmark_filter="${1:-.}" --benchmark_format=csv \
    --benchmark_repetitions="${REPETITIONS:-9}" --benchmark_enable_random_interleaving=true \
    --benchmark_min_time="${SECONDS_EACH:-0.1}" |
    awk -F, '
        { gsub(/"/, "") }
        $1 ~ /\/[0-9]+/ && $1 !~ /_(mean|median|stddev|cv)$/ {
            split($1, name, "/")
            work = name[1]
            size = name[2] + 0
            time = ($1 ~ /manual_time/ ? $3 : $4) + 0  # both are time on the processor
            if (work == "memoryOfConsolidatedStatements") bytes = $NF
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
            exit steep != ""
        }'
