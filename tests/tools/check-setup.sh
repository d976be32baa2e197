#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks what ./run does on a machine that is not like this one. Besides a few tools, every command
# there is a fake one; those that would change something, or build, write down how they were called.
#
#     tests/tools/check-setup.sh CASE [BUILD_DIR]    CASE is one of the functions with a capital
# shellcheck disable=SC2016 # the fake commands expand it
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
built="cmake --preset release
cmake --build --preset release --parallel 2
ctest --preset release --parallel 2"

fake() {
    printf '#!/bin/sh\n%s\n' "${2:-}" >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}

# A fake command that writes down how it was called.
recorded() {
    fake "$1" 'echo "${0##*/}${*:+ $*}" >>"$calls"
'"${2:-}"
}

without() {
    rm "$work/bin/$1"
}

# The packages that are not installed.
lacks() {
    printf '%s\n' "$@" >"$work/lacking"
}

# A machine with a compiler, CMake, Ninja and pkg-config, and somebody who is not root and has no
# sudo.
lay_out_machine() {
    local tool
    mkdir "$work/bin" "$work/project" "$work/project/tools"
    cp "$project/run" "$work/project"
    cp "$project/tools/setup.sh" "$work/project/tools"
    for tool in bash cat chmod dirname env grep mkdir od rm; do
        ln -s "$(type -P "$tool")" "$work/bin/$tool"
    done
    for tool in c++ ninja pkg-config; do
        fake "$tool"
    done
    recorded cmake
    recorded ctest
    fake getconf "echo 2"
    fake id "echo 1000"
    fake tty "exit 1"
    fake uname "echo Linux"
    lacks
}

# Runs a command line in the project, with no other environment than the variables in front of it.
play() {
    status=0
    : >"$work/calls"
    (cd "$work/project" && env -i PATH="$work/bin" HOME="$work/home" calls="$work/calls" \
        lacking="$work/lacking" "$@") </dev/null >"$work/output" 2>&1 || status=$?
}

expect() {
    if [ "$2" != "$3" ]; then
        printf '%s is\n%s\nand should be\n%s\n' "$1" "$2" "$3" >&2
        exit 1
    fi
}

# What the last command line printed, what it called and how it ended.
expect_end() {
    expect "The output" "$(cat "$work/output")" "$1"
    expect "What was called" "$(cat "$work/calls")" "$2"
    expect "The exit status" "$status" "$3"
}

# Debian

lay_out_debian() {
    lay_out_machine
    recorded apt-get
    fake dpkg-query 'grep -qxF "$4" "$lacking" || echo "install ok installed"'
}

apt_message() {
    echo "Packages are missing, and only root can install them. As root, run:
    $1apt-get update && $1apt-get install --no-install-recommends $2"
}

InstallsWhatRootLacks() {
    lay_out_debian
    fake id "echo 0"
    lacks xdotool qtbase5-dev
    play ./run test
    expect_end "Installing: qtbase5-dev xdotool" "apt-get update
apt-get install -y --no-install-recommends qtbase5-dev xdotool
$built" 0
}

InstallsThroughSudoWithoutAPassword() {
    lay_out_debian
    fake sudo '[ "$1" != -n ] || shift
"$@"'
    lacks cmake
    play ./run test
    expect_end "Installing: cmake" "apt-get update
apt-get install -y --no-install-recommends cmake
$built" 0
}

LetsSudoAskAtATerminal() {
    lay_out_debian
    fake sudo '[ "$1" != -n ] && "$@"'
    fake tty
    lacks cmake
    play ./run test
    expect_end "Installing: cmake" "apt-get update
apt-get install -y --no-install-recommends cmake
$built" 0
}

TellsWhatRootHasToInstall() {
    lay_out_debian
    fake tty
    lacks xdotool qtbase5-dev
    play ./run test
    expect_end "$(apt_message "" "qtbase5-dev xdotool")" "" 1
}

TellsWhatSudoHasToInstallWithoutATerminal() {
    lay_out_debian
    fake sudo "echo 'sudo: a password is required' >&2; exit 1"
    lacks cmake
    play ./run demo
    expect_end "$(apt_message "sudo " cmake)" "" 1
}

AsksForNothingWhereAllIsInstalled() {
    lay_out_debian
    recorded sudo
    play ./run test
    expect_end "" "$built" 0
}

