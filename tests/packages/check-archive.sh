#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks tools/dist.sh and tools/files.sh in a small checkout, and in what its archive unpacks to.
#
#     tests/packages/check-archive.sh CASE    CASE is one of the functions with a capital
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
export HOME=$work GIT_CONFIG_NOSYSTEM=1 GIT_CEILING_DIRECTORIES=$work
export GIT_AUTHOR_NAME=somebody GIT_AUTHOR_EMAIL=somebody@localhost
export GIT_COMMITTER_NAME=somebody GIT_COMMITTER_EMAIL=somebody@localhost
export GIT_COMMITTER_DATE="1700000000 +0000" GIT_AUTHOR_DATE="1600000000 +0000"

lay_out_checkout() {
    mkdir -p "$1/include/KtQtBase" "$1/tools" "$1/src/with blank é"
    cp "$project/include/KtQtBase/Version.h" "$1/include/KtQtBase"
    cp "$project/tools/dist.sh" "$project/tools/files.sh" "$1/tools"
    printf 'one\r\n' >"$1/src/with blank é/b.cpp"
    echo two >"$1/src/a.cpp"
    echo three >"$1/a.h"
    chmod 600 "$1/a.h"
    echo /build/ >"$1/.gitignore"
    git -C "$1" init -q
    git -C "$1" add -A
    git -C "$1" commit -qm "All"
}

# Prints the archive's name.
make_archive() {
    "$1/tools/dist.sh" "$1/build/dist" 2>"$work/told"
}

unpack() {
    lay_out_checkout "$work/checkout"
    tar -C "$work" -xf "$(make_archive "$work/checkout")"
    cd "$work"/ktqtbase-*
}

listed() {
    git -c core.quotePath=false -C "$1" ls-files | LC_ALL=C sort
}

HoldsEveryFileOfTheCommit() {
    unpack
    diff <(listed "$work/checkout") <(find . -type f | cut -c3- | LC_ALL=C sort)
    cmp "src/with blank é/b.cpp" "$work/checkout/src/with blank é/b.cpp"
    [ -x tools/dist.sh ]
}

IsNamedByItsVersion() {
    local version
    lay_out_checkout "$work/checkout"
    version=$(cd "$project" && . tools/files.sh && project_version)
    [ "$(make_archive "$work/checkout")" = "$work/checkout/build/dist/ktqtbase-$version.tar.xz" ]
    (cd "$work/checkout/build/dist" && sha256sum -c --quiet "ktqtbase-$version.tar.xz.sha256")
}

HasTheCommitsTimeAndNoOwner() {
    local archive
    lay_out_checkout "$work/checkout"
    archive=$(make_archive "$work/checkout")
    tar --numeric-owner --utc --full-time -tvf "$archive" | awk '{ print $2, $4, $5 }' |
        sort -u | diff <(echo "0/0 2023-11-14 22:13:20") -
    tar -tvf "$archive" | cut -c1-10 | sort -u | diff <(printf '%s\n' -rw-r--r-- -rwxr-xr-x drwxr-xr-x) -
}

IsTheSameBytesEachTime() {
    lay_out_checkout "$work/one"
    (umask 077 && lay_out_checkout "$work/deeper/two")
    printf '[core]\n\tautocrlf = true\n[tar]\n\tumask = 0\n' >"$work/.gitconfig"
    cmp "$(make_archive "$work/one")" "$(TZ=Asia/Tokyo make_archive "$work/deeper/two")"
}

LeavesOutWhatIsNotCommitted() {
    lay_out_checkout "$work/checkout"
    echo more >>"$work/checkout/a.h"
    tar -C "$work" -xf "$(make_archive "$work/checkout")"
    [ "$(cat "$work"/ktqtbase-*/a.h)" = three ]
    grep -F "leaves out what is not committed" "$work/told"
}

IsMadeOfACheckoutOnly() {
    unpack
    (! tools/dist.sh "$work/none" 2>"$work/told")
    grep -F "is no checkout of git" "$work/told"
}

# The same answers by git and without it.
expect_same_files() {
    (cd "$work/checkout" && . tools/files.sh && project_files "$@") >"$work/by-git"
    (. tools/files.sh && project_files "$@") | cmp "$work/by-git" -
    [ -s "$work/by-git" ]
}

ListsItsFilesWithoutGit() {
    unpack
    mkdir build
    echo built >build/built.cpp
    expect_same_files
    expect_same_files '*.cpp'
    expect_same_files 'src/*.cpp' a.h
    expect_same_files src '*.h' ':!include'
    expect_same_files ':!*.cpp'
}

KnowsItsTimeWithoutGit() {
    unpack
    [ "$(. tools/files.sh && project_time)" = 1700000000 ]
    [ "$(cd "$work/checkout" && . tools/files.sh && project_time)" = 1700000000 ]
}

"$1"
