#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a command on an X display of its own, 1024 by 768, with a window manager: without one no
# window ever becomes active. Both end with the command, whose result is this script's.
#
#     tests/support/with-xvfb.sh COMMAND...
set -euo pipefail

work=$(mktemp -d)
started=()
trap 'kill "${started[@]}" 2>/dev/null || true; wait 2>/dev/null || true; rm -r "$work"' EXIT

# Waits for a file to exist with something in it.
await() {
    local tries
    for ((tries = 0; tries < 300; ++tries)); do
        [ ! -s "$1" ] || return 0
        sleep 0.1
    done
    echo "$2 did not start" >&2
    cat "$work/log" >&2
    exit 1
}

# The server picks a free display by itself and writes its number when it is ready. Its background is
# white, since the frames of windows are black.
Xvfb -displayfd 3 -screen 0 1024x768x24 -wr -nolisten tcp 3>"$work/display" 2>>"$work/log" &
started+=($!)
await "$work/display" Xvfb
DISPLAY=:$(cat "$work/display")
export DISPLAY
# The display alone: no message bus of the user's, and no graphics driver.
export DBUS_SESSION_BUS_ADDRESS=disabled:
export QT_XCB_GL_INTEGRATION=none

openbox --startup "sh -c 'echo ready >\"$work/managed\"'" >>"$work/log" 2>&1 &
started+=($!)
await "$work/managed" openbox

"$@"
