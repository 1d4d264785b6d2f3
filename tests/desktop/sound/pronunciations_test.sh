#!/usr/bin/env bash
# Whether someone has looked at how the voice says each word that it may take for its twin (to read,
# have read) or has to guess: pronunciations.txt holds the words as they were found right.
#   pronunciations_test.sh CLIP_TEXTS DATA SPOKEN_FORMS [--accept]
set -euo pipefail
lister=$1 data=$2 forms=$3
here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
kept=$here/pronunciations.txt
script=$(mktemp)
trap 'rm -f -- "$script"' EXIT

texts=$("$lister" "$data" "$forms")
{
    cat "$here/pronunciations.scm"
    cut -f 2- <<<"$texts" | tr '\t' '\n' | iconv -f UTF-8 -t ASCII//TRANSLIT |
        sed 's/[\\"]/\\&/g; s/.*/(list_words "&")/'
} >"$script"
said=$(festival -b "$script" | tr -d '()"' | LC_ALL=C sort -u)

if [[ ${4:-} == --accept ]]; then
    echo "$said" >"$kept"
elif ! diff -u "$kept" - <<<"$said"; then
    echo "The voice says these words in a new way or place. Where it is wrong, put the text in other" \
        "words, or give it a spelling in tools/spoken_forms.txt; then call this with --accept."
    exit 1
fi
