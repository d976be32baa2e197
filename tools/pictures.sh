#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures in docs/ anew, or tells which of them are stale. They are made on Debian 12 with
# Qt 5: another system has other fonts.
#
#     tools/pictures.sh BUILD_DIR [NAME...]     makes docs/NAME.png; without a name all of them
#     tools/pictures.sh --check BUILD_DIR NAME  says whether docs/NAME.png is stale, and fails then
#
# What a terminal or a browser shows depends on their versions, so of these pictures the text behind
# them is compared: docs/pictures.txt has its hash.
set -euo pipefail
project=$(cd "$(dirname "$0")/.." && pwd)
names="gallery sketchpad sketchpad-dark sketchpad-sharp sketchpad-empty sketchpad-save"
names+=" sketchpad-keep sketchpad-recover filedialog nameinfo"
names+=" audit-terminal audit-light audit-dark audit-narrow"
# Without the columns that hold the program's own folder, which is another one on each machine.
table="nameinfo --list names.txt --columns 'name,category,type,volume,base name,file name,extension'"
# shellcheck disable=SC2016 # the terminal shows it
prompt='\033[?25l$ %s\r\n'

usage() {
    echo "Usage: ${0##*/} [--check] BUILD_DIR [NAME...]    the names are: $names" >&2
    exit 2
}

# Runs a command with a home of its own and without the user's settings and desktop.
alone() {
    env -i PATH="$PATH" HOME="$work/home" XDG_CONFIG_HOME="$work/home/config" \
        XDG_CACHE_HOME="$work/home/cache" XDG_RUNTIME_DIR="$work/home" LC_ALL=C.UTF-8 TZ=UTC \
        FONTCONFIG_FILE="$work/fonts.conf" \
        QT_QPA_PLATFORM="${platform:-offscreen}" ${DISPLAY:+DISPLAY="$DISPLAY"} \
        XDG_DATA_HOME="$work/home/data" QT_SCALE_FACTOR="${QT_SCALE_FACTOR:-1}" \
        DBUS_SESSION_BUS_ADDRESS=disabled: QT_XCB_GL_INTEGRATION=none "$@"
}

# The fonts that each build installs, and none besides that somebody has.
choose_fonts() {
    cat >"$work/fonts.conf" <<END
<?xml version="1.0"?>
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>$work/home/fonts</cachedir>
  <include ignore_missing="yes">/etc/fonts/conf.d</include>
</fontconfig>
END
}

# Runs a command that says something only if it fails.
quiet() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2 && return 1; }
}

# ---- The text behind a picture -----------------------------------------------------------------

# What a command prints on a terminal of so many columns.
on_terminal() {
    (cd "$work/files" && alone TERM=xterm script -qec "stty cols $1; $2" /dev/null </dev/null)
}

make_notes() {
    mkdir -p "$work/files"
    x86_64-w64-mingw32-g++ -x c -nostdlib -mwindows -Wl,-e,start "$project/tests/pictures/notes.c" \
        -o "$work/files/notes.exe" -lkernel32 -luser32 -lgdi32 -lcomdlg32 -ladvapi32 -lshell32
}

# The text of a picture; nothing for one whose pixels are compared.
text() {
    case "$1" in
        nameinfo)
            cp "$project/examples/nameinfo/names-short.txt" "$work/files/names.txt"
            on_terminal 100 "'$build/examples/nameinfo/'$table"
            ;;
        audit-terminal)
            make_notes
            on_terminal 100 "'$build/audit/ktqt-audit' notes.exe"
            ;;
        audit-*)
            make_notes
            (cd "$work/files" && alone "$build/audit/ktqt-audit" --html notes.exe)
            ;;
    esac
}

hash_of() {
    local hash
    hash=$(sha256sum "$1")
    echo "${hash%% *}"
}

# ---- The pictures ------------------------------------------------------------------------------

