#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes packages for Debian and Ubuntu by cpack, and a list of what is in them as an SBOM:
#
#     packaging/deb.sh    leaves build/packages/packages/*.deb and ktqtbase.cdx.json
#
# DEBFULLNAME and DEBEMAIL name the maintainer, as they do for Debian's own tools.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=packaging/begin.sh
. packaging/begin.sh
prepare_build
build=build/packages

# What dpkg reads of the runtime package: who needs it at which version, and that the loader's cache
# is made anew.
write_control_files() {
    local version major
    version=$(project_version)
    major=${version%%.*}
    mkdir -p "$build/debian"
    packaging/changelog.sh >"$build/debian/changelog"
    printf '%s %s libktqtbase%s (>= %s)\n' libKtOsBase "$major" "$major" "$version" \
        libKtQtBase "$major" "$major" "$version" >"$build/debian/shlibs"
    echo "activate-noawait ldconfig" >"$build/debian/triggers"
    dpkg-gensymbols "-plibktqtbase$major" "-v$version" -c1 -t \
        "-Ipackaging/debian/libktqtbase$major.symbols" "-O$build/debian/symbols" \
        "-e$build/src/libKtQtBase.so.$major" "-e$build/osbase/libKtOsBase.so.$major"
    chmod 644 "$build"/debian/*
}

# cpack names the files of debug symbols by the folder that it packs in, and forgets their notes.
repack_symbols() {
    local package=${1%.ddeb} folder=$build/debian/symbols-of name
    rm -rf "$folder"
    dpkg-deb --raw-extract "$1" "$folder"
    name=$(dpkg-deb --field "$1" Package)
    mkdir -p "$folder/usr/share/doc"
    ln -s "${name%-dbgsym}" "$folder/usr/share/doc/$name"
    sed -i '/^Package-Type:/d' "$folder/DEBIAN/control"
    (cd "$folder" && find usr -type f -print0 | LC_ALL=C sort -z | xargs -0 md5sum >DEBIAN/md5sums)
    find "$folder" -type d -exec chmod 755 {} +
    chmod 644 "$folder/DEBIAN/md5sums"
    dpkg-deb --root-owner-group -Zxz --build "$folder" "$package.deb"
    rm "$1"
}

cmake --preset packages -DKTQTBASE_PACKAGER="$(maintainer)"
cmake --build --preset packages --parallel "$(getconf _NPROCESSORS_ONLN)"
write_control_files
rm -rf "$build/packages"
(cd "$build" && cpack -G DEB)
for package in "$build"/packages/*.ddeb; do
    repack_symbols "$package"
done
packaging/sbom.py "$build/packages/ktqtbase.cdx.json" "$build"/packages/*.deb
rm -rf "$build/packages/_CPack_Packages"
