#!/usr/bin/env bash
# Installs the Debian packages on a fresh Debian in a folder, first the program alone, plays it there
# as an ordinary user, listens to it with and without the package of the sound, removes both and
# looks for what they left. Takes root, mmdebstrap and this machine's own sources of packages.
#   package_test.sh PACKAGE.deb SOUND_PACKAGE.deb
set -euo pipefail
package=$(realpath -- "$1")
sound_package=$(realpath -- "$2")
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

root=$(mktemp -d)
chmod 755 "$root"
trap 'rm -rf --one-file-system -- "$root"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# Where apt gets Debian's packages from here, as lines of a list of sources.
sources() {
    # shellcheck disable=SC2016  # apt fills these in
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u
}

# Runs a command on that system, with processes of its own.
inside() {
    unshare --mount --pid --fork --kill-child --mount-proc="$root/proc" \
        chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}

as_user() { inside runuser -u dana -- env HOME=/home/dana "$@"; }

install_on_it() { inside apt-get -q install -y --no-install-recommends "$@" >>"$root/log" 2>&1 ||
    { cat "$root/log" >&2; fail "apt-get install $*"; }; }

# Names of all files but those of apt and of the user.
files() {
    inside find / -xdev \( -path /proc -o -path /tmp -o -path /home -o -path /log \
        -o -path /var/log -o -path /var/cache/apt -o -path /var/lib/apt \) -prune -o -print | sort
}

purge_both() { inside apt-get -q purge -y orvanta orvanta-sound >>"$root/log" 2>&1; }

finds_its_libraries() {
    local missing
    missing=$(inside ldd "/usr/lib/orvanta/$1" | grep 'not found' || true)
    [[ -z $missing ]] || fail "these libraries of $1 are no dependencies: $missing"
}

# With what the packages themselves ask for and nothing else.
needs_no_more_than_it_says() {
    local said
    install_on_it /tmp/orvanta.deb
    finds_its_libraries orvanta
    said=$(as_user orvanta 2>&1) && fail "without a display it starts"
    [[ $said == "Orvanta can't show its window"* ]] || fail "without a display it says: $said"
    install_on_it /tmp/orvanta-sound.deb
    finds_its_libraries liborvanta-sound.so
    purge_both
}

# Hands the work to one of the programs beside this one.
as_user_on_a_screen() {
    inside mkdir -p /tmp/play
    cp desktop/accessibility_test.py desktop/names_test.py packaging/*_installed.py \
        "$root/tmp/play"
    as_user python3 -B "/tmp/play/$1" /usr/bin/orvanta "${@:2}"
}

desktop_knows_its_formats() {
    local name
    for name in brainstorm analysis; do
        grep -q "application/x-orvanta-$name" "$root/usr/share/mime/globs2" ||
            fail "the desktop does not know the format of $name"
    done
    grep -q '^Exec=orvanta' "$root/usr/share/applications/orvanta.desktop" || fail "no entry"
    [[ -s $root/usr/share/man/man1/orvanta.1.gz ]] || fail "no manual page"
}

echo "-- a fresh Debian"
mmdebstrap --quiet --variant=apt "$(sed -n "s/^VERSION_CODENAME=//p" /etc/os-release)" "$root" \
    "$(sources)"
cp -- "$package" "$root/tmp/orvanta.deb"
cp -- "$sound_package" "$root/tmp/orvanta-sound.deb"
inside useradd --create-home dana
inside apt-get -q update >"$root/log" 2>&1 || { cat "$root/log" >&2; fail "apt-get update"; }
echo "-- the packages alone"
needs_no_more_than_it_says
echo "-- the package, played"
install_on_it xvfb xauth dbus at-spi2-core python3-gi gir1.2-atspi-2.0 shared-mime-info \
    pulseaudio pulseaudio-utils
files >"$root/tmp/before"
install_on_it /tmp/orvanta.deb
desktop_knows_its_formats
as_user_on_a_screen play_installed.py
as_user_on_a_screen listen_installed.py silent
echo "-- with the package of the sound"
install_on_it /tmp/orvanta-sound.deb
as_user_on_a_screen listen_installed.py voice
echo "-- both packages, removed"
purge_both
files >"$root/tmp/after"
diff "$root/tmp/before" "$root/tmp/after" || fail "they leave these files, or take them"
echo "The packages were installed, played, heard and removed."
