#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares what libKtQtBase.so exports with the list that is checked in: a missing symbol breaks
# hosts, and an additional one could not be removed later.
#
#     tools/check-exports.sh BUILD_DIR             compare, fail on a difference
#     tools/check-exports.sh --update BUILD_DIR    rewrite the list
set -euo pipefail
list=$(dirname "$0")/../tests/exports/exported-symbols.txt

# Templates of the standard library and of Qt are visible by themselves, so those that the compiler
# did not inline appear as weak symbols. Classes that begin with QKt belong to this library.
is_foreign='^([^(<]* )?(std::|__gnu_cxx::|operator (new|delete)|Q[A-JL-Zt]|QK[a-su-z]|q[A-Zt])'
is_toolchain='^(_init|_fini|__bss_start|_edata|_end|__end__|__?bss_end__|__asan_|__ubsan_|__odr_asan)'

exported_symbols() {
    nm -D --defined-only -C "$1/src/libKtQtBase.so" |
        awk -v foreign="$is_foreign" -v toolchain="$is_toolchain" '{
            type = $2
            name = substr($0, index($0, " " type " ") + 3)
            bare = name
            sub(/^(typeinfo name|typeinfo|vtable|VTT|guard variable) for /, "", bare)
            if (name !~ toolchain && !(type ~ /[WVu]/ && bare ~ foreign))
                print name
        }' | LC_ALL=C sort -u
}

if [ "${1:-}" = --update ]; then
    exported_symbols "$2" >"$list"
else
    exported_symbols "$1" | diff -u --label expected --label exported "$list" -
fi
