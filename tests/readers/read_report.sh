#!/usr/bin/env bash
# Makes the document of an analysis with the test driver and lets another program read it.
#   read_report.sh READER DRIVER CHECKER ANALYSIS
# READER: writer (printed by LibreOffice Writer), writer_again (saved by it and read once more),
# pandoc or unrtf.
set -euo pipefail

reader=$1 driver=$2 checker=$3 analysis=$4

need() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null ||
            { echo "$program is not here; scripts/install.sh test installs it" >&2; exit 1; }
    done
}

dir=$(mktemp -d)
trap 'rm -rf -- "$dir"' EXIT

# Plays the report dialog.
make_document() {
    mkdir -p "$dir/app" "$dir/docs"
    cp -- "$analysis" "$dir/docs/report.aze"
    "$driver" --app "$dir/app" --documents "$dir/docs" --settings "$dir/settings.json" <<LINES
{"do":"start"}
{"answer":"fileDialog","path":"$dir/docs/report.rtf"}
{"answer":"frmReportType","steps":[{"text":"$dir/docs/report.aze"},{"press":"ok"}]}
{"do":"click","button":"Report"}
LINES
    [[ -s $dir/docs/report.rtf ]] || { echo "no document was written" >&2; exit 1; }
}

# Lets Writer load a file and save it in another format, with a profile of its own.
convert() {
    local format=$1 file=$2 into=$3
    timeout 120 soffice -env:UserInstallation="file://$dir/profile" --headless \
        --convert-to "$format" --outdir "$into" "$file" >"$dir/soffice.log" 2>&1 ||
        { cat "$dir/soffice.log" >&2; exit 1; }
}

make_document >"$dir/driver.log" || { cat "$dir/driver.log" >&2; exit 1; }
document=$dir/docs/report.rtf
case $reader in
writer)
    need soffice pdfinfo pdftotext
    convert pdf "$document" "$dir"
    pdfinfo "$dir/report.pdf" | grep -E '^Page size: +(800|799\.99[0-9]*) x 612 pts' >/dev/null ||
        { echo "the page has another size:" >&2; pdfinfo "$dir/report.pdf" >&2; exit 1; }
    pdftotext -bbox "$dir/report.pdf" "$dir/words.xml"
    "$checker" pages "$analysis" "$dir/words.xml"
    convert fodt "$document" "$dir"
    "$checker" tables "$analysis" "$dir/report.fodt"
    ;;
writer_again)
    need soffice
    for format in docx odt rtf; do
        convert "$format" "$document" "$dir/$format"
        convert fodt "$dir/$format/report.$format" "$dir/$format"
    done
    # Its own RTF has a cell too many beside each nested table, so there the texts alone count.
    "$checker" tables "$analysis" "$dir/docx/report.fodt"
    "$checker" tables "$analysis" "$dir/odt/report.fodt"
    convert html "$dir/rtf/report.rtf" "$dir/rtf"
    "$checker" texts "$analysis" "$dir/rtf/report.html"
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