# Runs one of the functions below on a display of its own, whose window manager has no settings of
# somebody's either.
on_display() {
    env -u XDG_CONFIG_DIRS -u XDG_DATA_DIRS HOME="$work/home" XDG_CONFIG_HOME="$work/home/config" \
        LC_ALL=C.UTF-8 FONTCONFIG_FILE="$work/fonts.conf" \
        "$project/tests/support/with-xvfb.sh" "$0" --shown "$work" "$build" "$@"
}

# Takes a picture of the display; the mouse is nowhere above a window.
grab() {
    xdotool mousemove 1023 767
    alone "$build/tests/pictures/picture-tool" grab "$1"
}

# Starts a program in the folder of the pictures' files and waits for its window; it ends with the
# display: TITLE COMMAND...
start() {
    local title=$1
    shift
    (cd "$work/files" && "$@") 2>"$work/log" &
    timeout 30 xdotool search --sync --onlyvisible --name "$title" >/dev/null
    sleep 1
}

# Presses the mouse's button at a place of the active window and lets it go at another one, with the
# pauses that a hand makes.
drag() {
    local window
    window=$(xdotool getactivewindow)
    xdotool mousemove --window "$window" "$1" "$2" sleep 0.2 mousedown 1 sleep 0.2
    xdotool mousemove --window "$window" "$3" "$4" sleep 0.2 mouseup 1 sleep 0.2
}

play() {
    (cd "$work/files" && platform=offscreen alone QT_LOGGING_RULES="*.warning=false" \
        "$build/examples/sketchpad/sketchpad" --script "$1") >"$work/log" 2>&1
}

# Opens the drawing of the demo's session: FILE [ARGUMENT...]
sketchpad_window() {
    local file=$1
    shift
    play "$project/examples/sketchpad/session.script"
    start "session.sketch" alone "$build/examples/sketchpad/sketchpad" "$@" session.sketch
    xdotool key ctrl+1
    drag 276 110 471 275
    grab "$file"
}

# What the window shows of a script's last line: FILE RATIO [LINE...]
sketchpad_played() {
    local file=$1 ratio=$2
    shift 2
    printf '%s\n' "$@" "screenshot $file" >"$work/files/script"
    QT_SCALE_FACTOR=$ratio play script
}

sketchpad_sharp() {
    play "$project/examples/sketchpad/session.script"
    sketchpad_played "$1" 2 "open session.sketch" "tool select" "drag 260,40 300,100 455,205"
}

# The question that follows some keys in the window with the session's drawing: FILE KEYS...
sketchpad_question() {
    local file=$1
    shift
    play "$project/examples/sketchpad/session.script"
    start "session.sketch" alone "$build/examples/sketchpad/sketchpad" session.sketch
    xdotool key ctrl+4
    drag 520 380 700 460
    for keys in "$@"; do
        xdotool key "$keys" sleep 0.2
    done
    sleep 0.5
    grab "$file"
}

sketchpad_recover() {
    printf '%s\n' "tool rectangle" "drag 60,60 160,160" autosave die >"$work/files/script"
    play script || true
    start "New drawing" alone "$build/examples/sketchpad/sketchpad"
    grab "$1"
}

dialog_window() {
    start "Read a licence" alone "$build/tests/pictures/picture-tool" dialog \
        /usr/share/common-licenses
    drag 200 150 200 150
    grab "$1"
}

terminal_window() {
    local file=$1 columns=$2 rows=$3
    start Terminal alone xterm -T Terminal -geometry "${columns}x$rows" \
        -fa "DejaVu Sans Mono" -fs 10 -bg "#0d1117" -fg "#e6edf3" -xrm "*color1: #ff7b72" \
        -xrm "*color3: #d29922" -xrm "*color5: #bc8cff" -xrm "*internalBorder: 8" \
        -e sh -c "cat screen; sleep 60"
    grab "$file"
}

# A terminal with the first rows of a picture's text: FILE COLUMNS COMMAND ROWS
terminal() {
    # shellcheck disable=SC2059 # the format is a constant
    printf "$prompt%s" "$3" "$(head -n "$4" "$work/text")" >"$work/files/screen"
    on_display terminal_window "$1" "$2" "$(grep -c "" "$work/files/screen")"
}

