#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the source archive: clones of two depths make the same bytes, and what is unpacked passes
# the checks of the sources, builds and passes its tests where git knows nothing of it.
#
#     tools/check-dist.sh
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/setup.sh
. tools/setup.sh
setup dist
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export GIT_CEILING_DIRECTORIES=$scratch

# Makes the archive in a clone at another place, under other settings.
archive_in_clone() {
    git clone -q . "$scratch/$1"
    (umask "$2" && TZ=$3 "$scratch/$1/tools/dist.sh" "$scratch/$1/build")
}

check_sources() {
    tools/check-style.sh
    tools/check-rooms.sh
    tools/check-functions.py
}

archive=$(archive_in_clone one 022 UTC)
cmp "$archive" "$(archive_in_clone "deeper/é two" 077 Asia/Tokyo)"
tar -C "$scratch" -xf "$archive"
cd "$scratch/$(basename "$archive" .tar.xz)"
(! git status >/dev/null 2>&1)
check_sources
./run test
