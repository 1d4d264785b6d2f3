#!/usr/bin/env bash
# The tour on Windows: plays the installed program under wine with the mouse and the keyboard of a
# display that nobody sees.
#   scripts/windows_tour.sh SETUP.exe
# Installs it, brainstorms and hears the voice, analyzes, maps, makes both reports, kills the program amid a session
# and sees it come back, ends the system's session, then removes the program and looks for what is
# left. Pictures go into build/windows/tour/. wine's drive and the home folder are made anew.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
setup=$(realpath -- "${1:?usage: $0 SETUP.exe}")

tour=$PWD/build/windows/tour
export HOME=$tour/home WINEPREFIX=$tour/wine WINEDEBUG=-all
users=$WINEPREFIX/drive_c/users/$(id -un)
program=$users/AppData/Local/Programs/Orvanta
swot="$HOME/My SWOT"
pictures=0
patience=180 # seconds until what should happen counts as missing

step() { printf '%s\n' "$*"; }
fail() {
    import -window root "$tour/failed.png"
    echo "FAILED: $*; see $tour/failed.png" >&2
    exit 1
}
wait_for() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        ((SECONDS < end)) || fail "$what did not come"
        sleep 0.2
    done
}

shot() {
    sleep 0.8
    pictures=$((pictures + 1))
    import -window root "$(printf '%s/%02d-%s.png' "$tour" "$pictures" "$1")"
}

# The window of this title, shown.
find_window() {
    # A window that goes at that moment is an error to it.
    window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1)
    [[ -n $window ]]
}
in_window() {
    wait_for "the window $1" find_window "$1"
    sleep 0.5
}
main() { in_window Orvanta; }

# Places are pixels of the window that was found last.
click() {
    xdotool mousemove --window "$window" "$1" "$2" click 1
    sleep 0.5
}
drag() {
    local step
    xdotool mousemove --window "$window" "$1" "$2" mousedown 1
    sleep 0.2
    for ((step = 1; step <= 10; step++)); do
        xdotool mousemove --window "$window" \
            $(($1 + ($3 - $1) * step / 10)) $(($2 + ($4 - $2) * step / 10))
        sleep 0.05
    done
    sleep 0.3
    xdotool mouseup 1
    sleep 0.7
}
keys() { xdotool key --delay 60 "$@"; sleep 0.3; }
type_line() {
    xdotool type --delay 30 "$1"
    keys Return
}

no_window() { ! find_window Orvanta; }
start_program() {
    (cd "$program" && exec wine orvanta.exe) >>"$tour/program.log" 2>&1 &
    disown
    main
    sleep 3 # the picture of the start has the same title
    main
}

# The file dialog takes a name.
give_file() {
    in_window "$1"
    shot "file-dialog-${1,,}"
    xdotool key ctrl+a
    type_line "$2"
}
is_written() { [[ -s $1 ]]; }

# How often Next leads through a section of the bank for marketing.
questions() {
    awk -v section="$1" 'index($0, "<" section) { on = 1 } index($0, "</" section) { on = 0 }
        on && /<QUESTION>/ { count++ } END { print count }' data/mpquestions.txt
}
go_through() {
    local i count
    count=$(questions "$1")
    for ((i = 0; i < count - ${2:-0}; i++)); do keys ctrl+Return; done
}

brainstorm() {
    step "A member brainstorms"
    click 100 149
    xdotool type --delay 30 "Dana Reyes"
    click 235 313
    shot name-and-module
    click 838 269
    wait_for "the invitation in a mail program" is_opened "mailto:.*Invitation%20for"
    main
    click 890 609
    type_line "Loyal customers"
    type_line "Riders know the city"
    shot strengths
    if [[ -d $tour/sound ]]; then wait_for "the voice" is_heard; fi
    go_through STRENGTH
    type_line "No service at night"
    go_through WEAKNESS
    type_line "Shops deliver on the same day"
    type_line "The old town closes to cars"
    go_through OPPORTUNITY
    type_line "A chain opens nearby"
    shot threats
    go_through THREAT 1
    shot last-question
    keys ctrl+Return
    give_file Save dana
    wait_for "dana.bsm" is_written "$swot/dana.bsm"
    shot brainstorm-completed
    keys Return
}