# A page in a browser: FILE WIDTH HEIGHT SCHEME, which is 0 for dark and 1 for light
page() {
    cp "$work/text" "$work/page.html"
    quiet alone chromium --headless --no-sandbox --disable-gpu --hide-scrollbars \
        --user-data-dir="$work/home/browser" --blink-settings=preferredColorScheme="$4" \
        --window-size="$2,$3" --screenshot="$1" "file://$work/page.html"
}

make() {
    case "$1" in
        gallery) alone "$build/examples/gallery/gallery" --png "$2" ;;
        sketchpad) on_display sketchpad_window "$2" ;;
        sketchpad-dark) on_display sketchpad_window "$2" --dark ;;
        sketchpad-sharp) sketchpad_sharp "$2" ;;
        sketchpad-empty) sketchpad_played "$2" 1 ;;
        sketchpad-save) on_display sketchpad_question "$2" ctrl+q ;;
        sketchpad-keep) on_display sketchpad_question "$2" ctrl+shift+s Home \
            shift+End s e s s i o n minus b y minus d i a l o g Return ;;
        sketchpad-recover) on_display sketchpad_recover "$2" ;;
        filedialog) on_display dialog_window "$2" ;;
        nameinfo) terminal "$2" 100 "$table" 100 ;;
        audit-terminal) terminal "$2" 100 "ktqt-audit notes.exe" 34 ;;
        audit-light) page "$2" 1100 826 1 ;;
        audit-dark) page "$2" 1100 826 0 ;;
        audit-narrow) page "$2" 400 808 1 ;;
    esac
}

# ---- All of them -------------------------------------------------------------------------------

remember_text() {
    local list=$project/docs/pictures.txt
    { grep -v "^$1 " "$list" || true; echo "$1 $(hash_of "$work/text")"; } | sort >"$work/list"
    cp "$work/list" "$list"
}

renew() {
    text "$1" >"$work/text"
    make "$1" "$project/docs/$1.png"
    if [ -s "$work/text" ]; then
        remember_text "$1"
    fi
    echo "docs/$1.png"
}

# How many pixels may differ: a folder's name in a title is another one each time, and so are the
# dates of the files in a list on a machine with another update.
allowed_pixels() {
    case "$1" in
        gallery) echo 20 ;;
        sketchpad*) echo 500 ;;
        filedialog) echo 2000 ;;
    esac
}

is_current() {
    if [ -s "$work/text" ]; then
        grep -qxF "$1 $(hash_of "$work/text")" "$project/docs/pictures.txt"
    else
        platform=offscreen alone "$build/tests/pictures/picture-tool" compare \
            "$project/docs/$1.png" "$work/now.png" "$(allowed_pixels "$1")"
    fi
}

check() {
    text "$1" >"$work/text"
    [ -s "$work/text" ] || make "$1" "$work/now.png"
    if ! is_current "$1"; then
        echo "docs/$1.png is stale; ./run pictures $1 makes it anew" >&2
        exit 1
    fi
}

# Each picture has a home of its own: Qt's file dialog remembers where it was.
furnish() {
    rm -rf "${work:?}"/*
    mkdir "$work/files" "$work/home"
    chmod 700 "$work/home"
    choose_fonts
}

lay_out() {
    build=$(cd "$1" && pwd)
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
}

are_known() {
    local name
    for name in "$@"; do
        case " $names " in
            *" $name "*) ;;
            *) usage ;;
        esac
    done
}

main() {
    local name
    [ $# -gt 0 ] || usage
    are_known "${@:2}"
    lay_out "$1"
    for name in "${@:2}"; do
        furnish
        renew "$name"
    done
}

case "${1:-}" in
    --shown)
        work=$2
        build=$3
        platform=xcb
        "${@:4}"
        ;;
    --check)
        [ $# -eq 3 ] || usage
        are_known "$3"
        lay_out "$2"
        furnish
        check "$3"
        ;;
    *)
        # shellcheck disable=SC2086 # the names are words
        if [ $# -eq 1 ]; then main "$1" $names; else main "$@"; fi
        ;;
esac
