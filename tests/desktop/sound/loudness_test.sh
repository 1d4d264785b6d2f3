#!/usr/bin/env bash
# Whether all clips are of one loudness, as broadcasters measure it (EBU R 128), and keep below the
# peak from which a cheap speaker rattles.
#   loudness_test.sh SOUNDS
set -euo pipefail
cd -- "$1"
clips=(*.swf)
inputs=() maps=() filters=''
for i in "${!clips[@]}"; do
    inputs+=(-i "${clips[i]}")
    filters+="[$i:a]ebur128@${clips[i]%.swf}=peak=sample:framelog=verbose[$i];"
    maps+=(-map "[$i]")
done
said=$(ffmpeg -nostdin -hide_banner -nostats "${inputs[@]}" -filter_complex "${filters%;}" \
    "${maps[@]}" -f null - 2>&1) || { echo "$said" >&2; exit 1; }
awk -v clips="${#clips[@]}" '
    function check(name, is_right, what) {
        if (!is_right) { print name ": " what; failures++ }
    }
    match($0, /ebur128@[^ ]+/) { name = substr($0, RSTART + 8, RLENGTH - 8) }
    $1 == "I:" { loudness[name] = $2 }  # the last of several is of the whole clip
    $1 == "Peak:" { peak[name] = $2 }
    END {
        for (name in loudness) {
            check(name, loudness[name] >= -18.5 && loudness[name] <= -17.5, loudness[name] " LUFS")
            check(name, peak[name] <= -1.5, "a peak of " peak[name] " dBFS")
            measured++
        }
        check("all", measured == clips, measured " of " clips " clips were measured")
        exit failures > 0
    }' <<<"$said"
