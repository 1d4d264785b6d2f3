#!/usr/bin/env bash
# How the build speaks the question files: each text once, and no text again that did not change.
#   narration_test.sh CLIP_TEXTS MAKE_NARRATION
set -euo pipefail
lister=$1 maker=$2
folder=$(mktemp -d)
trap 'rm -rf -- "$folder"' EXIT
mkdir "$folder/data"

fail() {
    echo "$*" >&2
    exit 1
}

# The texts are the strengths of one module.
write_bank() {
    printf '<STRENGTH>\r\n' >"$folder/data/mpquestions.txt"
    printf '<QUESTION>\r\n%s\r\n' "$@" >>"$folder/data/mpquestions.txt"
    printf '</STRENGTH>\r\n' >>"$folder/data/mpquestions.txt"
}

# Lines of what the texts say, a tab, and how it is spelled for the voice.
write_forms() { printf '%b\n' "$@" >"$folder/forms"; }

make_clips() {
    "$maker" "$lister" "$folder/data" "$folder/forms" "$folder/Sounds" "$folder/work"
}

# What lies there, with sums and times.
state() { (cd "$folder/Sounds" && stat -c '%n %y' -- * && sha256sum -- *); }

expect_files() {
    local found
    found=$(ls "$folder/Sounds")
    [[ $found == "$1" ]] || fail "$2: there are $found"
}

write_forms '# nothing'
write_bank 'Who "are" we?' 'What\s that (all)?' $'K\xF6ln \x96 \x93yes\x94'
said=$(make_clips)
[[ $said == "Speaking 3 of 3 voice clips" ]] || fail "three new texts: $said"
expect_files $'mp_S1.swf\nmp_S2.swf\nmp_S3.swf' "three new texts"
before=$(state)

said=$(make_clips)
[[ -z $said ]] || fail "nothing has changed: $said"
[[ $(state) == "$before" ]] || fail "clips were made again although nothing has changed"

write_bank 'Who "are" we?' 'What else?' $'K\xF6ln \x96 \x93yes\x94'
said=$(make_clips)
[[ $said == "Speaking 1 of 3 voice clips" ]] || fail "one text has changed: $said"
# That they differ is no failure.
changed=$(diff <(state) <(echo "$before") | sed -n 's/^< \(mp_S.\.swf\) .*/\1/p' || true)
[[ $changed == mp_S2.swf ]] || fail "another clip was made again than the changed one: $changed"

rm "$folder/Sounds/mp_S1.swf"
said=$(make_clips)
[[ $said == "Speaking 1 of 3 voice clips" ]] || fail "a clip was lost: $said"
[[ $(state | grep S1.swf | tail -1) == $(grep S1.swf <<<"$before" | tail -1) ]] ||
    fail "the same text gave another clip"

write_forms 'are" we\tar" wee'
said=$(make_clips)
[[ $said == "Speaking 1 of 3 voice clips" ]] || fail "one word is spelled for the voice: $said"
grep -qxF 'Who "ar" wee?' "$folder/work/mp_S1.text" || fail "the voice got another spelling"

write_forms 'nobody says it\tno body'
said=$(make_clips 2>&1) && fail "a spelling that no text needs is kept"
[[ $said == *"no text says: nobody says it"* ]] || fail "a spelling that no text needs: $said"
write_forms '# nothing'

write_bank 'Who "are" we?'
make_clips
expect_files mp_S1.swf "two questions are gone"

# Without one of the tools the build goes on.
mkdir "$folder/bin"
for tool in bash sox ffmpeg iconv; do ln -s "$(command -v "$tool")" "$folder/bin/$tool"; done
said=$(PATH=$folder/bin make_clips)
[[ $said == *"stays silent: there is no festival here"* && $said != *$'\n'* ]] ||
    fail "festival is missing: $said"
expect_files mp_S1.swf "festival is missing"
