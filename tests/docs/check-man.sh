#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that a program's manual page has the options that its source names, and no other ones.
#
#     check-man.sh PAGE SOURCE
set -euo pipefail

# Those of Qt's parser are declared without dashes.
options_of_source() {
    sed -n -e 's/.*addOption({"\([a-z]*\)".*/--\1/p' -e 's/.*addHelpOption.*/--help/p' \
        -e 's/.*addVersionOption.*/--version/p' "$1"
    grep -oE -- '(^|[^a-z-])--[a-z][a-z-]*' "$1" | grep -oE -- '--.*' || true
}

options_of_page() {
    sed 's/\\-/-/g' "$1" | grep -oE -- '--[a-z][a-z-]*'
}

if ! diff <(options_of_page "$1" | sort -u) <(options_of_source "$2" | sort -u); then
    echo "$1 has other options (<) than $2 (>)." >&2
    exit 1
fi
