#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs clang-tidy over the sources and headers of the library, or the sources that are named, by the
# checks of .clang-tidy, on every core.
#
#     tools/check-tidy.sh BUILD_DIR [SOURCE...]    the build folder has the compile commands
set -euo pipefail
commands=$(cd "$1" && pwd)/compile_commands.json
shift
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

sources() {
    if [ $# -gt 0 ]; then
        printf '%s\0' "$@"
    else
        # These two tests include the headers that no source of the library does.
        project_files 'src/*.cpp' tests/porting/GeometryTest.cpp tests/system/stubs/PackingTest.cpp
    fi
}

# Sources that are only data of a test, or another platform's, have no command.
compiled() {
    local source
    while IFS= read -r -d '' source; do
        if grep -qF "/$source\"" "$commands"; then
            printf '%s\0' "$source"
        fi
    done
}

# An option of g++ that clang does not know.
sed 's/ -fno-lifetime-dse\b//' "$commands" >"$scratch/compile_commands.json"

# What clang-tidy counts on standard error are the warnings that it does not show.
sources "$@" | compiled |
    xargs -0 -n 1 -P "$(getconf _NPROCESSORS_ONLN)" clang-tidy-14 -p "$scratch" --quiet \
        2> >(grep -vE '^[0-9]+ warnings? generated\.$' >&2)
