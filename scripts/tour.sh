#!/usr/bin/env bash
# The tour: plays the whole program in a real window on a display that nobody sees. Three members
# of a team brainstorm, each with another bank of questions; their leader consolidates, rewords,
# ranks, maps, saves and reports. Leaves the files made and a picture of each screen in
# build/tour/.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

root=$PWD
tour=$root/build/tour
driver=$root/build/dev/bin/orvanta_driver
pictures=0

step() { printf '%s\n' "$*"; }

# Sends a line to the program and keeps its answer in $answer.
play() {
    if [[ -z ${PROGRAM_PID:-} ]] || ! printf '%s\n' "$1" >&"${PROGRAM[1]}" ||
        ! IFS= read -r -t 60 answer <&"${PROGRAM[0]}"; then
        echo "no answer to $1" >&2
        cat "$tour/driver.log" >&2
        exit 1
    fi
    if [[ $answer == *'"error":'* ]]; then
        echo "$1 was refused: $answer" >&2
        exit 1
    fi
}

# Numbers the next picture and names its file in $picture.
next_picture() {
    pictures=$((pictures + 1))
    printf -v picture '%s/%02d-%s.png' "$tour" "$pictures" "$1"
}

shot() {
    next_picture "$1"
    play "{\"do\":\"picture\",\"path\":\"$picture\"}"
}

click() { play "{\"do\":\"click\",\"button\":\"$1\"}"; }
choose() { play "{\"do\":\"choose\",\"option\":\"$1\"}"; }
drag() { play "{\"do\":\"drag\",\"list\":\"$1\",\"row\":$2,\"to\":\"$3\",\"at\":$4}"; }
answer_file() { play "{\"answer\":\"fileDialog\",\"path\":\"$1\"}"; }

type_in() { play "{\"do\":\"type\",\"control\":\"$1\",\"text\":\"$2\"}"; }

# Statements come separated by bars.
add_each() {
    local box=$1 statement statements
    IFS='|' read -r -a statements <<<"$2"
    for statement in "${statements[@]}"; do
        type_in "$box" "$statement"
        play "{\"do\":\"enter\",\"control\":\"$box\"}"
    done
}

# Presses Next until the state shows what is waited for.
next_until() {
    for ((i = 0; i < 200; i++)); do
        click BNext
        play '{"do":"state"}'
        [[ $answer != *"$1"* ]] || return 0
    done
    echo "no press of Next leads to $1" >&2
    exit 1
}

# NAME FILE OPTION STRENGTHS WEAKNESSES OPPORTUNITIES THREATS
brainstorm() {
    local file=$2
    step "$1 brainstorms"
    click Brainstorm
    type_in txtName "$1"
    choose "$3"
    shot "$file-chooses"
    click BNext
    add_each txtStrength "$4"
    shot "$file-strengths"
    next_until '"fraWeakness":true'
    add_each txtWeakness "$5"
    shot "$file-weaknesses"
    next_until '"fraOpportunity":true'
    add_each txtOpportunity "$6"
    shot "$file-opportunities"
    next_until '"fraThreats":true'
    add_each txtThreat "$7"
    next_until '"lblBtnBNext":"Save..."'
    shot "$file-threats"
    answer_file "$tour/$file.bsm"
    click BNext
    [[ -s $tour/$file.bsm ]] || { echo "$file.bsm was not written" >&2; exit 1; }
}

add_source() {
    answer_file "$tour/$1.bsm"
    click AFAdd
}

