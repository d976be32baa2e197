#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the .deb packages of packaging/deb.sh: lintian finds no error, making them again gives the
# same bytes, two major versions of the libraries have no file in common, and in a clean root they
# are installed, used by a program that is built there, and removed without a trace. Needs root. The
# clean root is made of what this system's own package manager is set to take packages from.
#
#     tools/check-packages.sh
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh
# shellcheck source=tools/clean-root.sh
. tools/clean-root.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
built=build/packages/packages

sums() {
    (cd "$1" && sha256sum -- *)
}

files_of() {
    dpkg-deb --fsys-tarfile "$1" | tar -t | grep -v '/$' | LC_ALL=C sort
}

# The names that the packages of another major version would have.
no_file_in_common() {
    files_of "$(echo "$built"/libktqtbase?_*.deb)" >"$scratch/one"
    sed -E 's/(libktqtbase)1/\12/; s/\.so\.1(\.[0-9.]+)?/.so.2\1/' "$scratch/one" >"$scratch/two"
    LC_ALL=C comm -12 "$scratch/one" "$scratch/two" | (! grep .)
}

packaging/deb.sh
sums "$built" >"$scratch/sums"
lintian --allow-root --fail-on error "$built"/*.deb
packaging/deb.sh
sums "$built" | diff "$scratch/sums" -
no_file_in_common
in_clean_root packaging/use-packages.sh "$built"/*.deb
