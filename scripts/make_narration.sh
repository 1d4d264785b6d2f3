#!/usr/bin/env bash
# Speaks the question files into voice clips. The target `narration` of the build calls it.
#   scripts/make_narration.sh CLIP_TEXTS DATA SPOKEN_FORMS SOUNDS WORK
# CLIP_TEXTS lists what the clips of the folder DATA say, with words of the list SPOKEN_FORMS
# spelled for the voice; SOUNDS takes the clips, WORK the waves that they were made from and, for
# each clip, the text that it says. A clip that says that text already is left alone, one that no
# question calls for any more is removed.
set -euo pipefail
export LC_ALL=C.UTF-8  # what a letter becomes in ASCII hangs on it

lister=$1 data=$2 forms=$3 sounds=$4 work=$5
voice=voice_cmu_us_slt_arctic_hts
pace=0.81           # of the voice's own, at which people can't follow
loudness=-18        # LUFS
breath=0.3          # seconds between two sentences, beside the silence that each brings along
coding_loss=0.45    # LU; the MP3 encoder turns everything down by so much
# The compressor lifts what is soft, the limiter keeps the peaks below -1.5 dBFS.
compressor=acompressor=threshold=-18dB:ratio=3:attack=5:release=80
limiter=alimiter=limit=0.84:level=false
# Part of what a clip is known by: with another recipe all of them are made anew.
recipe="$voice, $pace, $breath s, $compressor, $loudness LUFS, $coding_loss LU, $limiter, 22050 Hz, 48 kbit/s"

lacking() {
    local tool
    for tool in festival sox ffmpeg iconv; do
        command -v "$tool" >/dev/null || { echo "$tool"; return; }
    done
    festival -b "($voice)" >/dev/null 2>&1 || echo "festival's voice cmu_us_slt_arctic_hts"
}

# Removes what was made before for questions that are no more.
remove_others() {
    local stamp name
    for stamp in "$work"/*.text; do
        name=$(basename -- "$stamp" .text)
        [[ -n ${wanted[$name]:-} ]] || rm -f -- "$sounds/$name.swf" "$work/$name".*
    done
}

# Festival reads ASCII; quotes and backslashes mean something in its language.
scheme_text() {
    iconv -f UTF-8 -t ASCII//TRANSLIT <<<"$1" | tr -d '\r\n' | sed 's/[\\"]/\\&/g'
}

# The sentences of each clip, one run for many: the voice takes long to load.
speak() {
    local script=$work/speak.$$ name sentence number
    {
        echo "($voice)"
        echo "(set! hts_engine_params (append hts_engine_params '((\"-r\" $pace))))"
        for name in "$@"; do
            rm -f -- "$work/$name".spoken.*.wav  # of a making that was broken off
            number=10
            while read -r sentence; do
                printf '(utt.save.wave (utt.synth (Utterance Text "%s")) "%s" (quote riff))\n' \
                    "$(scheme_text "$sentence")" "$work/$name.spoken.$((number++)).wav"
            done < <(tail -n +2 "$work/$name.new")
        done
    } >"$script"
    festival -b "$script" >"$script.log" 2>&1 || { cat "$script.log" >&2; return 1; }
    rm -f -- "$script" "$script.log"
}

join_sentences() {
    local name sentence parts
    for name in "$@"; do
        parts=()
        for sentence in "$work/$name".spoken.*.wav; do parts+=("$work/breath.wav" "$sentence"); done
        # Without its dither, so that the same text gives the same clip.
        sox -D "${parts[@]:1}" -r 22050 -c 1 -b 16 "$work/$name.wav" highpass 70 gain -n -3
        rm -f -- "$work/$name".spoken.*.wav
    done
}

# A line for each clip: the gain that brings it to the loudness.
gains() {
    local inputs=() maps=() filters='' name number=0 said
    for name in "$@"; do
        inputs+=(-i "$work/$name.wav")
        filters+="[$number:a]$compressor,ebur128@$name=framelog=verbose[$number];"
        maps+=(-map "[$((number++))]")
    done
    said=$(ffmpeg -nostdin -hide_banner -nostats "${inputs[@]}" -filter_complex "${filters%;}" \
        "${maps[@]}" -f null - 2>&1) || { echo "$said" >&2; return 1; }
    awk -v loudness="$loudness" -v loss="$coding_loss" '
        match($0, /ebur128@[^ ]+/) { name = substr($0, RSTART + 8, RLENGTH - 8) }
        $1 == "I:" { gain[name] = loudness + loss - $2 }  # the last of several is of the whole
        END { for (name in gain) print name, gain[name] }' <<<"$said"
}

encode() {
    local inputs=() outputs=() measured name gain number=0
    measured=$(gains "$@")
    while read -r name gain; do
        inputs+=(-i "$work/$name.wav")
        outputs+=(-map "$((number++)):a" -af "$compressor,volume=${gain}dB,$limiter"
                  -ac 1 -ar 22050 -c:a libmp3lame -b:a 48k -f swf "$work/$name.swf")
    done <<<"$measured"
    ffmpeg -nostdin -v error -y "${inputs[@]}" "${outputs[@]}"
}

# The stamp comes last, so that a clip whose making was broken off is made again.
make_clips() {
    local name
    speak "$@"
    join_sentences "$@"
    encode "$@"
    for name in "$@"; do
        mv -f -- "$work/$name.swf" "$sounds/$name.swf"
        mv -f -- "$work/$name.new" "$work/$name.text"
    done
}

what=$(lacking)
if [[ -n $what ]]; then
    echo "No voice clips are made, and the program stays silent: there is no $what here."
    exit 0
fi

list=$("$lister" "$data" "$forms")
declare -A wanted=()
changed=()
shopt -s nullglob
mkdir -p -- "$sounds" "$work"
while IFS=$'\t' read -r name sentences; do
    [[ -n $name ]] || continue
    wanted[$name]=yes
    printf '%s\n%s\n' "$recipe" "${sentences//$'\t'/$'\n'}" >"$work/$name.new"
    if [[ -s $sounds/$name.swf && -s $work/$name.wav ]] &&
        cmp -s "$work/$name.new" "$work/$name.text"; then
        rm -f -- "$work/$name.new"
    else
        changed+=("$name")
    fi
done <<<"$list"
remove_others
((${#changed[@]})) || exit 0

sox -n -r 32000 -c 1 -b 16 "$work/breath.wav" trim 0 "$breath"  # in the form of the voice's waves
echo "Speaking ${#changed[@]} of ${#wanted[@]} voice clips"
export sounds work voice pace loudness coding_loss compressor limiter
export -f scheme_text speak join_sentences gains encode make_clips
# shellcheck disable=SC2016  # the inner shell is to expand it
printf '%s\0' "${changed[@]}" |
    xargs -0 -n 24 -P "$(nproc)" bash -euo pipefail -c 'make_clips "$@"' make_clips
