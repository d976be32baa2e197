#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the binary interface of the library, as its debug information tells it, with the one that
# is checked in: sizes, fields, virtual functions, arguments and results of all that is exported.
#
#     tools/check-abi.sh             build the library, compare, fail on a difference
#     tools/check-abi.sh --update    rewrite what is checked in
set -euo pipefail
cd "$(dirname "$0")/.."
kept=tests/exports/KtQtBase.abi
left_out=tests/exports/KtQtBase.abignore
build=build/abi

# g++'s debug information, whatever the compiler of the other builds is. Optimisation changes nothing
# that is compared, and all sources in one compile in the shortest time.
build_library() {
    cmake --preset debug -B "$build" -DCMAKE_CXX_COMPILER=g++ -DCMAKE_CXX_FLAGS=-g \
        -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 -DKTQTBASE_BUILD_TESTS=OFF \
        -DKTQTBASE_BUILD_EXAMPLES=OFF -DKTQTBASE_BUILD_TOOLS=OFF
    cmake --build "$build" --target KtQtBase
} >&2

# Without interfaces that are not exported the file has half the size.
write_interface() {
    abidw --headers-dir include/KtQtBase --drop-private-types --no-show-locs --no-corpus-path \
        --no-comp-dir-path --exported-interfaces-only --suppressions "$left_out" \
        --out-file "$1" "$build/src/libKtQtBase.so"
}

build_library
if [ "${1:-}" = --update ]; then
    write_interface "$kept"
else
    write_interface "$build/KtQtBase.abi"
    abidiff --suppressions "$left_out" "$kept" "$build/KtQtBase.abi"
fi
