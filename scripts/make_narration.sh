#!/usr/bin/env bash
# Speaks the question files into voice clips. The target `narration` of the build calls it.
#   scripts/make_narration.sh CLIP_TEXTS DATA SOUNDS WORK
# CLIP_TEXTS lists the clips of the folder DATA; SOUNDS takes the clips, WORK the waves that they
# were made from and, for each clip, the text that it says. A clip that says that text already is
# left alone, one that no question calls for any more is removed.
set -euo pipefail
export LC_ALL=C.UTF-8  # what a letter becomes in ASCII hangs on it

lister=$1 data=$2 sounds=$3 work=$4
voice=voice_cmu_us_slt_arctic_hts
# Part of what a clip is known by: with another recipe all of them are made anew.
recipe="$voice, 22050 Hz, 48 kbit/s, 1"

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
        [[ -n ${texts[$name]:-} ]] || rm -f -- "$sounds/$name.swf" "$work/$name".*
    done
}

# Festival reads ASCII; quotes and backslashes mean something in its language.
scheme_text() {
    iconv -f UTF-8 -t ASCII//TRANSLIT <<<"$1" | tr -d '\r\n' | sed 's/[\\"]/\\&/g'
}

# One run for all: the voice takes longer to load than to speak.
speak() {
    local name
    {
        echo "($voice)"
        for name in "$@"; do
            printf '(utt.save.wave (utt.synth (Utterance Text "%s")) "%s" (quote riff))\n' \
                "$(scheme_text "${texts[$name]}")" "$work/$name.spoken.wav"
        done
    } >"$work/speak.scm"
    festival -b "$work/speak.scm" >"$work/speak.log" 2>&1 ||
        { cat "$work/speak.log" >&2; return 1; }
}

# The stamp comes last, so that a clip whose making was broken off is made again.
make_clip() {
    local name=$1
    # Without its dither, so that the same text gives the same clip.
    sox -D "$work/$name.spoken.wav" -r 22050 -c 1 -b 16 "$work/$name.wav" \
        highpass 70 gain -n -3 pad 0.05 0.15
    ffmpeg -nostdin -v error -guess_layout_max 0 -y -i "$work/$name.wav" -ac 1 -ar 22050 \
        -c:a libmp3lame -b:a 48k -f swf "$work/$name.swf"
    mv -f -- "$work/$name.swf" "$sounds/$name.swf"
    rm -f -- "$work/$name.spoken.wav"
    mv -f -- "$work/$name.new" "$work/$name.text"
}

what=$(lacking)
if [[ -n $what ]]; then
    echo "No voice clips are made, and the program stays silent: there is no $what here."
    exit 0
fi

list=$("$lister" "$data")
declare -A texts=()
changed=()
shopt -s nullglob
mkdir -p -- "$sounds" "$work"
while IFS=$'\t' read -r name text; do
    [[ -n $name ]] || continue
    texts[$name]=$text
    printf '%s\n%s\n' "$recipe" "$text" >"$work/$name.new"
    if [[ -s $sounds/$name.swf && -s $work/$name.wav ]] &&
        cmp -s "$work/$name.new" "$work/$name.text"; then
        rm -f -- "$work/$name.new"
    else
        changed+=("$name")
    fi
done <<<"$list"
remove_others
((${#changed[@]})) || exit 0

echo "Speaking ${#changed[@]} of ${#texts[@]} voice clips"
speak "${changed[@]}"
export sounds work
export -f make_clip
# shellcheck disable=SC2016  # the inner shell is to expand it
printf '%s\0' "${changed[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -euc 'make_clip "$1"' make_clip
