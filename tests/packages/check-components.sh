#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks what each component of a build installs. A file that was not built is passed over.
#
#     CMAKE=COMMAND BUILD=FOLDER MAJOR=NUMBER tests/packages/check-components.sh CASE
set -euo pipefail
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
components="runtime development documentation tools"

# The names, sorted, that one component or without a second argument all of them install.
installed() {
    "$CMAKE" --install "$BUILD" --prefix "$work/$1" ${2:+--component "$2"} >/dev/null
    (cd "$work/$1" 2>/dev/null && find . -type f -o -type l) | LC_ALL=C sort
}

each_component() {
    local component
    for component in $components; do
        installed "$component" "$component"
    done
}

AreWholeTogether() {
    installed all >"$work/names"
    each_component | LC_ALL=C sort | diff "$work/names" -
}

HaveOnlyLibrariesForPrograms() {
    installed runtime runtime | sed 's|.*/||' >"$work/names"
    grep -E "^libKtQtBase\.(so\.)?$MAJOR" "$work/names"
    (! grep -vE "^lib(KtQtBase|KtOsBase)\.(so\.)?$MAJOR|^LICENSE$" "$work/names")
}

HaveNoFileInCommon() {
    each_component | LC_ALL=C sort | uniq -d | (! grep .)
}

HaveTheLicence() {
    installed all >"$work/names"
    cmp "$(find "$work/all" -name LICENSE)" "$(dirname "$0")/../../LICENSE"
    grep -q '/README.md$' "$work/names"
}

"$1"
