#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that what is installed is the same bytes wherever it is built: in two folders of other
# depths, with the build inside the sources and outside, and with debug information, whose names of
# folders are what differs most.
#
#     tools/check-reproducible.sh [CMAKE_OPTION...]
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/setup.sh
. tools/setup.sh
# shellcheck source=tools/files.sh
. tools/files.sh
setup build
setup_tools
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# What a cache keeps may come from another folder.
export CCACHE_DISABLE=1

# Builds a copy of the sources, and installs it for packaging.
build_copy() {
    local sources=$scratch/$1 build=$scratch/$2
    shift 2
    mkdir -p "$sources"
    project_files "*" | xargs -0 cp --parents -t "$sources"
    cmake -S "$sources" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS=-g \
        -DKTQTBASE_BUILD_TESTS=OFF -DKTQTBASE_BUILD_EXAMPLES=OFF "$@"
    cmake --build "$build" --parallel "$(getconf _NPROCESSORS_ONLN)"
    DESTDIR=$build/root cmake --install "$build" --prefix /usr
}

build_copy one one/build/release "$@"
build_copy "much/deeper/two é" elsewhere "$@"
diff -r "$scratch/one/build/release/root" "$scratch/elsewhere/root"
echo "Both builds made the same bytes."