StopsWhereThePackagesCannotBeFetched() {
    lay_out_debian
    fake id "echo 0"
    recorded apt-get "exit 100"
    lacks cmake
    play ./run test
    expect_end "Installing: cmake" "apt-get update" 100
}

InstallsWhatTheAuditNeeds() {
    lay_out_debian
    fake id "echo 0"
    lacks llvm-14-dev lld-14
    play ./run test
    expect_end "Installing: llvm-14-dev lld-14" "apt-get update
apt-get install -y --no-install-recommends llvm-14-dev lld-14
$built" 0
    play ./run test libcxx
    expect_end "" "${built//release/libcxx}" 0
}

LeavesTheAuditOutWithoutItsPackages() {
    lay_out_debian
    lacks llvm-14-dev
    play ./run test
    expect_end "$(apt_message "" llvm-14-dev)
Without them ktqt-audit is left out." "$built" 0
}

InstallsQt6InPlaceOfQt5() {
    lay_out_debian
    fake id "echo 0"
    lacks qtbase5-dev qt6-base-dev
    play ./run test qt6
    expect_end "Installing: qt6-base-dev" "apt-get update
apt-get install -y --no-install-recommends qt6-base-dev
${built//release/qt6}" 0
}

AuditsFromTheCallersFolder() {
    lay_out_debian
    mkdir -p "$work/project/build/release/audit" "$work/project/app"
    fake ktqt-audit 'echo "${PWD##*/}: $*"; exit 3'
    mv "$work/bin/ktqt-audit" "$work/project/build/release/audit"
    play bash -c "cd app && ../run audit app.exe --json"
    expect_end "app: app.exe --json" "cmake --preset release
cmake --build --preset release --parallel 2 --target ktqt-audit" 3
}

AuditsNothingWithoutAFile() {
    lay_out_debian
    play ./run audit
    expect "What was called" "$(cat "$work/calls")" ""
    expect "The exit status" "$status" 2
}

MakesThePicturesThatAreNamed() {
    lay_out_debian
    recorded pictures.sh
    mv "$work/bin/pictures.sh" "$work/project/tools"
    play ./run pictures gallery nameinfo
    expect_end "" "cmake --preset release
cmake --build --preset release --parallel 2 --target examples/all ktqt-audit picture-tool
pictures.sh build/release gallery nameinfo" 0
}

BuildsTheReferenceWithoutTheLibrary() {
    lay_out_debian
    fake id "echo 0"
    lacks doxygen
    mkdir -p "$work/project/docs/reference"
    recorded build.sh
    mv "$work/bin/build.sh" "$work/project/docs/reference"
    play ./run docs
    expect_end "Installing: doxygen
The reference is build/docs/html/index.html." "apt-get update
apt-get install -y --no-install-recommends doxygen
build.sh build/docs" 0
}

# The build folder holds no programs, which is where this run ends.
InstallsTheOtherArchitecture() {
    lay_out_debian
    fake id "echo 0"
    recorded dpkg
    lacks libgtest-dev:arm64
    play ./run test arm64
    expect "What was called" "$(head -n 3 "$work/calls")" "dpkg --add-architecture arm64
apt-get update
apt-get install -y --no-install-recommends libgtest-dev:arm64"
}

NamesTheOtherArchitecture() {
    lay_out_debian
    lacks libgtest-dev:arm64
    play ./run test arm64
    expect_end "Packages are missing, and only root can install them. As root, run:
    dpkg --add-architecture arm64 && apt-get update && \
apt-get install --no-install-recommends libgtest-dev:arm64" "" 1
}

# Other distributions

lay_out_distribution() {
    lay_out_machine
    recorded "$1"
    fake rpm '! grep -qxF "$3" "$lacking"'
    fake sudo "exit 1"
}

message() {
    echo "Packages are missing, and only root can install them. As root, run:
    $1"
}

NamesFedorasPackages() {
    lay_out_distribution dnf
    lacks gcc-c++ gmock-devel qt5-qtbase-devel
    play ./run test
    expect_end "$(message "sudo dnf install gcc-c++ qt5-qtbase-devel gmock-devel")" "$built" 0
    lacks qt5-qtbase-devel qt6-qtbase-devel
    play ./run test qt6
    expect_end "$(message "sudo dnf install qt6-qtbase-devel")" "${built//release/qt6}" 0
}

NamesOpenSusesPackages() {
    lay_out_distribution zypper
    recorded dnf
    lacks gmock libqt5-qtbase-devel
    play ./run test
    expect_end "$(message "sudo zypper install libqt5-qtbase-devel gmock")" "$built" 0
    lacks libqt5-qtbase-devel qt6-base-devel
    play ./run test qt6
    expect_end "$(message "sudo zypper install qt6-base-devel")" "${built//release/qt6}" 0
}

NamesArchsPackages() {
    lay_out_distribution pacman
    fake pacman '[ "$1" = -T ] && ! grep -qxF "$2" "$lacking"'
    lacks gtest qt5-base
    play ./run test
    expect_end "$(message "sudo pacman -S --needed qt5-base gtest")" "$built" 0
    lacks qt5-base qt6-base
    play ./run test qt6
    expect_end "$(message "sudo pacman -S --needed qt6-base")" "${built//release/qt6}" 0
}

LeavesOutSudoWhereThereIsNone() {
    lay_out_distribution dnf
    without sudo
    lacks openbox
    play ./run test
    expect_end "$(message "dnf install openbox")" "$built" 0
}

SaysNothingWhereTheDistributionHasAll() {
    lay_out_distribution dnf
    play ./run test
    expect_end "" "$built" 0
}

StopsWithoutWhatEveryBuildNeeds() {
    local name
    lay_out_distribution dnf
    lacks cmake
    for name in c++ cmake ninja pkg-config; do
        mv "$work/bin/$name" "$work/kept"
        play ./run test
        expect_end "$(message "sudo dnf install cmake")
Nothing can be built here without $name." "" 1
        mv "$work/kept" "$work/bin/$name"
    done
}

KnowsTheOtherNamesOfWhatABuildNeeds() {
    local name
    lay_out_distribution dnf
    lacks openbox
    for name in c++:g++ c++:clang++ ninja:ninja-build pkg-config:pkgconf; do
        mv "$work/bin/${name%:*}" "$work/bin/${name#*:}"
        play ./run test
        expect_end "$(message "sudo dnf install openbox")" "$built" 0
        mv "$work/bin/${name#*:}" "$work/bin/${name%:*}"
    done
}

expect_names_of_debian() {
    expect "What was called" "$(cat "$work/calls")" "$2"
    expect "The exit status" "$status" 0
    expect "The output" "$(sed 's/^    .*/the names/' "$work/output")" \
        "Needed here, with the names that Debian has for it:
the names"
    grep -qE "^    $1\$" "$work/output"
}

NamesDebiansPackagesToUnknownSystems() {
    lay_out_machine
    play KTQTBASE_QT_MAJOR=6 ./run test
    expect_names_of_debian "build-essential cmake .* qt6-base-dev libgtest-dev .*" "$built"
}

NamesDebiansPackagesForTheBenchmarks() {
    lay_out_distribution dnf
    printf '#!/bin/sh\n' >"$work/project/tools/bench.py"
    chmod +x "$work/project/tools/bench.py"
    play ./run bench
    expect_names_of_debian "libbenchmark-dev .* python3" "cmake --preset bench
cmake --build --preset bench --parallel 2"
}

NamesDebiansPackagesForTheFuzzers() {
    lay_out_distribution dnf
    printf '#!/bin/sh\necho "$@"\n' >"$work/project/tools/fuzz.sh"
    chmod +x "$work/project/tools/fuzz.sh"
    play ./run fuzz 5 path_fuzz
    expect "The last line" "$(tail -n 1 "$work/output")" "5 path_fuzz"
    sed -i '$d' "$work/output"
    expect_names_of_debian "clang .* llvm" "cmake --preset fuzz
cmake --build --preset fuzz --parallel 2"
}

# macOS

lay_out_macos() {
    lay_out_machine
    fake uname "echo Darwin"
    fake brew 'case "$1" in
    list) ! grep -qxF "$3" "$lacking" ;;
    --prefix) echo "/brew/$2" ;;
    *) echo "brew $*" >>"$calls" ;;
