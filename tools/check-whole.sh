#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs every test program of a build as a whole, where CTest starts each test in a process of its
# own: in order and once more behind that, in a fixed random order, and from a folder with a short
# name. This shows a test that leaves something behind, and one that passes only in a fresh process
# or in a long folder. Prints a line a program, and at the end what the failed ones said.
#
#     tools/check-whole.sh BUILD_DIR
#
# The programs are those of which CTest knows the single tests. Left out are dialogs-keyboard-test
# and sketchpad-window-test, which need a display; CTest runs them whole on one.
set -euo pipefail
if [ $# -ne 1 ] || [ ! -d "$1" ]; then
    echo "Usage: $0 BUILD_DIR" >&2
    exit 2
fi

suppressions=$(cd "$(dirname "$0")/.." && pwd)/tests/support/lsan.supp
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$suppressions:print_suppressions=0}
work=$(mktemp -d /tmp/kXXX)
export work
trap 'rm -r "$work"' EXIT

# A line a program, quoted for xargs: its working folder, its file and the command that starts it in
# the tests' environment.
programs() {
    ctest --test-dir "$1" --show-only=json-v1 | python3 -c '
import json, shlex, sys
lines = set()
for test in json.load(sys.stdin)["tests"]:
    command = test.get("command", [])
    filters = [at for at, word in enumerate(command) if word.startswith("--gtest_filter=")]
    folders = [item["value"] for item in test["properties"] if item["name"] == "WORKING_DIRECTORY"]
    for at in filters:
        lines.add(shlex.join([*folders, command[at - 1], *command[:at - 1]]))
for line in sorted(lines):
    print(line)'
}

# The copy keeps the name, since tests look for their program beside themselves.
run_all_ways() {
    local program=$1 copy=$work/${1##*/}
    shift
    "$@" "$program" --gtest_repeat=2 &&
        "$@" "$program" --gtest_shuffle --gtest_random_seed=1 &&
        cp "$program" "$copy" &&
        "$@" "$copy" &&
        rm "$copy"
}

check() {
    local folder=$1 name=${2##*/}
    shift
    if (cd "$folder" && run_all_ways "$@") >"$work/$name.log" 2>&1; then
        rm "$work/$name.log"
        echo "$name passed in $SECONDS s"
    else
        echo "$name FAILED"
        return 1
    fi
}

export -f run_all_ways check
programs "$1" >"$work/programs"
if [ ! -s "$work/programs" ]; then
    echo "$1 has no test programs" >&2
    exit 1
fi
# shellcheck disable=SC2016 # the inner shell expands it
if ! xargs -L 1 -P "$(getconf _NPROCESSORS_ONLN)" bash -c 'check "$@"' check <"$work/programs"; then
    cat "$work"/*.log
    exit 1
fi
