#!/usr/bin/env bash
# Takes the pictures of the program in docs/ and on the pages in site/ anew.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

# THEME-SCALEx/SCREEN FILE
take() { cp -- "build/screens/${1%/*}"/*-"${1#*/}".png "$2"; }

# WIDTH,HEIGHT SCALE FILE: of the web report as a browser shows it.
take_report() {
    chromium-headless-shell --no-sandbox --disable-gpu --disable-quic --no-first-run \
        --disable-background-networking --disable-component-update --disable-sync \
        --user-data-dir="$work/profile" --hide-scrollbars --force-device-scale-factor="$2" \
        --window-size="$1" --screenshot="$PWD/$3" \
        "file://$work/app/System/report.htm" 2>"$work/browser.log" ||
        { cat "$work/browser.log" >&2; exit 1; }
}

make_report() {
    mkdir -p "$work/app" "$work/docs"
    build/dev/bin/orvanta_driver --app "$work/app" --documents "$work/docs" \
        --settings "$work/settings.json" >"$work/answers" <<LINES
{"do":"start"}
{"answer":"frmReportType","steps":[{"format":0},{"text":"$PWD/tests/data/reports/pedal_post.aze"},{"press":"ok"}]}
{"do":"click","button":"Report"}
LINES
}

scripts/install.sh tour
scripts/screens.sh
cmake --build --preset dev --target orvanta_driver
make_report

take light-2x/question-strengths site/pictures/brainstorm.png
take light-2x/analyze-opportunities site/pictures/ranking.png
take light-2x/mapping-opportunities site/pictures/mapping.png
take_report 960,600 2 site/pictures/report.png

take light-1x/question-strengths docs/brainstorm.png
take light-1x/mapping-opportunities docs/mapping.png
take contrast-1x/mapping-opportunities docs/mapping-contrast.png

mkdir -p docs/guide
take light-1x/home docs/guide/home.png
take light-1x/choice docs/guide/choice.png
take light-1x/source-files docs/guide/source-files.png
take light-1x/analyze-opportunities docs/guide/ranking.png
take_report 960,600 1 docs/guide/report.png

# A test holds them against the texts of now.
{ cat data/analyzequestions.txt; grep -m 1 '?' data/mpquestions.txt; } |
    tr -d '\r' >tests/site/pictured_texts.txt