esac'
    recorded cmake 'echo "$CMAKE_PREFIX_PATH $PKG_CONFIG_PATH" >>"$calls"; exit 1'
}

InstallsByHomebrewAndFindsItsQt() {
    lay_out_macos
    lacks ninja qt@5 qt
    play ./run test
    expect_end "Installing: ninja qt@5" "brew install ninja qt@5
cmake --preset release
/brew/llvm:/brew/qt@5 /brew/llvm/lib/pkgconfig:/brew/qt@5/lib/pkgconfig" 1
}

FindsHomebrewsQt6() {
    lay_out_macos
    lacks qt@5 qt
    play CMAKE_PREFIX_PATH=/mine PKG_CONFIG_PATH=/mine/pc ./run test qt6
    expect_end "Installing: qt" "brew install qt
cmake --preset qt6
/brew/qt:/mine /brew/qt/lib/pkgconfig:/mine/pc" 1
}

GoesOnWithoutHomebrew() {
    lay_out_macos
    without brew
    recorded cmake
    play ./run test
    expect_names_of_debian "build-essential cmake .* qtbase5-dev libgtest-dev .*" "$built"
}

# The display

# A fake program of the demo that leaves a file: PROGRAM FILE COMMANDS
fake_example() {
    local folder=$work/project/build/examples/examples/$1
    mkdir -p "$folder"
    recorded "$1" "cat ../../picture >$2
${3:-}"
    mv "$work/bin/$1" "$folder/$1"
}

