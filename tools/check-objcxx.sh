#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles on Linux what a Mac compiles, for both of its processors: every public header after
# AppKit's, and the macOS platform source with its tests. GNUstep takes the place of Apple's
# frameworks.
set -euo pipefail
cd "$(dirname "$0")/.."
mac_sources=(src/platform/PlatformMac.mm tests/platform/PlatformMacTest.mm)
targets=(x86_64-linux-gnu aarch64-linux-gnu)

# The compiler's own folder comes last: only <objc/objc.h> is needed from it, and its other headers
# belong to g++.
compile() {
    local libraries=/usr/lib/$target/pkgconfig
    # shellcheck disable=SC2046 # the flags are meant to be split
    clang++ --target="$target" -x objective-c++ -fobjc-runtime=gcc -std=c++17 -fPIC -fsyntax-only \
        -Wall -Wextra -Werror -Iinclude -Iosbase/include -Isrc -Itests -isystem tests/support/macos \
        -isystem /usr/include/GNUstep -idirafter "$(gcc -print-file-name=include)" \
        $(PKG_CONFIG_LIBDIR=$libraries pkg-config --cflags Qt5Widgets | sed 's/-I */-isystem /g') "$@"
}

compile_headers() {
    local header
    for header in $(find include -name '*.h' | sort); do
        echo "$header"
        printf '#import <AppKit/AppKit.h>\n#include <%s>\n' "${header#include/}" | compile -
    done
}

compile_sources() {
    local source
    for source in "${mac_sources[@]}"; do
        echo "$source"
        compile "$source"
    done
}

# GNUstep runs on Linux, so its compiler also accepts what a Mac does not have.
find_linux_only() {
    if grep -nE '<link\.h>|<malloc\.h>|/proc\b' "${mac_sources[@]}"; then
        echo "macOS has none of these" >&2
        return 1
    fi
}

for target in "${targets[@]}"; do
    echo "For $target:"
    compile_headers
    compile_sources
done
find_linux_only
