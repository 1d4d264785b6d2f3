#!/usr/bin/env bash
# Looks over the source without running it: layout, line ends, words, scripts, levels, clang-tidy.
# Needs no network; a tool that is not here is a failure.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

failures=0
fail() {
    echo "FAILED: $*" >&2
    failures=$((failures + 1))
}

have() {
    command -v "$1" >/dev/null || fail "$1 is not here; scripts/install.sh check installs it"
    command -v "$1" >/dev/null
}

# Of the tree as it stands: what is tracked and what would be added.
files() { git ls-files --cached --others --exclude-standard --deduplicate -- "$@"; }

check_layout() {
    have clang-format || return 0
    echo "-- layout"
    files 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp' 'tools/*.cpp' | tr '\n' '\0' |
        xargs -0 clang-format --dry-run --Werror || fail "clang-format wants another layout"
}

# Prints the levels. The objects are those of the logic alone, built without the window.
check_levels() {
    if ! { have python3 && have cmake && have nm; }; then return 0; fi
    echo "-- levels"
    cmake --preset headless -B build/levels -DORVANTA_TESTS=OFF >/dev/null
    cmake --build build/levels --target logic >/dev/null || fail "the logic does not build"
    scripts/check_levels.py --objects build/levels || fail "something points up or in a circle"
    scripts/draw_levels.py --check || fail "the picture of the levels is out of date"
}

check_tidy() {
    if ! { have clang-tidy && have cmake; }; then return 0; fi
    echo "-- clang-tidy"
    # Each source must include what it needs itself.
    cmake --preset dev -B build/check -DCMAKE_EXPORT_COMPILE_COMMANDS=ON \
        -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DORVANTA_TESTS_TOGETHER=OFF >/dev/null
    # What is built on Windows alone has no headers here; what must not compile is no source.
    files 'src/*.cpp' 'tests/*.cpp' 'tools/*.cpp' | grep -v '/windows_\|/compile_fail/' | tr '\n' '\0' |
        xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/check --quiet \
            --extra-arg=-Wno-unknown-warning-option || fail "clang-tidy found something"
}

check_line_ends() {
    echo "-- line ends"
    local wrong
    wrong=$(git ls-files --eol --cached --others --exclude-standard |
        awk '$3 != "attr/-text" && ($2 == "w/crlf" || $2 == "w/mixed")')
    [[ -z $wrong ]] || fail "these files hold CR LF:"$'\n'"$wrong"
    wrong=$(files '*.jsonl' '*.md' '*.h' '*.cpp' '*.sh' | xargs -r grep -l $'\r$' || true)
    [[ -z $wrong ]] || fail "these files hold CR LF:"$'\n'"$wrong"
    wrong=$(files '*.h' '*.cpp' '*.sh' '*.py' '*.txt' '*.jsonl' | while read -r file; do
        [[ ! -s $file || -z $(tail -c 1 -- "$file") ]] || echo "$file"
    done)
    [[ -z $wrong ]] || fail "these files lack the last line's end:"$'\n'"$wrong"
}

# The letters in brackets keep this file from finding itself.
check_words() {
    echo "-- words"
    local kept_out='(^|[^A-Za-z])(the sp[e]c|sp[e]cification|P[a]rts? [1-8]\.[1-4]|[Ll]eft to the impl[e]menter|[Ee]dge cases worth t[e]sting|[Oo]rder of b[u]ilding)([^A-Za-z]|$)'
    local of_a_machine='(^|[^A-Za-z0-9_.$])/(w[o]rk|f[a]rm|r[o]ot|h[o]me/[a-z]+/w[o]rk)/|d[e]b\.debian|r[e]gistry\.npmjs|s[u]bagent'
    local unfinished='T[O]DO|F[I]XME|(^|[^X])XX[X]([^X]|$)|not impl[e]mented|GTEST_S[K]IP|D[I]SABLED_'
    local found
    found=$(files | xargs -d '\n' grep -nIE "$kept_out|$of_a_machine|$unfinished" | cut -c1-160 || true)
    [[ -z $found ]] || fail "these words have no place here:"$'\n'"$found"
}

check_scripts() {
    have shellcheck || return 0
    echo "-- shellcheck"
    files 'scripts/*.sh' 'cmake/*.sh' .ci/run | xargs shellcheck || fail "shellcheck found something"
}

check_tests_mirror() {
    have python3 || return 0
    echo "-- tests repeat the tree"
    scripts/check_tests_mirror.py || fail "a source has no test at its path"
}

have git || exit 1
check_layout
check_tests_mirror
check_line_ends
check_words
check_scripts
check_levels
check_tidy
((failures == 0)) || { echo "$failures of the checks failed" >&2; exit 1; }
echo "All checks passed."