# The first bytes of a PNG of 640 by 480 pixels are all that is read of the pictures.
lay_out_demo() {
    local nameinfo=$work/project/build/examples/examples/nameinfo
    lay_out_debian
    fake timeout 'shift
"$@"'
    fake cmake
    mkdir -p "$nameinfo"
    printf '\211PNG\r\n\032\n\0\0\0\rIHDR\0\0\002\200\0\0\001\340' >"$work/project/picture"
    cp "$work/bin/cmake" "$nameinfo/nameinfo"
    fake_example gallery gallery.png
    fake_example sketchpad session.png \
        'echo "platform: ${QT_QPA_PLATFORM:-from Qt}, key: $XAUTHORITY" >>"$calls"'
}

# What a session on the platform calls; the key is in the home of the user, not of the program.
session() {
    echo "gallery --png gallery.png
sketchpad --script ../../examples/sketchpad/session.script
platform: $1, key: ${2:-$work/home/.Xauthority}"
}

expect_session() {
    expect "What was called" "$(cat "$work/calls")" "$(session "$@")"
    expect "The exit status" "$status" 0
}

PlaysTheSessionOffscreenOnADeadDisplay() {
    lay_out_demo
    play DISPLAY=:987654.0 ./run demo
    expect_session offscreen
    fake xdotool "exit 1"
    play DISPLAY=:987654 ./run demo
    expect_session offscreen
    fake xdotool
    fake xdpyinfo "exit 1"
    play DISPLAY=:987654 ./run demo
    expect_session offscreen
}

PlaysTheSessionOffscreenWithoutADisplay() {
    lay_out_demo
    fake xdotool
    play ./run demo
    expect_session offscreen
}

PlaysTheSessionOnADisplayThatAnswers() {
    lay_out_demo
    fake xdotool
    play DISPLAY=:987654 ./run demo
    expect_session "from Qt"
    fake xdpyinfo
    play DISPLAY=:987654 XAUTHORITY=/a/key ./run demo
    expect_session "from Qt" /a/key
}

OpensNoWindowOnADeadDisplay() {
    lay_out_demo
    fake xdotool "exit 1"
    play DISPLAY=:987654 ./run demo --window
    expect_end "No display answers here; ./run demo plays a session without one." "" 1
}

OpensAWindowOnADisplayThatAnswers() {
    lay_out_demo
    fake xdotool
    play DISPLAY=:987654 ./run demo --window
    expect_end "" "sketchpad
platform: from Qt, key: $work/home/.Xauthority" 0
}

SetsNothingUpThatOnlyTestsNeed() {
    lay_out_demo
    recorded cmake
    lacks libgtest-dev libgmock-dev poppler-utils python3 gdb xvfb xauth openbox xdotool
    play ./run demo
    expect "What was called first" "$(head -n 2 "$work/calls")" "cmake --preset release\
 -B build/examples -DKTQTBASE_BUILD_TESTS=OFF -DKTQTBASE_BUILD_TOOLS=OFF
cmake --build build/examples --parallel 2 --target examples/all"
    expect "The exit status" "$status" 0
}

