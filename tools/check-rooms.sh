#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks where the library's files lie and which of them know of which. Prints every file or line
# that breaks a rule, then fails.
# shellcheck disable=SC2317 # report calls functions by their names
set -euo pipefail
cd "$(dirname "$0")/.."
failed=0

# The rooms of src/ and what the sources of each may include, besides the headers of the standard
# library and of the system: private headers that lie in the named rooms themselves, and in brackets
# headers or folders of include/KtQtBase/, modules of Qt, and the OS base. A room inside another one
# has a row of its own.
rooms() {
    cat <<'END'
GlobalObjects.cpp <PathName.h> <VolumeDescriptor.h>
platform          platform <QtGui>
string            string platform <WideString.h> <QtCore>
volume            volume string <VolumeDescriptor.h> <KtOsBase>
pathname          pathname string <PathName.h> <pathname> <windows> <QtCore> <KtOsBase>
system            system string platform <windows> <KtOsBase>
system/profile    system/profile string <windows>
system/registry   string <RegistryKey.h> <QtCore>
system/resources  string <Messages.h> <WideString.h> <windows>
system/stubs      <windows>
dialogs           dialogs string <FileDialog.h> <Messages.h> <WideString.h> <windows>
                  <QtCore> <QtWidgets>
dialogs/messages  <Messages.h> <QtCore> <QtWidgets>
drawing           drawing platform <drawing> <QtCore> <QtGui> <QtWidgets>
END
}

# Private headers that are complete by themselves; each other one has a source of its own name.
header_only="
    dialogs/WidgetApplication.h
    drawing/ColorRef.h
    pathname/ParseSteps.h
    pathname/PathInternals.h
    platform/QtVersion.h
    string/CaseFolding.h
    string/TextRoom.h
    string/WhiteSpace.h
    system/FileMode.h"

# Platform.h has one source a platform, and a shared one.
several_sources="platform/Platform.h"

# Folders of tests/ without a counterpart in src/: what is tested there is no folder of src/, or
# serves all tests.
tests_alone="audit catalogue consumer debugger docs examples exports faults grid hardening
    hardening/project headers loading memory osbase packages pictures porting support threads
    tools trace trace/hosts version"

# Modules that the tests of src/system load.
fixtures="system/modules"

# Prints a rule and the lines of a function's output, which break it.
report() {
    local offenders
    offenders=$("$2")
    if [ -n "$offenders" ]; then
        printf '%s:\n%s\n' "$1" "$offenders"
        failed=1
    fi
}

holds() {
    [[ " $(tr -s '[:space:]' ' ' <<<"$1") " == *" $2 "* ]]
}

# The folders that hold a file, from a folder on.
folders() {
    (cd "$1" && find . -mindepth 2 -type f -name "${2:-*}" | sed 's|^\./||; s|/[^/]*$||' | sort -u)
}

folders_without_counterpart() {
    local folder
    for folder in $(folders tests); do
        holds "$tests_alone" "${folder%%/*}" || holds "$fixtures" "$folder" ||
            [ -d "src/$folder" ] || echo "tests/$folder"
    done
}

untested_folders() {
    local folder
    for folder in $(folders src '*.cpp'); do
        compgen -G "tests/$folder/*Test.cpp" >/dev/null || echo "src/$folder"
    done
}

# Every include of src/, in the form FILE:LINE:#include ...
includes() {
    grep -rnE '^ *# *(include|import)\b' src | sort -t: -k1,1 -k2,2n
}

forbidden_includes() {
    includes | awk '
        function folder(path) { return sub(/\/[^\/]*$/, "", path) ? path : "." }
        function top(path) { sub(/\/.*/, "", path); return path }
        function knows(name) { return index(table[room] " ", " " name " ") }
        function knowsPublic(name) { return knows("<" name ">") || knows("<" folder(name) ">") }
        FNR == NR {
            if ($0 !~ /^ /) {
                room = $1
                $1 = ""
            }
            table[room] = table[room] " " $0
            next
        }
        {
            room = substr($0, 5, index($0, ":") - 5)
            if (!(room in table))
                room = folder(room)
            name = $0
            sub(/^[^"<]*["<]/, "", name)
            sub(/[">].*/, "", name)
            if (index($0, "\"") || folder(name) in table)
                allowed = knows(folder(name))
            else if (sub(/^KtQtBase\//, "", name))
                allowed = knowsPublic(name)
            else
                allowed = name !~ /^(Q|KtOsBase)/ || knows("<" top(name) ">")
            if (!allowed)
                print
        }' <(rooms) -
}

# Rows of rooms that are no more.
empty_rooms() {
    local room
    for room in $(rooms | sed -n 's/^\([^ ]*\) .*/\1/p'); do
        [ -e "src/$room" ] || echo "$room"
    done
}

headers_without_source() {
    local header
    for header in $(cd src && find . -name '*.h' | sed 's|^\./||' | sort); do
        [ -f "src/${header%.h}.cpp" ] || holds "$header_only $several_sources" "$header" ||
            echo "src/$header"
    done
}

wrongly_listed_headers() {
    local header
    for header in $header_only $several_sources; do
        [ -f "src/$header" ] && [ ! -f "src/${header%.h}.cpp" ] || echo "$header"
    done
}

unlisted_sources() {
    local source
    for source in $(cd src && find . -name '*.cpp' -o -name '*.mm' | sed 's|^\./||' | sort); do
        grep -qE "(^| )$source(\)|\$)" src/CMakeLists.txt src/platform/Platform.cmake ||
            echo "src/$source"
    done
}

report "Folder of tests/ that mirrors none of src/" folders_without_counterpart
report "Folder of src/ without a *Test.cpp in tests/" untested_folders
report "Include that the table in $0 does not allow" forbidden_includes
report "Room of the table in $0 that is not in src/" empty_rooms
report "Private header without its source, and not listed in $0" headers_without_source
report "Header that $0 lists, and that is gone or has a source" wrongly_listed_headers
report "Source that src/CMakeLists.txt does not list" unlisted_sources
exit "$failed"
