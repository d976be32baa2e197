#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the locales of the grid that a system need not have.
#
#     tests/grid/make-locales.sh LOCALEDEF FOLDER
set -euo pipefail
mkdir -p "$2"

# One that is there stays. The tool fails where it only warns, and it does so for some of these.
make_locale() {
    local place=$2/$3.$4
    if [ -d "$place" ]; then
        return
    fi
    rm -rf "$place.new"
    "$1" --force --inputfile="$3" --charmap="$4" "$place.new" >/dev/null 2>&1 || true
    mv "$place.new" "$place"
}

make_locale "$@" en_US ISO-8859-1
make_locale "$@" tr_TR UTF-8
make_locale "$@" de_DE UTF-8
