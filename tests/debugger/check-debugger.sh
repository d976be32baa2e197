#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks what a debugger shows of a host's values, against the lines of expected.txt.
#
#     tests/debugger/check-debugger.sh CASE      CASE is one of the functions with a capital
#
# The environment names the debuggers, the library and the host; CMakeLists.txt sets it. Ends with 77
# where the system lets nobody look at a program.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
touch "$work/said"
exec 3>&1
unset DEBUGINFOD_URLS
page=$here/../../docs/debugging.md
trusted=$BUILD
export LD_LIBRARY_PATH=${LIBRARY%/*}:$OSBASE

# What a debugger said last explains a failure.
leave() {
    local status=$?
    if [ "$status" -ne 0 ]; then
        cat "$work/said" >&3
    fi
    rm -r "$work"
}
trap leave EXIT

names() {
    sed 's/ = .*//' "$here/expected.txt"
}

# What to say to a debugger that has stopped, or that has read a core.
gdb_questions() {
    echo 'frame function main'
    names | sed 's/.*/echo &\\040=\\040\noutput &\necho \\n/'
}

lldb_questions() {
    echo 'script lldb.thread.SetSelectedFrame([f.idx for f in lldb.thread if f.name == "main"][0])'
    names | sed 's/^/frame variable /'
}

run_gdb() {
    "$GDB" -nx -batch -iex "add-auto-load-safe-path $trusted" "$@" 2>&1 </dev/null | refuse
}

run_lldb() {
    PYTHONPATH=$LLDB_MODULES "$LLDB" --no-lldbinit --batch \
        -o "command script import '$BUILD/debugger/ktqtbase_lldb.py'" "$@" 2>&1 </dev/null | refuse
}

# Passes a debugger's words on, or ends with 77 where it may not trace a program.
refuse() {
    tee "$work/said"
    if grep -qE "ptrace: |Could not trace|'A' packet returned an error" "$work/said"; then
        echo "This system lets no debugger trace a program: nothing but a core can be looked at." |
            tee -a "$work/said"
        return 77
    fi
}

# The lines of values are as expected, and no view failed.
expect() {
    (! grep -E 'Python Exception|Traceback|^Error' "$1")
    diff "$here/expected.txt" <(grep -E '^[a-z]+\.[A-Za-z.]+ = ' "$1")
}

# What lldb says has the type of a value before its name, and addresses of pointers.
plain() {
    sed -E 's/^\([^=]*\) ([a-z]+\.)/\1/' "$1"
}

# A core that gdb makes of a program that it runs, or the system of one that fails.
make_core() {
    run_gdb -ex 'break lookNow' -ex run -ex "generate-core-file $work/core" "$HOST" \
        >"$work/making" || true
    if [ ! -f "$work/core" ]; then
        cat "$work/making"
        (cd "$work" && ulimit -c unlimited && END_WITH_A_CORE=1 "$HOST") || true
        find "$work" -name 'core?*' -exec mv {} "$work/core" \;
        [ -f "$work/core" ] || no_core
    fi
}

no_core() {
    echo "This system keeps no core of a program, either: nothing was looked at." >>"$work/said"
    exit 77
}

ShowsEachTypeInARunningProgram() {
    gdb_questions >"$work/questions"
    run_gdb -ex 'break lookNow' -ex run -x "$work/questions" "$HOST" >"$work/shown"
    expect "$work/shown"
}

ShowsEachTypeInACore() {
    make_core
    gdb_questions >"$work/questions"
    run_gdb -x "$work/questions" "$HOST" "$work/core" >"$work/shown"
    expect "$work/shown"
}

LldbShowsEachTypeInARunningProgram() {
    lldb_questions >"$work/questions"
    run_lldb -o 'breakpoint set --name lookNow' -o run -s "$work/questions" "$HOST" >"$work/shown"
    plain "$work/shown" >"$work/plain"
    expect "$work/plain"
}

LldbShowsEachTypeInACore() {
    make_core
    lldb_questions >"$work/questions"
    run_lldb -s "$work/questions" -c "$work/core" "$HOST" >"$work/shown"
    plain "$work/shown" >"$work/plain"
    expect "$work/plain"
}

# The views find values everywhere in memory that is full of anything, and what was freed.
SurvivesAnythingInMemory() {
    run_gdb -ex 'break lookNow' -ex run -ex 'frame function main' -ex 'print *freed.text' \
        -ex 'print *freed.volume' -x "$here/anything_gdb.py" "$HOST" >"$work/shown"
    (! grep -E 'Python Exception|Traceback|^Error' "$work/shown")
    grep -E '^1600 values, none longer than [0-9]{2,4}$' "$work/shown"
}

LldbSurvivesAnythingInMemory() {
    run_lldb -o 'breakpoint set --name lookNow' -o run -o up -o 'frame variable freed' \
        -o "command script import '$here/anything_lldb.py'" "$HOST" >"$work/shown"
    (! grep -E 'Traceback|^Error' "$work/shown")
    grep -E '^1600 values, none longer than [0-9]{2,4}$' "$work/shown"
}

# The page's lines are among those that the other cases compare.
ItsPageShowsWhatIsCompared() {
    sed -n 's/^(gdb) print //p; s/^(lldb) frame variable //p' "$page" >"$work/names"
    sed -nE 's/^(\$[0-9]+|\([A-Za-z]+\) [a-z.]+) = //p' "$page" >"$work/texts"
    paste -d= "$work/names" "$work/texts" | sed 's/=/ = /' >"$work/said"
    grep . "$work/said" >/dev/null
    (! grep -vxFf "$here/expected.txt" "$work/said")
}

EscapesWhatTheTerminalLacks() {
    LC_ALL=C run_gdb -ex 'break lookNow' -ex run -ex 'frame function main' \
        -ex 'print texts.beyond' "$HOST" >"$work/shown"
    # shellcheck disable=SC2016 # gdb numbers what it prints
    grep -F '$1 = L"clef \U0001d11e, \xe9, \u4e2d"' "$work/shown"
}

# Where it was moved to, with the one line that the documents tell.
LoadsTheViewsOfAnInstalledLibrary() {
    "$CMAKE" --install "$BUILD" --prefix "$work/prefix" >"$work/installed"
    mv "$work/prefix" "$work/moved é here"
    trusted="$work/moved é here"
    LD_LIBRARY_PATH="$trusted/$LIBDIR:$OSBASE"
    ShowsEachTypeInARunningProgram
    (! find "$trusted" -name __pycache__ | grep .)
}

InstallsTheScriptWhereGdbTrustsIt() {
    DESTDIR="$work/root" "$CMAKE" --install "$BUILD" --prefix /usr >"$work/installed"
    cmp "$work/root/usr/$DATADIR/gdb/auto-load/usr/$LIBDIR/${LIBRARY##*/}-gdb.py" \
        "$BUILD/debugger/usr-gdb.py"
    (! find "$work/root/usr/$LIBDIR" -name '*-gdb.py' | grep .)
}

"$1"
