#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks how hard the library's file makes it to use a fault of memory, and what a build with other
# flags makes of that.
#
#     tests/hardening/check-hardening.sh CASE LIBRARY      CASE is one of the functions with a capital
set -euo pipefail
export LC_ALL=C
folder=$(cd "$(dirname "$0")" && pwd)
library=$2
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# ---- The library -----------------------------------------------------------------------------------

calls() {
    readelf --dyn-syms --wide "$library" | grep -E " UND $1(@|$)"
}

GuardsItsStack() {
    calls __stack_chk_fail
}

# The compiler drops the check of a call whose length it knows to fit.
ChecksBuffers() {
    calls '__[a-z]+_chk'
}

BindsEverythingBeforeItRuns() {
    readelf --dynamic --wide "$library" | grep -E '\(FLAGS\).* BIND_NOW'
}

# All that the loader fills in with functions, which it does only once.
MakesItsTablesReadOnly() {
    local slot last begin size
    slot=$(readelf --relocs --wide "$library" | awk '/JUMP_SLO/ { print $1 }' | sort | tail -n 1)
    last=$((16#$slot))
    read -r begin size < <(readelf --program-headers --wide "$library" |
        awk '/GNU_RELRO/ { print $3, $6 }')
    [ "$last" -ge "$((begin))" ]
    [ "$last" -lt "$((begin + size))" ]
}

RunsNoCodeOnTheStack() {
    readelf --program-headers --wide "$library" | grep -E 'GNU_STACK .* RW +0x'
}

HasNoCodeThatTheLoaderChanges() {
    readelf --dynamic --wide "$library" >"$work/entries"
    grep -F '(SONAME)' "$work/entries"
    (! grep -E '\(TEXTREL\)|\(RPATH\)' "$work/entries")
    (! readelf --program-headers --wide "$library" | grep -F ' RWE ')
}

# ---- Other builds ----------------------------------------------------------------------------------

# Builds a library, for which a warning is an error; without the flags of whoever runs this, since
# they may choose a level.
build() {
    env -u CXXFLAGS -u LDFLAGS cmake -S "$folder/project" -B "$work" -G Ninja \
        -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DKTQTBASE_WARNINGS_AS_ERRORS=ON "$@"
    cmake --build "$work"
    library=$work/libhardened.so
}

is_compiled_with() {
    grep -F -- "$1" "$work/compile_commands.json"
}

IsOnInAReleaseBuild() {
    build -DCMAKE_BUILD_TYPE=Release
    is_compiled_with "-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 "
    GuardsItsStack
    ChecksBuffers
    BindsEverythingBeforeItRuns
    MakesItsTablesReadOnly
}

ChecksBuffersOfOptimisedCodeOnly() {
    build -DCMAKE_BUILD_TYPE=Debug
    (! is_compiled_with _FORTIFY_SOURCE)
    GuardsItsStack
    build -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O0
    (! is_compiled_with _FORTIFY_SOURCE)
    GuardsItsStack
}

GivesWayToAChosenLevel() {
    build -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS=-D_FORTIFY_SOURCE=1
    is_compiled_with " -D_FORTIFY_SOURCE=1 "
    (! is_compiled_with _FORTIFY_SOURCE=2)
}

# Some systems' compilers set one before they read any flag.
TakesTheCompilersOwnLevelForNoChoice() {
    printf '#!/bin/sh\nexec "%s" -O2 -D_FORTIFY_SOURCE=1 "$@"\n' "${CXX:-c++}" >"$work/own-level"
    chmod +x "$work/own-level"
    build -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER="$work/own-level"
    is_compiled_with -D_FORTIFY_SOURCE=2
}

GivesWayToSanitizers() {
    build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKTQTBASE_SANITIZE=ON
    (! is_compiled_with _FORTIFY_SOURCE)
    build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKTQTBASE_SANITIZE=OFF \
        -DCMAKE_CXX_FLAGS=-fsanitize=undefined
    (! is_compiled_with _FORTIFY_SOURCE)
}

IsLeftOutOnRequest() {
    build -DCMAKE_BUILD_TYPE=Release -DKTQTBASE_HARDEN=OFF
    (! is_compiled_with _FORTIFY_SOURCE)
    (! is_compiled_with -fstack-protector)
    (! BindsEverythingBeforeItRuns)
}

"$1"
