#!/usr/bin/env bash
# Makes the tree that stands here a release: sets the version in CMakeLists.txt, gives the changes in
# CHANGELOG.md its name and the day, commits both and sets the tag vVERSION. Nothing is pushed.
#   scripts/release.sh VERSION     such as 3.14.0
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

refuse() {
    echo "$*" >&2
    exit 1
}

version=${1:-}
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || refuse "usage: $0 VERSION     such as 3.14.0"
former=$(sed -nE 's/^project\(orvanta VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)
newest=$(printf '%s\n' "$former" "$version" | sort -V | tail -n 1)
[[ $version != "$former" && $version == "$newest" ]] || refuse "$version is not above $former"
[[ -z $(git status --porcelain) ]] || refuse "there are changes that are in no commit"
! git rev-parse -q --verify "refs/tags/v$version" >/dev/null || refuse "there is a tag v$version"
changes=$(sed -n '/^## Unreleased$/,/^## [^U]/p' CHANGELOG.md | grep -c '^- ' || true)
((changes > 0)) || refuse "CHANGELOG.md tells of no change under \"Unreleased\""

sed -i -E "s/^(project\(orvanta VERSION )[0-9.]+/\1$version/" CMakeLists.txt
sed -i "s/^## Unreleased$/## Unreleased\n\n## $version, $(date +%F)/" CHANGELOG.md
git commit -q -m "release: version $version" -- CMakeLists.txt CHANGELOG.md
git tag -a -m "Orvanta $version" "v$version"
echo "version $version, $changes changes; tag v$version"
