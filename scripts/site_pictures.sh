#!/usr/bin/env bash
# Takes the pictures of the program on the pages in site/ anew.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

pictures=$PWD/site/pictures
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

take_report() {
    mkdir -p "$work/app" "$work/docs"
    build/dev/bin/orvanta_driver --app "$work/app" --documents "$work/docs" \
        --settings "$work/settings.json" >"$work/answers" <<LINES
{"do":"start"}
{"answer":"frmReportType","steps":[{"format":0},{"text":"$PWD/tests/data/reports/pedal_post.aze"},{"press":"ok"}]}
{"do":"click","button":"Report"}
LINES
    chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
        --disable-background-networking --disable-component-update --disable-sync \
        --user-data-dir="$work/profile" --hide-scrollbars --force-device-scale-factor=2 \
        --window-size=960,600 --screenshot="$pictures/report.png" \
        "file://$work/app/System/report.htm" 2>"$work/browser.log" ||
        { cat "$work/browser.log" >&2; exit 1; }
}

scripts/install.sh tour
scripts/screens.sh
cmake --build --preset dev --target orvanta_driver
cp -- build/screens/light-2x/*-question-strengths.png "$pictures/brainstorm.png"
cp -- build/screens/light-2x/*-analyze-opportunities.png "$pictures/ranking.png"
cp -- build/screens/light-2x/*-mapping-opportunities.png "$pictures/mapping.png"
take_report
# A test holds them against the texts of now.
{ cat data/analyzequestions.txt; grep -m 1 '?' data/mpquestions.txt; } |
    tr -d '\r' >tests/site/pictured_texts.txt
