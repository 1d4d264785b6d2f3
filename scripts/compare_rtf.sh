#!/usr/bin/env bash
# Times the RTF document of an analysis of 10,000 rows beside the ways in which a person could get
# one out of the web page of the same analysis: LibreOffice and pandoc. Each is timed as a whole
# program, from its start to its end, ours without these as well: the work itself, reading and
# writing its files. How many times the work itself each takes is printed.
#   scripts/compare_rtf.sh [DRIVER]     another orvanta_driver than that of the headless build
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

driver=$(realpath -- "${1:-build/headless/bin/orvanta_driver}")
rows=${ROWS:-10000}
for program in "$driver" soffice pandoc; do
    command -v "$program" >/dev/null || { echo "missing: $program" >&2; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
mkdir "$work/app" "$work/docs" "$work/soffice"
cp data/*.txt "$work/app"

# Three tenths strengths and weaknesses, two tenths opportunities and threats, and those again with
# what is mapped onto them.
awk -v rows="$rows" '
    function row(key, letter, number) {
        printf "%s<!-SWOT-!>[Dana Reyes]: <!-SWOT-!>", key
        printf "Statement %d of the kind %s, as long as people tend to write them\r\n", number, letter
    }
    function statements(word, letter, count,    i) {
        printf "<%s>\r\n", word
        for (i = 1; i <= count; ++i) row(letter i, letter, i)
        printf "</%s>\r\n", word
    }
    function mappings(word, letter, count,    i) {
        printf "<%s>\r\n", word
        for (i = 1; i <= count; ++i) {
            row(letter i, letter, i)
            row(letter i "-S" i, "S", i)
            if (i % 2 == 0) row(letter i "-W" i, "W", i)
        }
        printf "</%s>\r\n", word
    }
    BEGIN {
        printf "<MODULE>\r\nMP\r\n</MODULE>\r\n"
        statements("STRENGTH", "S", rows * 3 / 20)
        statements("WEAKNESS", "W", rows * 3 / 20)
        statements("OPPORTUNITY", "O", rows / 10)
        statements("THREATS", "T", rows / 10)
        mappings("OPPORTUNITYMAPPING", "O", rows / 10)
        mappings("THREATMAPPING", "T", rows / 10)
    }' >"$work/docs/team.aze"

report() { # FORMAT [TARGET...]: 0 the web page, 1 a document for each target
    local format=$1 target
    shift
    {
        echo '{"do":"start"}'
        for target in "${@:-}"; do
            [[ -z $target ]] || echo '{"answer":"fileDialog","path":"'"$target"'"}'
            echo '{"answer":"frmReportType","steps":[{"format":'"$format"'},' \
                '{"text":"'"$work/docs/team.aze"'"},{"press":"ok"}]}'
            echo '{"do":"click","button":"Report"}'
        done
    } | "$driver" --app "$work/app" --documents "$work/docs" --settings "$work/settings"
}
with_soffice() { # PAGE
    soffice "-env:UserInstallation=file://$work/soffice" --headless --infilter="HTML (StarWriter)" \
        --convert-to "rtf:Rich Text Format" --outdir "$work/converted" "$1"
}
with_pandoc() { pandoc --from html --to rtf --standalone --output "$work/pandoc.rtf" "$1"; }

TIMEFORMAT='%R %U %S'
timed() { # RESULT COMMAND...: seconds elapsed and seconds on the processor, with a tab between
    local result=$1 times
    shift
    times=$({ time "$@" >"$work/output" 2>&1; } 2>&1) || { cat "$work/output" >&2; exit 1; }
    grep -q "Statement $((rows / 10)) of the kind T" "$result" ||
        { echo "$1 made no whole document" >&2; exit 1; }
    awk '{ printf "%s\t%s\n", $1, $2 + $3 }' <<<"$times"
}

report 0 >/dev/null
page=$work/app/System/report.htm
echo '<table><tr><td>warm</td></tr></table>' >"$work/warm.htm"
with_soffice "$work/warm.htm" >/dev/null 2>&1 # makes its profile, which is not to be timed

documents=("$work"/docs/team{0..10}.rtf)
ours=$(timed "${documents[0]}" report 1 "${documents[0]}")
rm "${documents[0]}"
eleven=$(timed "${documents[10]}" report 1 "${documents[@]}")
# What ten more documents take in one run is the work itself, without the program's start and end.
work_itself=$(paste <(echo "$ours") <(echo "$eleven") |
    awk '{ printf "%s\t%s", ($3 - $1) / 10, ($4 - $2) / 10 }')
soffice=$(timed "$work/converted/report.rtf" with_soffice "$page")
pandoc=$(timed "$work/pandoc.rtf" with_pandoc "$page")

printf '%s rows; the page holds %s lines\n' "$rows" "$(wc -l <"$page")"
printf '%-12s %10s %10s\n' '' elapsed processor
printf '%s\t%s\n' 'the work' "$work_itself" orvanta "$ours" soffice "$soffice" pandoc "$pandoc" |
    awk -F'\t' 'NR == 1 { elapsed = $2; processor = $3 }
        { printf "%-12s %9.1fx %9.1fx\n", $1, $2 / elapsed, $3 / processor }'
