#!/bin/bash
# package.sh [FOLDER]: builds the Debian packages (nerlo, nerlo-pro, libnerlo1, libnerlo-dev and
# python3-nerlo) and puts them into FOLDER (build/packages if none is given).
#
# Installs what is missing. Where the checkers are installed (group "package" of packages.sh), it
# also fails on what they call an error.
set -eu
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build/package
target=${1:-$root/build/packages}

"$root/scripts/packages.sh" build desktop-build package </dev/null
# Nothing of the packages may depend on the folder or on the time: the flags map the current folder
# away, and every file is as old as the release.
cd "$root"
release=$(sed -n 's/^## [0-9.]* (\(.*\))$/\1/p' CHANGELOG.md | head -n 1)
SOURCE_DATE_EPOCH=$(date -u -d "$release 12:00" +%s)
export SOURCE_DATE_EPOCH DEB_BUILD_MAINT_OPTIONS=hardening=+all
# Libraries of headers alone: their code becomes part of ours. ICU does not, unlike in a build of
# one's own: a fix in it reaches the program, and the package is a tenth of the size.
json=/usr/share/doc/nlohmann-json3-dev/copyright
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=None \
    -DCMAKE_CXX_FLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS) -DNDEBUG" \
    -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" \
    -DCMAKE_SHARED_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" \
    -DCMAKE_INSTALL_PREFIX=/usr -DNERLO_TESTS=OFF -DNERLO_BENCH=OFF \
    -DNERLO_STATIC_ICU=OFF -DNERLO_NOTICES_nerlo="/usr/share/doc/libcli11-dev/copyright;$json" \
    -DNERLO_NOTICES_nerlo-pro="$json" -DNERLO_NOTICES_libnerlo1="$json"
cmake --build "$build"

appstreamcli validate --no-net "$build/packaging/org.nerlo.NerloPro.metainfo.xml"
for manual in "$root"/packaging/man/*; do
    warnings=$(LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$manual" 2>&1 >/dev/null)
    [ -z "$warnings" ] || { echo "$manual: $warnings" >&2; exit 1; }
done

rm -f "$build"/*.deb
(umask 022 && cd "$build" && cpack)
desktop-file-validate "$build/packaging/org.nerlo.NerloPro.desktop" # it is made by the installation
# Unlike CPack, dpkg-deb makes no file newer than SOURCE_DATE_EPOCH.
for package in "$build"/*.deb; do
    rm -rf "$build/unpacked"
    dpkg-deb -R "$package" "$build/unpacked"
    name=$(dpkg-deb -f "$package" Package)
    if [ "$name" = libnerlo1 ]; then
        # CPack's, which call ldconfig at once; the package's own trigger does at the end.
        rm "$build"/unpacked/DEBIAN/post{inst,rm}
        # Fails if a symbol has gone, or has come without a version of its own.
        dpkg-gensymbols -c4 -q -p"$name" -v"$(dpkg-deb -f "$package" Version)" -P"$build/unpacked" \
            -I"$root/packaging/deb/$name/symbols" -O"$build/unpacked/DEBIAN/symbols" >&2
    fi
    dpkg-deb --root-owner-group -b "$build/unpacked" "$package" >/dev/null
done
lintian --fail-on error --suppress-tags initial-upload-closes-no-bugs "$build"/*.deb
mkdir -p "$target"
cp "$build"/*.deb "$target"
ls "$target"/*.deb