analyze() {
    step "The leader adds the three files"
    click Analyze
    add_source dana
    add_source lee
    add_source kim
    shot source-files
    step "The strengths are consolidated, one is reworded"
    click ANext
    shot consolidated-strengths
    play '{"do":"select","list":"lvAStrength","row":2}'
    next_picture edit-statement
    play "{\"answer\":\"frmEdit\",\"steps\":[{\"text\":\"Riders know every street\"},{\"picture\":\"$picture\"},{\"press\":\"ok\"}]}"
    click ASEdit
    shot reworded-strengths
    step "The weaknesses are looked through"
    click ANext
    shot consolidated-weaknesses
    step "Opportunities and threats are ranked by dragging"
    click ANext
    drag lvAOpportunity 1 lvAOpportunity 3
    shot ranked-opportunities
    click ANext
    drag lvAThreat 4 lvAThreat 1
    shot ranked-threats
    step "Strengths and weaknesses are mapped onto the opportunities"
    click ANext
    drag lvStrengthOp 1 lvOpportunity 1
    drag lvWeaknessOp 2 lvOpportunity 1
    drag lvStrengthOp 4 lvOpportunity 4
    drag lvWeaknessOp 1 lvOpportunity 4
    shot mapped-opportunities
    # Onto each: on the web page one without leaves a gap.
    step "Strengths and weaknesses are mapped onto the threats"
    click ANext
    drag lvStrengthTh 5 lvThreat 1
    drag lvWeaknessTh 2 lvThreat 1
    drag lvStrengthTh 1 lvThreat 4
    drag lvStrengthTh 4 lvThreat 6
    drag lvStrengthTh 6 lvThreat 8
    drag lvWeaknessTh 5 lvThreat 8
    shot mapped-threats
    step "The analysis is saved"
    answer_file "$tour/team.aze"
    click ANext
    [[ -s $tour/team.aze ]] || { echo "team.aze was not written" >&2; exit 1; }
}

report() {
    step "The report is made"
    next_picture report-dialog
    play "{\"answer\":\"frmReportType\",\"steps\":[{\"format\":0},{\"text\":\"$tour/team.aze\"},{\"picture\":\"$picture\"},{\"press\":\"ok\"}]}"
    click Report
    cp -- "$tour/app/System/report.htm" "$tour/report.htm"
}

play_all() {
    openbox >"$tour/openbox.log" 2>&1 &
    trap 'kill "$window_manager" 2>/dev/null || true' EXIT
    window_manager=$!
    coproc PROGRAM { exec "$driver" --app "$tour/app" --documents "$tour/docs" \
        --settings "$tour/settings.json" --window 2>"$tour/driver.log"; }
    step "The program starts"
    play '{"do":"start"}'
    shot home
    brainstorm "Dana Reyes" dana optMP \
        "Loyal customers|Riders know the city|Own repair shop" \
        "No service at night|Prices above the market" \
        "Shops deliver on the same day|The old town closes to cars" \
        "A chain opens nearby|Rain keeps customers away"
    brainstorm "Lee Park" lee optGBS \
        "Low running costs|A name people trust" \
        "Bookkeeping on paper" \
        "The city pays for cargo bikes" \
        "Rents rise"
    brainstorm "Kim Alder" kim optHRP \
        "Riders stay for years" \
        "Too few trainees|Shifts known late" \
        "A school for riders next door" \
        "Riders leave for larger firms"
    analyze
    report
    step "The program ends"
    printf '%s\n' '{"do":"close"}' >&"${PROGRAM[1]}"
    wait "$PROGRAM_PID"
}

browse() {
    step "The report is opened in a browser"
    local profile
    profile=$(mktemp -d)
    next_picture report-in-browser
    timeout 120 chromium-headless-shell --no-sandbox --disable-gpu --disable-quic --no-first-run \
        --disable-background-networking --disable-component-update --disable-sync \
        --user-data-dir="$profile" --hide-scrollbars --window-size=1100,1000 \
        --screenshot="$picture" "file://$tour/report.htm" >"$tour/browser.log" 2>&1 ||
        { cat "$tour/browser.log" >&2; exit 1; }
    rm -rf -- "$profile"
}

check_pictures() {
    local made
    made=$(find "$tour" -name '*.png' -size +1k | wc -l)
    ((made == pictures)) || { echo "$made pictures of $pictures are there" >&2; exit 1; }
    step "$pictures pictures, the files of the session and report.htm lie in build/tour/"
}

prepare() {
    scripts/install.sh tour
    if command -v ccache >/dev/null; then export CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
    cmake --preset dev
    cmake --build --preset dev --target orvanta_driver
    rm -rf -- "$tour"
    mkdir -p "$tour/app" "$tour/docs"
    cp -- data/*.txt "$tour/app/"
}

if [[ ${1:-} != inside ]]; then
    prepare
    runtime=$(mktemp -d)
    trap 'rm -rf -- "$runtime"' EXIT
    XDG_RUNTIME_DIR=$runtime XDG_CONFIG_HOME=$runtime QT_QPA_PLATFORM=xcb \
        xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$root/scripts/tour.sh" inside
else
    play_all
    browse
    check_pictures
fi