analyze() {
    step "The leader analyzes"
    main
    click 100 197
    click "${add_button[@]}"
    in_window Open
    type_line nosuch
    shot name-refused
    keys Return
    give_file Open dana
    main
    shot source-files
    click 890 609
    shot consolidated-strengths
    keys ctrl+Return ctrl+Return
    shot opportunities
    drag 350 231 350 262
    shot ranked
    keys ctrl+Return ctrl+Return
    shot mapping
    drag "${first_strength[@]}" "${first_opportunity[@]}"
    drag "${first_weakness[@]}" "${first_opportunity[@]}"
    shot mapped-opportunities
    keys ctrl+Return
    drag "${first_strength[@]}" "${first_opportunity[@]}"
    shot mapped-threats
    keys ctrl+Return
    give_file Save team
    wait_for "team.aze" is_written "$swot/team.aze"
    shot analysis-completed
    keys Return
}

# What the shell's verb open was given lands in a log: wine hands web pages and mail to these.
make_opener() {
    mkdir -p "$tour/opener"
    printf '#!/bin/sh\nprintf "%%s\\n" "$*" >>"%s"\n' "$tour/opened.log" \
        >"$tour/opener/open"
    chmod +x "$tour/opener/open"
    local kind
    for kind in Browsers Mailers; do
        wine reg add 'HKCU\Software\Wine\WineBrowser' /v "$kind" /d "$tour/opener/open" /f >/dev/null
    done
}
is_opened() { grep -qs -- "$1" "$tour/opened.log"; }

# A sound server that nobody hears; what is played there is kept.
start_sound() {
    if ! command -v pulseaudio >/dev/null; then
        step "There is no pulseaudio here, so nobody listens to the voice."
        return
    fi
    export XDG_RUNTIME_DIR=$tour/sound PULSE_SERVER=unix:$tour/sound/server
    mkdir -m 0700 "$tour/sound"
    pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 \
        --load="module-null-sink sink_name=ear" \
        --load="module-native-protocol-unix auth-anonymous=1 socket=$tour/sound/server" \
        >"$tour/sound/log" 2>&1 &
    started+=($!)
    wait_for "the sound server" pactl info >/dev/null 2>&1
    parec --device=ear.monitor --raw >"$tour/sound/heard" 2>/dev/null &
    started+=($!)
}
# More than half a second that is not silent.
is_heard() {
    local least=100000
    (($(LC_ALL=C tr -d '\0' <"$tour/sound/heard" | head -c "$least" | wc -c) == least))
}

report_dialog() {
    main
    click 100 245
    in_window "SWOT Report"
    click 190 42
    keys "$1" Return
    click 200 108
    xdotool key ctrl+a
    xdotool type --delay 20 "$(winepath -w "$swot/team.aze")"
}
report() {
    step "Both reports are made"
    report_dialog Home
    shot report-dialog-web
    keys Return
    wait_for "the web report in a browser" is_opened report.htm
    shot web-report-made
    report_dialog End
    shot report-dialog-document
    keys Return
    give_file Save 'My SWOT\team'
    wait_for "team.rtf" is_written "$swot/team.rtf"
    wine reg query 'HKCU\Software\Orvanta\System' /v LastSavedPathRTF | grep -q 'team\.rtf' ||
        fail "the settings do not hold the document's name"
    shot document-made
    keys Return
}

kill_and_recover() {
    step "The program is killed amid a session"
    main
    click 100 149
    xdotool type --delay 30 "Lee Park"
    click 235 313
    click 890 609
    type_line "Kept by the copy"
    wait_for "the copy of the session" is_written "$program/brainstorm.tmp"
    wine taskkill /f /im orvanta.exe >/dev/null 2>&1
    wait_for "the end of the program" no_window
    start_program
    shot recovered
}

start_twice() {
    step "A second start brings the first one to the front"
    main
    xdotool windowminimize "$window"
    wait_for "the end of the window" no_window
    (cd "$program" && timeout "$patience" wine orvanta.exe) >>"$tour/program.log" 2>&1 ||
        fail "the second start did not end well"
    main
    shot second-start
}