ShowsPicturesByPathAndSize() {
    lay_out_demo
    play ./run demo
    grep -qxF "    build/demo/gallery.png, 640 by 480 pixels" "$work/output"
    grep -qxF "    build/demo/session.png, 640 by 480 pixels" "$work/output"
}

FailsWhereTheSessionFails() {
    lay_out_demo
    fake_example sketchpad session.png "exit 3"
    play ./run demo
    expect "The exit status" "$status" 3
}

# The examples themselves, as the build folder has them; all else is fake. A link to a program stands
# for it where its modules are, too.
lay_out_real_demo() {
    lay_out_demo
    rm -r "$work/project/build"
    mkdir -p "$work/project/build/examples" "$work/home" "$work/tmp"
    touch "$work/calls" "$work/output"
    ln -s "$1/examples" "$work/project/build/examples/examples"
    cp -r "$project/examples" "$work/project"
    rm "$work/project/picture"
}

FitsOnAScreen() {
    lay_out_real_demo "$1"
    play ./run demo
    expect "The exit status" "$status" 0
    expect "The longest line is too long, which" \
        "$(LC_ALL=C.UTF-8 awk 'length > 99' "$work/output")" ""
    expect "Less than 60 lines" "$(($(wc -l <"$work/output") < 60))" 1
    grep -qE "^    build/demo/gallery.png, [0-9]{4} by [0-9]{4} pixels$" "$work/output"
    grep -qE "^    build/demo/session.png, [0-9]{3} by [0-9]{3} pixels$" "$work/output"
}

LeavesNothingOutsideTheBuildFolder() {
    lay_out_real_demo "$1"
    (cd "$work" && find . | sort) >"$work.before"
    play TMPDIR="$work/tmp" ./run demo
    (cd "$work" && find . -path ./project/build/demo -prune -o -print | sort) >"$work.after"
    expect "What is there" "$(cat "$work.after")" "$(cat "$work.before")"
    [ -s "$work/project/build/demo/session.png" ]
    rm "$work.before" "$work.after"
}

# Installing

expect_installed() {
    expect_end "" "cmake --preset release -B build/install -DKTQTBASE_BUILD_TESTS=OFF\
 -DKTQTBASE_BUILD_EXAMPLES=OFF
cmake --build build/install --parallel 2
cmake -DBUILD=$work/project/build/install -DPREFIX=$1 -P tools/install.cmake" 0
}

InstallsTheLibraryWithoutTests() {
    lay_out_debian
    play ./run install --prefix /opt/ktqtbase
    expect_installed /opt/ktqtbase
}

InstallsBelowTheCallersFolder() {
    lay_out_debian
    mkdir "$work/elsewhere"
    play bash -c 'cd ../elsewhere && ../project/run install --prefix out'
    expect_installed "$work/elsewhere/out"
}

InstallsNothingWithoutAPrefix() {
    lay_out_debian
    play ./run install
    expect "What was called" "$(cat "$work/calls")" ""
    expect "The exit status" "$status" 2
}

UninstallsFromTheCallersFolder() {
    lay_out_debian
    mkdir "$work/elsewhere"
    play bash -c 'cd ../elsewhere && ../project/run uninstall --prefix out'
    expect_end "" "cmake -DPREFIX=$work/elsewhere/out -P tools/uninstall.cmake" 0
}

# Packing

MakesTheArchiveWithItsPackages() {
    lay_out_debian
    fake id "echo 0"
    recorded dist.sh
    mv "$work/bin/dist.sh" "$work/project/tools"
    lacks xz-utils
    play ./run dist
    expect_end "Installing: xz-utils" "apt-get update
apt-get install -y --no-install-recommends xz-utils
dist.sh build/dist" 0
}

MakesPackagesOfAKnownKind() {
    lay_out_debian
    mkdir "$work/project/packaging"
    recorded rpm.sh
    mv "$work/bin/rpm.sh" "$work/project/packaging"
    play ./run package rpm
    expect_end "" "rpm.sh" 0
    play ./run package exe
    expect "What was called" "$(cat "$work/calls")" ""
    expect "The exit status" "$status" 2
}

"$@"
