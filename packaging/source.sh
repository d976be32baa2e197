#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes a source package for Debian's tools, of the last commit:
#
#     packaging/source.sh    leaves build/source/ktqtbase_VERSION-1.dsc and what it names
#
# DEBFULLNAME and DEBEMAIL name the maintainer, as they do for Debian's own tools.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=packaging/begin.sh
. packaging/begin.sh
version=$(project_version)
out=$PWD/build/source
sources=$out/ktqtbase-$version

rm -rf "$out"
archive=$(tools/dist.sh build/dist)
mkdir "$out"
cp "$archive" "$out/ktqtbase_$version.orig.tar.xz"
tar -C "$out" -xf "$archive"
cp -r "$sources/packaging/debian" "$sources"
sed -i "s|@MAINTAINER@|$(maintainer)|" "$sources/debian/control"
packaging/changelog.sh >"$sources/debian/changelog"
(cd "$out" && dpkg-source --build "$sources")
rm -r "$sources"
