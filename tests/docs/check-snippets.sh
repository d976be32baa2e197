#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that each C++ snippet of a document stands, letter by letter, in the file that the comment
# above it names:
#
#     <!-- from examples/sketchpad/app/Texts.cpp -->
set -euo pipefail
document=$1
cd "$(dirname "$0")/../.."
newline=$'\n'
failed=0
snippets=0
source=
inside=

fail() {
    echo "$document: $1" >&2
    failed=1
}

check() {
    snippets=$((snippets + 1))
    if [ -z "$source" ] || [ ! -f "$source" ]; then
        fail "no file is named above: $snippet"
    elif [[ "$(cat "$source")$newline" != *"$snippet"* ]]; then
        fail "not in $source: $snippet"
    fi
}

while IFS= read -r line; do
    case "$inside:$line" in
        ':<!-- from '*) source=${line#<!-- from } source=${source% -->} ;;
        ':```cpp') inside=yes snippet='' ;;
        'yes:```') check && inside='' source='' ;;
        yes:*) snippet+=$line$newline ;;
    esac
done <"$document"
[ "$snippets" -gt 0 ] || fail "there is no snippet"
exit "$failed"
