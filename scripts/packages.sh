#!/bin/bash
# packages.sh GROUP...: installs what is missing of the named groups of Debian packages.
#
#   build           what `nerlo` needs to build and run
#   desktop-build   what `nerlo-pro`, the desktop program, needs on top of it
#   test            what the tests and benchmarks need to build and run
#   bench           what scripts/bench.sh compares `nerlo` with
#   desktop-test    the private X11 and Wayland sessions of the desktop tests, and their tools
#   package         scripts/package.sh: building and checking the Debian packages
#   style           clang-format and clang-tidy, for scripts/format.sh and scripts/lint.sh
#
# When nothing is missing it neither touches the network nor asks for root. It prints on standard
# error only. On a system without apt it names the packages and leaves them to you.
set -eu

build="g++ cmake ninja-build pkg-config libicu-dev libhunspell-dev libplist-dev libcli11-dev nlohmann-json3-dev
    zlib1g-dev libzstd-dev"
desktop_build="qt6-base-dev qt6-wayland qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    qt6-svg-dev libxcb1-dev libxcb-xfixes0-dev libxcb-keysyms1-dev libxcb-xkb-dev
    libxkbcommon-dev libxkbcommon-x11-dev libwayland-dev libwayland-bin
    wayland-protocols"
test="libgtest-dev libbenchmark-dev unicode-data bzip2 locales git python3 parallel
    python3-distributed"
bench="libbenchmark-dev coreutils sed perl gawk sd python3 locales"
desktop_test="dbus-daemon dbus-bin at-spi2-core libglib2.0-bin procps fonts-dejavu-core
    xvfb openbox xclip xdotool x11-utils x11-xserver-utils x11-xkb-utils
    sway mutter gnome-shell xwayland wl-clipboard grim foot python3 python3-dbus python3-gi
    xdg-desktop-portal libkf5globalaccel-bin"
package="dpkg-dev lintian appstream desktop-file-utils man-db groff"
style="git clang-format-14 clang-tidy-14"

usage() {
    sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0" >&2
    exit 2
}

[ $# -gt 0 ] || usage
wanted=""
for group; do
    case $group in
    build | desktop-build | test | bench | desktop-test | package | style)
        list=${group//-/_}
        wanted="$wanted ${!list}"
        ;;
    *) usage ;;
    esac
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "packages.sh: no apt here; make sure that you have the like of:" $wanted >&2
    exit 0
fi

installed=$(dpkg-query -Wf '${db:Status-Status} ${Package}\n')
missing=""
for package in $wanted; do
    grep -qxF "installed $package" <<<"$installed" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=""
if [ "$(id -u)" != 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "packages.sh: as root, run: apt-get install --no-install-recommends$missing" >&2
        exit 1
    fi
    as_root="sudo"
fi
echo "packages.sh: installing$missing" >&2
apt_get() {
    # The lock is waited for: a fresh machine may still be busy with its own updates.
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=600 \
        -o Dpkg::Use-Pty=0 "$@" </dev/null >&2
}
apt_get update || echo "packages.sh: going on with the package lists as they are" >&2
apt_get install -y --no-install-recommends $missing
