#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the test programs of a build for arm64 under an emulator. It starts no second program of that
# processor, so the tests that start one are left out; their names are printed.
#
#     tools/check-arm64.sh BUILD_DIR
set -euo pipefail
if [ $# -ne 1 ]; then
    echo "Usage: $0 BUILD_DIR" >&2
    exit 2
fi
starts_programs=(
    "ChildProcess.IsKilledAtItsEnd" "ExecutablePath.*" "FirstSteps.*" "*Gallery*" "Nameinfo.*"
    "ParseElsewhere.*" "Pdf.*" "*Sketchpad*" "Unload.*"
)

echo "Left out: ${starts_programs[*]}"
filter=$(IFS=: && echo "${starts_programs[*]}")
run_tests() {
    ctest --test-dir "$1" --output-on-failure --parallel "$(getconf _NPROCESSORS_ONLN)" "${@:2}"
}
GTEST_FILTER="-$filter" run_tests "$1" -L whole-program
run_tests "$1" -R "^(Export\.|Unload\.TakesTheLibraryOutOfTheProcess)"
"$(dirname "$0")/check-exports.sh" "$1"