# The person calls the end off, so that the program goes on.
call_end_of_session_off() {
    step "The system's session is to end, and goes on"
    (
        code=0
        timeout "$patience" wine wineboot --end-session || code=$?
        echo "$code" >"$tour/ended"
    ) &
    sleep 2
    shot session-to-end
    keys Escape
    wait_for "the answer to the system" is_written "$tour/ended"
    [[ $(<"$tour/ended") == 1 ]] || fail "the end was not called off"
    shot session-goes-on
}

# A dialog asks for something else.
end_session_behind_dialog() {
    step "The system's session ends behind a dialog"
    main
    click 100 293
    shot dialog-before-the-end
    rm -- "$program/brainstorm.tmp"
    timeout "$patience" wine wineboot --end-session || fail "the session does not end"
    wait_for "the end of the program" no_window
    is_written "$program/brainstorm.tmp" || fail "the session was not copied"
    start_program
    shot recovered-behind-dialog
}

quit_without_saving() {
    step "The program is left, its session not saved"
    main
    keys alt+F4
    shot question-of-the-end
    keys Tab Return
    wait_for "the end of the program" no_window
}

is_gone() { [[ ! -e $1 ]]; }
has_no_key() { ! wine reg query "$1" >/dev/null 2>&1; }
expect_no_key() { has_no_key "$1" || fail "the key $1 is left"; }

# One of the two endings is another program's.
others_ending='HKCU\Software\Classes\.aze'
give_ending() { wine reg add "$others_ending" /ve /d Other.Program /f >/dev/null; }
expect_others_ending() {
    wine reg query "$others_ending" /ve | grep -q 'Other\.Program' ||
        fail "the ending of another program was taken from it"
}

# What the installer and the program made goes; what the person made stays.
remove_program() {
    local folder=$1 kind=$2 root=$3
    step "The program is removed"
    wine "$folder/uninstall.exe" /S "/$kind"
    # The uninstaller goes on by itself.
    wait_for "the removal of $folder" is_gone "$folder"
    wait_for "the removal of the program's data" is_gone "$users/AppData/Local/Orvanta"
    wait_for "the removal of the settings" has_no_key 'HKCU\Software\Orvanta'
    find "$WINEPREFIX/drive_c" -name '*.lnk' | grep -q Orvanta && fail "a link is left"
    expect_no_key "$root\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Orvanta"
    expect_no_key "$root\\Software\\Classes\\Orvanta.Brainstorm"
    expect_no_key "$root\\Software\\Classes\\.bsm"
    expect_others_ending
    [[ $(cd "$swot" && printf '%s ' *) == "dana.bsm team.aze team.rtf " ]] ||
        fail "the person's files are not what they were"
}

install_for_all() {
    step "It is installed for all users"
    wine "$setup" /S /AllUsers
    program="$WINEPREFIX/drive_c/Program Files/Orvanta"
    [[ -f $program/system-wide ]] || fail "the file system-wide is missing"
    start_program
    shot installed-for-all
    [[ ! -e $program/System ]] || fail "the program writes into the folder of all users"
    keys alt+F4
    wait_for "the end of the program" no_window
}

play_all() {
    mkdir -p "$HOME"
    make_opener
    openbox >"$tour/openbox.log" 2>&1 &
    started=($!)
    trap 'kill "${started[@]}"; timeout 20 wineserver -k || true' EXIT
    start_sound
    step "The program is installed"
    give_ending
    wine "$setup" /S /CurrentUser
    wine "$setup" /S /CurrentUser # over itself, as a newer version would
    expect_others_ending
    start_program
    shot home
    brainstorm
    analyze
    report
    kill_and_recover
    start_twice
    end_session_behind_dialog
    call_end_of_session_off
    quit_without_saving
    remove_program "$program" CurrentUser HKCU
    install_for_all
    remove_program "$program" AllUsers HKLM
    step "$pictures pictures lie in build/windows/tour/"
}

add_button=(891 237)
first_strength=(300 232)
first_opportunity=(520 237)
first_weakness=(800 232)

if [[ ${ORVANTA_TOUR_INSIDE:-} ]]; then
    play_all
else
    rm -rf -- "$tour"
    mkdir -p "$tour"
    ORVANTA_TOUR_INSIDE=1 xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$0" "$setup"
fi
