#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks tools/install.cmake and tools/uninstall.cmake with a project of a few files.
#
#     CMAKE=COMMAND tests/packages/check-uninstall.sh CASE    CASE is a function with a capital
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
prefix="$work/my prefix é"
manifest=share/KtQtBase/installed.txt
unset DESTDIR

# A project that installs the named files, each of which holds its own name, and a link.
lay_out_project() {
    local name
    mkdir -p "$work/source"
    {
        echo "cmake_minimum_required(VERSION 3.21)"
        echo "project(files NONE)"
        for name in "$@"; do
            echo "$name" >"$work/source/${name##*/}"
            echo "install(FILES \"${name##*/}\" DESTINATION \"${name%/*}\")"
        done
        echo "file(CREATE_LINK libA.so.1 link.so SYMBOLIC)"
        echo "install(FILES link.so DESTINATION lib RENAME libA.so)"
    } >"$work/source/CMakeLists.txt"
}

install_project() {
    (cd "$work/source" && "$CMAKE" -B "$work/build")
    "$CMAKE" -DBUILD="$work/build" -DPREFIX="$prefix" -P "$project/tools/install.cmake"
}

lay_out_installation() {
    lay_out_project lib/libA.so.1 "include/A/a header+.h"
    install_project >/dev/null
}

uninstall() {
    "$CMAKE" -DPREFIX="$prefix" -P "$project/tools/uninstall.cmake" >"$work/told" 2>&1
}

names_below() {
    (cd "$1" && find . -mindepth 1 | LC_ALL=C sort)
}

# Uninstalling must fail, tell why and leave all as it is.
expect_refusal() {
    names_below "$prefix" >"$work/before"
    (! uninstall)
    tr -s ' \n' ' ' <"$work/told" | grep -F "$1"
    names_below "$prefix" | diff "$work/before" -
}

RemovesWhatWasInstalledAndNothingElse() {
    mkdir -p "$prefix/lib" "$prefix/share/empty"
    echo foreign >"$prefix/lib/foreign"
    names_below "$prefix" >"$work/before"
    lay_out_installation
    [ -L "$prefix/lib/libA.so" ]
    [ -s "$prefix/include/A/a header+.h" ]
    uninstall
    names_below "$prefix" | diff "$work/before" -
    grep -F "Removed 3 files" "$work/told"
}

RemovesFromWhereThePrefixWasMoved() {
    lay_out_installation
    mv "$prefix" "$work/moved"
    prefix=$work/moved
    uninstall
    [ ! -e "$work/moved" ]
}

RemovesBelowAnotherRoot() {
    export DESTDIR="$work/another root"
    lay_out_installation
    [ -s "$DESTDIR$prefix/lib/libA.so.1" ]
    [ ! -e "$prefix" ]
    uninstall
    [ ! -e "$DESTDIR$prefix" ]
}

RemovesWhatAnEarlierInstallationHad() {
    lay_out_installation
    lay_out_project lib/libA.so.1 lib/more/new
    echo changed >"$work/source/libA.so.1"
    install_project >/dev/null
    [ -s "$prefix/include/A/a header+.h" ]
    uninstall
    [ ! -e "$prefix" ]
}

RemovesTheRestOfWhatIsPartlyGone() {
    lay_out_installation
    rm "$prefix/lib/libA.so.1"
    uninstall
    [ ! -e "$prefix" ]
}

RefusesWhatItDidNotInstall() {
    mkdir -p "$prefix/lib"
    echo foreign >"$prefix/lib/libA.so.1"
    expect_refusal "Nothing was installed by ./run install"
}

RefusesAChangedFile() {
    lay_out_installation
    echo changed >>"$prefix/lib/libA.so.1"
    expect_refusal "libA.so.1 is not as it was installed. Nothing is removed."
}

RefusesAnotherLink() {
    lay_out_installation
    ln -sf libA.so.2 "$prefix/lib/libA.so"
    expect_refusal "libA.so is not as it was installed. Nothing is removed."
}

RefusesNamesAboveThePrefix() {
    lay_out_installation
    echo outside >"$work/outside"
    echo "file $("$CMAKE" -E sha256sum "$work/outside" | cut -d' ' -f1) ../outside" >>"$prefix/$manifest"
    expect_refusal "../outside is not below"
    [ -s "$work/outside" ]
}

RefusesFoldersBehindALink() {
    lay_out_installation
    mv "$prefix/include" "$work/include"
    ln -s "$work/include" "$prefix/include"
    expect_refusal "is not below"
    [ -s "$work/include/A/a header+.h" ]
}

RefusesAnUnknownLine() {
    lay_out_installation
    echo "device null" >>"$prefix/$manifest"
    expect_refusal "has a line of no known kind: device null"
}

"$1"
