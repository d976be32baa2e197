#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that the version of Version.h is also what another place says.
#
#     tests/version/check-version.sh CASE SOURCES BUILD LIBRARY CASES...
#
# CASE is one of the functions with a capital. CASES are those that compare a place with the header.
# The environment names CMAKE and READELF.
# shellcheck disable=SC2317 # the functions are called by their names
set -euo pipefail
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

part() {
    sed -n "s/^#define KTQTBASE_VERSION_$1 //p" "$sources/include/KtQtBase/Version.h"
}

version() {
    echo "$(part MAJOR).$(part MINOR).$(part PATCH)"
}

# Prints the two texts and fails if they differ.
expect() {
    if [ "$1" != "$2" ]; then
        echo "$3: $2, and the header says $1"
        return 1
    fi
}

# Makes the sources a copy, with a version that there will not be.
take_other_version() {
    local header=include/KtQtBase/Version.h
    mkdir -p "$work/include/KtQtBase"
    cp -r "$sources"/*.md "$sources/docs" "$sources/cmake" "$work"
    sed -E 's/^(#define KTQTBASE_VERSION_MAJOR) .*/\1 99/; s/^(#define .*_PATCH) .*/\1 210/' \
        "$sources/$header" >"$work/$header"
    sources=$work
}

IsReadFromTheHeader() {
    take_other_version
    # shellcheck disable=SC2016 # CMake expands it
    printf 'include(cmake/Version.cmake)\nmessage(${KTQTBASE_VERSION})\n' >"$work/tell.cmake"
    expect "99.$(part MINOR).210" "$(cd "$work" && "$CMAKE" -P tell.cmake 2>&1)" CMakeLists.txt
}

IsTheNewestOfTheChangelog() {
    expect "$(version)" "$(grep -m1 -oE '^## [0-9.]+$' "$sources/CHANGELOG.md" | tr -d '# ')" \
        "CHANGELOG.md's newest version"
}

IsThePackages() {
    local file=KtQtBaseConfigVersion.cmake
    expect "$(version)" "$(sed -n 's/^set(PACKAGE_VERSION "\(.*\)")$/\1/p' "$build/$file")" "$file"
}

IsThePkgConfigModules() {
    expect "$(version)" "$(sed -n 's/^Version: //p' "$build/KtQtBase.pc")" KtQtBase.pc
}

IsInTheLibrarysFileName() {
    local name
    name=$(basename "$library" .dylib)
    name=${name#libKtQtBase.}
    expect "$(version)" "${name#so.}" "$library"
}

IsInTheLibrarysSoname() {
    expect "libKtQtBase.so.$(part MAJOR)" \
        "$("$READELF" -d "$library" | sed -n 's/.*(SONAME).*\[\(.*\)\]$/\1/p')" "The soname"
}

# The major version of the library's names, and of the package that hosts look for.
IsTheOneOfTheDocuments() {
    local told
    told=$(grep -hoE 'libKtQtBase\.(so\.)?[0-9]+|find_package\(KtQtBase [0-9]+' \
        "$sources"/*.md "$sources"/docs/*.md | grep -oE '[0-9]+$' | sort -u)
    expect "$(part MAJOR)" "$told" "The documents"
}

# Under a header of another version no place agrees any more.
DiffersNowhereUnseen() {
    local case said
    take_other_version
    for case in "$@"; do
        said=$("$case") || true
        if ! grep ', and the header says [^ ]*99' <<<"$said"; then
            echo "$case does not see it: $said"
            return 1
        fi
    done
}

case=$1 sources=$2 build=$3 library=$4
"$case" "${@:5}"
