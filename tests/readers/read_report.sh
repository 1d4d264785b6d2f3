#!/usr/bin/env bash
# Makes the document of an analysis with the test driver and lets another program read it.
#   read_report.sh READER DRIVER CHECKER ANALYSIS
# READER: writer (printed by LibreOffice Writer), writer_again (saved by it and read once more),
# abiword, pandoc or unrtf.
#   read_report.sh paper DRIVER CHECKER NUMBER
# Writer prints the documents of so many analyses that are made up.
set -euo pipefail

reader=$1 driver=$2 checker=$3

need() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null ||
            { echo "$program is not here; scripts/install.sh test installs it" >&2; exit 1; }
    done
}

dir=$(mktemp -d)
trap 'rm -rf -- "$dir"' EXIT
mkdir "$dir/app" "$dir/docs"

# Plays the report dialog for each analysis in docs.
make_documents() {
    local analysis
    {
        echo '{"do":"start"}'
        for analysis in "$dir"/docs/*.aze; do
            cat <<LINES
{"answer":"fileDialog","path":"${analysis%.aze}.rtf"}
{"answer":"frmReportType","steps":[{"text":"$analysis"},{"press":"ok"}]}
{"do":"click","button":"Report"}
LINES
        done
    } | "$driver" --app "$dir/app" --documents "$dir/docs" --settings "$dir/settings.json" \
        >"$dir/driver.log" || { cat "$dir/driver.log" >&2; exit 1; }
    for analysis in "$dir"/docs/*.aze; do
        [[ -s ${analysis%.aze}.rtf ]] || { echo "no document was written" >&2; exit 1; }
    done
}

# Lets Writer load files and save them in another format, with a profile of its own.
convert() {
    local format=$1 into=$2
    shift 2
    timeout -k 10 240 soffice -env:UserInstallation="file://$dir/profile" --headless \
        --convert-to "$format" --outdir "$into" "$@" >"$dir/soffice.log" 2>&1 ||
        { cat "$dir/soffice.log" >&2; exit 1; }
}

# Holds each document, printed by Writer, against its analysis.
check_paper() {
    local analysis document failed=0
    convert pdf "$dir" "$dir"/docs/*.rtf
    for analysis in "$dir"/docs/*.aze; do
        document=$dir/$(basename -- "$analysis" .aze)
        pdftotext -bbox "$document.pdf" "$document.xml" 2>"$dir/pdftotext.log"
        "$checker" pages "$analysis" "$document.xml" ||
            { echo "... in analysis $(basename -- "$analysis")" >&2; failed=1; }
    done
    return $failed
}

if [[ $reader == paper ]]; then
    need soffice pdftotext
    "$checker" invent "$4" "$dir/docs"
    make_documents
    check_paper
    exit
fi

analysis=$dir/docs/report.aze
cp -- "$4" "$analysis"
make_documents
document=$dir/docs/report.rtf
case $reader in
writer)
    need soffice pdfinfo pdftotext
    check_paper
    pdfinfo "$dir/report.pdf" | grep -E '^Page size: +(800|799\.99[0-9]*) x 612 pts' >/dev/null ||
        { echo "the page has another size:" >&2; pdfinfo "$dir/report.pdf" >&2; exit 1; }
    convert fodt "$dir" "$document"
    "$checker" tables "$analysis" "$dir/report.fodt"
    ;;
writer_again)
    need soffice
    for format in docx odt rtf; do
        convert "$format" "$dir/$format" "$document"
        convert fodt "$dir/$format" "$dir/$format/report.$format"
    done
    # Its own RTF has a cell too many beside each nested table, so there the texts alone count.
    "$checker" tables "$analysis" "$dir/docx/report.fodt"
    "$checker" tables "$analysis" "$dir/odt/report.fodt"
    convert html "$dir/rtf" "$dir/rtf/report.rtf"
    "$checker" texts "$analysis" "$dir/rtf/report.html"
    ;;
abiword)
    need abiword
    HOME=$dir abiword --to=html --to-name="$dir/report.html" "$document" >"$dir/abiword.log" 2>&1 ||
        { cat "$dir/abiword.log" >&2; exit 1; }
    "$checker" texts "$analysis" "$dir/report.html"
    ;;
pandoc)
    need pandoc
    pandoc -f rtf -t html --wrap=none "$document" >"$dir/report.html"
    "$checker" texts "$analysis" "$dir/report.html"
    ;;
unrtf)
    need unrtf
    unrtf --html "$document" >"$dir/report.html" 2>/dev/null
    "$checker" texts "$analysis" "$dir/report.html"
    ;;
*)
    echo "no such reader: $reader" >&2
    exit 2
    ;;
esac
