#!/bin/bash
# install.sh: builds the Debian packages of nerlo and nerlo-pro, installs them, and starts nerlo-pro if
# there is a desktop to start it on.
#
# Installs what is missing. Remove both with: apt-get remove nerlo nerlo-pro
set -eu
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
log=$root/build/install.log
mkdir -p "$root/build"

as_root=""
if [ "$(id -u)" != 0 ]; then
    as_root=sudo
    command -v sudo >/dev/null || {
        echo "install.sh: run as root, or install sudo" >&2
        exit 1
    }
fi
echo "install.sh: building the packages, which takes some minutes" >&2
"$root/scripts/package.sh" </dev/null >"$log" 2>&1 || {
    cat "$log" >&2
    exit 1
}
# The newest of each: older versions may lie beside them.
packages=""
for name in nerlo nerlo-pro; do
    newest=$(printf '%s\n' "$root/build/packages/${name}_"*.deb | sort -V | tail -n 1)
    packages="$packages $newest"
done
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --reinstall --no-install-recommends \
    -o DPkg::Lock::Timeout=600 $packages </dev/null >>"$log" 2>&1 || {
    cat "$log" >&2
    exit 1
}
nerlo --version
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    setsid nerlo-pro </dev/null >/dev/null 2>&1 &
    echo "nerlo-pro runs; its icon is in the tray if this desktop has one"
else
    echo "There is no desktop here. On one, start nerlo-pro from its menu of programs."
fi
