# Brings CHANGELOG.md into the form that Debian wants of a changelog.
#   awk -v version=3.1 -v date="Thu, 01 Jan 2026 00:00:00 +0000" -v by="Name <mail>" -f THIS CHANGELOG.md
# What is not released yet belongs to the version and the date; a section of a release is headed
# "## VERSION (DATE)" with a date of the same form.

function finish_item(    word, words, count, line, i) {
    if (item == "") return
    count = split(item, words, " ")
    line = "  *"
    for (i = 1; i <= count; ++i) {
        word = words[i]
        if (length(line) + 1 + length(word) > 78) {
            print line
            line = "   "
        }
        line = line " " word
    }
    print line
    item = ""
}

function finish_release() {
    finish_item()
    if (released != "") printf "\n -- %s  %s\n\n", by, released
}

/^## / {
    finish_release()
    name = $2 == "Unreleased" ? version : $2
    released = date
    if (match($0, /\(.*\)/)) released = substr($0, RSTART + 1, RLENGTH - 2)
    printf "orvanta (%s) unstable; urgency=medium\n\n", name
    next
}
/^- / { finish_item(); item = substr($0, 3); next }
/^  / { item = item " " $0 }
/^$/ { finish_item() }
END { finish_release() }
