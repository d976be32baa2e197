#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs cppcheck over the sources and headers of the two libraries, on every core. What it says and is
# meant so stands in tools/cppcheck.suppressions.
#
#     tools/check-cppcheck.sh
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh
project_files 'src/*.cpp' 'osbase/*.cpp' | tr '\0' '\n' |
    cppcheck --file-list=- --enable=warning,style,performance,portability --std=c++17 \
        --language=c++ --library=posix,qt --suppressions-list=tools/cppcheck.suppressions \
        -DKTQTBASE_BUILDING -I include -I osbase/include -I src \
        -j "$(getconf _NPROCESSORS_ONLN)" --quiet --error-exitcode=1
