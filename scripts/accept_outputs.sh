#!/usr/bin/env bash
# Keeps the answers that the scenarios get now, played behind the toolkit-free view, as the
# expected ones, and so the layouts of the forms. Read the difference like code before committing
# it.
#   scripts/accept_outputs.sh [AREA/CLAIM ...]     all scenarios when none is named
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset headless >/dev/null
cmake --build --preset headless --target orvanta_driver orvanta_scenarios \
    orvanta_core_tests orvanta_presentation_tests orvanta_reports_tests
build/headless/bin/orvanta_scenarios --driver build/headless/bin/orvanta_driver \
    --scenarios tests/scenarios --accept "$@"
for folder in core presentation reports; do
    ORVANTA_KEEP_LAYOUTS=1 "build/headless/bin/orvanta_${folder}_tests" \
        --gtest_filter='*Layout.IsAsDesigned' --gtest_brief=1
done
git --no-pager diff --stat -- tests/scenarios tests/data/layouts
