#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the fuzzers of build/fuzz, two at a time, and fails where one of them found something.
#
#     tools/fuzz.sh [MINUTES] [NAME]    each, or the named one, for 10 minutes or as many as given,
#                                       with new inputs each time
#     tools/fuzz.sh --seconds N [NAME]  each for so many seconds, from the same seed each time and
#                                       from the corpus in fuzz/ alone
#
# What was found is left in build/fuzz/found/NAME/, the inputs that a later run starts from in
# build/fuzz/corpus/NAME/, and what the fuzzer printed in build/fuzz/log/NAME.txt.
set -euo pipefail
cd "$(dirname "$0")/.."
shopt -s nullglob
build=$PWD/build/fuzz

usage() {
    sed -n '/^#  /s/^#     //p' "$0" >&2
    exit 2
}

is_number() {
    [[ "$1" =~ ^[1-9][0-9]*$ ]]
}

seconds=600
short=
case "${1:-}" in
    --seconds)
        if ! is_number "${2:-}"; then usage; fi
        seconds=$2
        short=yes
        shift 2
        ;;
    [0-9]*)
        if ! is_number "$1"; then usage; fi
        seconds=$((60 * $1))
        shift
        ;;
esac

fuzzers() {
    local folder
    for folder in fuzz/corpus/*/; do
        basename "$folder"
    done
}

if [ $# -gt 1 ] || { [ $# -eq 1 ] && ! [ -d "fuzz/corpus/${1:-none}" ]; }; then
    usage
fi

# Fuzzers write thousands of files a second.
scratch=$(mktemp -d -p "$([ -d /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
trap 'rm -rf "$scratch"' EXIT

# One fuzzer in a folder of its own, which is its home, too.
run_one() {
    local name=$1 place=$scratch/$1 grown=$build/corpus/$1 options=()
    # A fuzzer allocates and frees much, and little that another run could find again.
    local asan=malloc_context_size=8:quarantine_size_mb=16${ASAN_OPTIONS:+:$ASAN_OPTIONS}
    if [ -f "fuzz/$name.options" ]; then
        read -r -a options <"fuzz/$name.options"
    fi
    if [ -f "fuzz/$name.dict" ]; then
        options+=("-dict=$PWD/fuzz/$name.dict")
    fi
    if [ -n "$short" ]; then
        grown=$place/corpus
        options+=(-seed=1)
    fi
    mkdir -p "$place/home" "$grown" "$build/found/$name" "$build/log"
    chmod 700 "$place/home"
    local given=$PWD/fuzz/corpus/$name log=$build/log/$name.txt failed=0
    (cd "$place" && HOME=$place/home XDG_CONFIG_HOME=$place/home/config \
        XDG_RUNTIME_DIR=$place/home TMPDIR=$place QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 \
        ASAN_OPTIONS=$asan \
        "$build/fuzz/$name" -max_total_time="$seconds" -timeout=20 -print_final_stats=1 \
        -artifact_prefix="$build/found/$name/" "${options[@]}" "$grown" "$given") >"$log" 2>&1 ||
        failed=$?
    tell "$name" "$failed" "$log"
}

statistic() {
    sed -n "s/^stat::$1: *//p" "$2" | tail -n 1
}

# libFuzzer's counters: edges that were reached, and features, which count how often they were, too.
counter() {
    grep -oE " $1: [0-9]+" "$2" | tail -n 1 | grep -oE '[0-9]+' || echo -
}

tell() {
    local name=$1 failed=$2 log=$3
    printf '%-18s %12s %10s %7s %7s  %s\n' "$name" \
        "$(statistic number_of_executed_units "$log")" "$(statistic average_exec_per_sec "$log")" \
        "$(counter cov "$log")" "$(counter ft "$log")" \
        "$([ "$failed" -eq 0 ] && echo nothing || echo "something: build/fuzz/log/$name.txt")"
    if [ "$failed" -ne 0 ]; then
        touch "$scratch/failed"
        grep -vE '^(#[0-9]|stat::)' "$log" | tail -n 60 >&2
    fi
}

printf '%-18s %12s %10s %7s %7s  %s\n' fuzzer executions "a second" cov ft found
for name in ${1:-$(fuzzers)}; do
    while [ "$(jobs -rp | wc -l)" -ge 2 ]; do
        sleep 0.2
    done
    run_one "$name" &
done
wait
[ ! -e "$scratch/failed" ]
