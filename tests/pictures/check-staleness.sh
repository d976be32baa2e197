#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that tools/pictures.sh finds a stale picture, by its pixels and by the text behind it.
#
#     tests/pictures/check-staleness.sh BUILD_DIR
set -euo pipefail
export QT_QPA_PLATFORM=offscreen
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
mkdir "$work/tools"
cp "$project/tools/pictures.sh" "$work/tools"
cp -r "$project/docs" "$work/docs"
ln -s "$project/examples" "$project/tests" "$work"

# expect STATUS NAME
expect() {
    local status=0
    "$work/tools/pictures.sh" --check "$build" "$2" >"$work/output" 2>&1 || status=$?
    if [ "$status" -ne "$1" ]; then
        echo "The check of $2 ends with $status and should end with $1:" >&2
        cat "$work/output" >&2
        exit 1
    fi
}

build=$(cd "$1" && pwd)
expect 0 gallery
expect 0 nameinfo
# The sheet in another size, and one on which a single cell has other pixels.
"$build/examples/gallery/gallery" --png "$work/docs/gallery.png" --ratio 2
expect 1 gallery
grep -q "docs/gallery.png is stale; ./run pictures gallery makes it anew" "$work/output"
"$build/tests/pictures/picture-tool" stain "$project/docs/gallery.png" "$work/docs/gallery.png"
expect 1 gallery
sed -i 's/^nameinfo ./nameinfo x/' "$work/docs/pictures.txt"
expect 1 nameinfo
expect 2 unknown
