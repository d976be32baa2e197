#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles on Linux what a Mac compiles: every public header after AppKit's, and the macOS platform
# source. GNUstep takes the place of Apple's frameworks.
set -euo pipefail
cd "$(dirname "$0")/.."
mac_source=src/platform/PlatformMac.mm

# The compiler's own folder comes last: only <objc/objc.h> is needed from it, and its other headers
# belong to g++.
compile() {
    # shellcheck disable=SC2046 # the flags are meant to be split
    clang++ -x objective-c++ -fobjc-runtime=gcc -std=c++17 -fPIC -fsyntax-only \
        -Wall -Wextra -Werror -Iinclude -Iosbase/include -Isrc -isystem tests/support/macos \
        -isystem /usr/include/GNUstep -idirafter "$(gcc -print-file-name=include)" \
        $(pkg-config --cflags Qt5Widgets | sed 's/-I */-isystem /g') "$@"
}

compile_headers() {
    local header
    for header in $(find include -name '*.h' | sort); do
        echo "$header"
        printf '#import <AppKit/AppKit.h>\n#include <%s>\n' "${header#include/}" | compile -
    done
}

# GNUstep runs on Linux, so its compiler also accepts what a Mac does not have.
find_linux_only() {
    if grep -nE '<link\.h>|<malloc\.h>|/proc\b' "$mac_source"; then
        echo "$mac_source: macOS has none of these" >&2
        return 1
    fi
}

compile_headers
echo "$mac_source"
compile "$mac_source"
find_linux_only
