#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks which names of its own the library leaves to the loader, which another library or the program
# may then have in its place.
#
#     tests/exports/check-own-calls.sh CASE LIBRARY      CASE is one of the functions with a capital
set -euo pipefail
export LC_ALL=C
library=$2
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# The names that the loader looks for, one a line, and those of them that the library has itself.
readelf --relocs --wide "$library" | awk '$3 ~ /^R_/ && $3 !~ /RELATIVE/ { print $5 }' | sed 's/@.*//' |
    sort -u >"$work/looked-for"
nm --dynamic --defined-only "$library" | awk -v kinds="$([ "$1" = GoStraight ] && echo TtWi || echo BbDdRV)" \
    'index(kinds, $2) { print $3 }' | sort -u >"$work/own"
comm -12 "$work/looked-for" "$work/own" >"$work/left"

GoStraight() {
    sed -n 's/^ *"\(.*\)";$/\1/p' src/platform/replaceable-functions.txt >"$work/replaceable"
    c++filt <"$work/left" | sort | diff "$work/replaceable" -
}

# A program may hold the one copy of an object that both of them use.
LeaveObjectsToTheLoader() {
    for object in volumeList g_CurrentDirPrefix m_hCurrentResourceHandle; do
        grep -x "$object" "$work/left"
    done
}

cd "$(dirname "$0")/../.."
"$1"
