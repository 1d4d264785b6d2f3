#!/usr/bin/env bash
# Runs a compiler, and fails when that has read a header of Qt, by whatever way. Stands before the
# compiler, or before its cache, as the launcher of builds without the window. What was read is told
# by the list that the compiler writes beside the object (-MD -MF LIST), from the cache as well.
#   refuse_qt.sh COMPILER ARGUMENT...
set -euo pipefail

all=false list='' object=''
for ((i = 2; i <= $#; i++)); do
    following=$((i + 1))
    case ${!i} in
        -MD) all=true ;;
        -MF) list=${!following} ;;
        -o) object=${!following} ;;
    esac
done

refuse() {
    [[ -z $object ]] || rm -f -- "$object"
    echo "error: $*" >&2
    exit 1
}

[[ $all == true && -n $list ]] || refuse "without -MD and -MF nobody sees which headers are read"
"$@"
[[ -s $list ]] || refuse "the compiler has written no $list"
qt='(^|[ /])Qt[A-Z][A-Za-z0-9]*(\.framework/Headers)?/[Qq][A-Za-z0-9_]*(\.h)?( |$)'
found=$(grep -oE -m 1 -- "$qt" "$list") || exit 0
header=${found%%$'\n'*}
refuse "${!#} reads ${header//[[:space:]]/}, but Qt is for the window alone"
