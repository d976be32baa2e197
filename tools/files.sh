# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# What packages and checks need to know of the project: its files and their time, with git or
# without it, its version, and who makes packages of it. Sourced, never run, from the folder that
# holds the project. In an unpacked source archive all files are the project's, but for those of
# builds.

# Whether a name is below one of the patterns, in which * stands for slashes, too.
matches() {
    local name=$1 pattern
    shift
    for pattern in "$@"; do
        # shellcheck disable=SC2053 # a pattern
        if [[ $name == $pattern || $name == $pattern/* ]]; then
            return
        fi
    done
    return 1
}

unpacked_files() {
    local pattern name wanted=() unwanted=()
    for pattern in "$@"; do
        case "$pattern" in
            :!*) unwanted+=("${pattern#:!}") ;;
            *) wanted+=("$pattern") ;;
        esac
    done
    find . \( -path ./build -o -path ./install \) -prune -o -type f -print0 | LC_ALL=C sort -z |
        while IFS= read -r -d '' name; do
            name=${name#./}
            if matches "$name" "${wanted[@]:-*}" && ! matches "$name" "${unwanted[@]:-}"; then
                printf '%s\0' "$name"
            fi
        done
}

# The names of all files, or of those that git's patterns name, each with a NUL behind it.
project_files() {
    if [ -e .git ]; then
        git ls-files -z -- "$@"
    else
        unpacked_files "$@"
    fi
}

# The time of the last change in seconds, which every file of a source archive has.
project_time() {
    if [ -e .git ]; then
        git log -1 --format=%ct
    else
        stat -c %Y include/KtQtBase/Version.h
    fi
}

# The version in the header that standard input holds.
version_of() {
    sed -nE 's/^#define KTQTBASE_VERSION_[MP][A-Z]+ ([0-9]+)$/\1/p' | paste -sd. -
}

project_version() {
    version_of <include/KtQtBase/Version.h
}

# Whom packages name, told in the variables that Debian's tools read.
maintainer() {
    echo "${DEBFULLNAME:-The KtQtBase authors} <${DEBEMAIL:-ktqtbase@example.org}>"
}
