#!/usr/bin/env bash
# What takes longer than a test run should.
#   scripts/soak.sh [SESSIONS [FIRST_SEED]]
# Plays made-up sessions, 1000 unless told otherwise, each killed at a random moment, and looks
# whether the next start brings back what stood. A failure names the seed of its session.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

sessions=${1:-1000}
first=${2:-1}
[[ $sessions =~ ^[0-9]+$ && $first =~ ^[0-9]+$ ]] ||
    { echo "usage: $0 [SESSIONS [FIRST_SEED]]" >&2; exit 2; }

scripts/install.sh headless
cmake --preset headless
cmake --build --preset headless --target orvanta_driver orvanta_kills
build/headless/bin/orvanta_kills build/headless/bin/orvanta_driver "$sessions" "$first"
