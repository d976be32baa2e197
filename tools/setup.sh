# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# The packages that the scripts of this project need, and how each platform's package manager finds
# and installs them. Sourced, never run. Uses only what the bash 3.2 of macOS knows.

# dnf comes after zypper, since openSUSE has both.
package_manager() {
    local manager known="apt-get zypper dnf pacman"
    if [ "$(uname -s)" = Darwin ]; then
        known=brew
    fi
    for manager in $known; do
        if command -v "$manager" >/dev/null; then
            echo "${manager%-get}"
            return
        fi
    done
    echo none
}

# The packages of one group (build, test, tools, check, coverage, dist, docs, faults, packages,
# pictures, bench, fuzz, qt5, qt6, clang, libcxx or arm64) under a package manager's names.
named_packages() {
    case "$1:$2" in
        # The fonts are those of the examples' pictures.
        apt:build) echo build-essential cmake ninja-build pkg-config fonts-dejavu-core \
            fonts-dejavu-extra ;;
        brew:build) echo cmake ninja pkg-config ;;
        dnf:build) echo gcc-c++ cmake ninja-build pkgconf-pkg-config dejavu-sans-fonts ;;
        pacman:build) echo gcc cmake ninja pkgconf ttf-dejavu ;;
        zypper:build) echo gcc-c++ cmake ninja pkg-config dejavu-fonts ;;
        # poppler-utils reads printed pages, Python the headers, gdb a host's memory, Meson builds a
        # host, and locales has the sources of locales; the packages after them show the tests'
        # windows on an invisible display.
        apt:test) echo libgtest-dev libgmock-dev poppler-utils python3 gdb meson locales xvfb xauth \
            openbox xdotool ;;
        brew:test) echo googletest poppler python3 meson ;;
        dnf:test) echo gtest-devel gmock-devel poppler-utils python3 gdb meson glibc-locale-source \
            xorg-x11-server-Xvfb openbox xdotool ;;
        pacman:test) echo gtest poppler python gdb meson xorg-server-xvfb xorg-xauth openbox xdotool ;;
        zypper:test) echo gtest gmock poppler-tools python3 gdb meson glibc-i18ndata \
            xorg-x11-server-Xvfb xauth openbox xdotool ;;
        # ktqt-trace is made by Python. Everything behind LLVM and Clang makes the programs that the
        # tests of ktqt-audit read.
        apt:tools) echo python3 llvm-14-dev libclang-14-dev llvm-14 clang-14 lld-14 \
            g++-mingw-w64-x86-64 ;;
        brew:tools) echo python3 llvm ;;
        dnf:tools) echo python3 llvm-devel clang-devel ;;
        pacman:tools) echo python llvm clang ;;
        zypper:tools) echo python3 llvm-devel clang-devel ;;
        apt:qt5) echo qtbase5-dev ;;
        brew:qt5) echo qt@5 ;;
        dnf:qt5) echo qt5-qtbase-devel ;;
        pacman:qt5) echo qt5-base ;;
        zypper:qt5) echo libqt5-qtbase-devel ;;
        apt:qt6) echo qt6-base-dev ;;
        brew:qt6) echo qt ;;
        dnf:qt6) echo qt6-qtbase-devel ;;
        pacman:qt6) echo qt6-base ;;
        zypper:qt6) echo qt6-base-devel ;;
        apt:clang) echo clang libclang-rt-dev ;;
        # LLVM names the functions in what a sanitizer tells.
        apt:fuzz) echo clang libclang-rt-dev llvm ;;
        apt:libcxx) echo clang libc++-dev libc++abi-dev googletest ;;
        apt:arm64) echo qemu-user-static g++-aarch64-linux-gnu qtbase5-dev:arm64 \
            libgtest-dev:arm64 libgmock-dev:arm64 ;;
        # The formatter's version is fixed, since each version formats some lines differently; so is
        # that of clang-tidy, since each version finds something new.
        apt:check) echo git abigail-tools binutils clang clang-format-14 clang-tidy-14 cppcheck \
            libgnustep-gui-dev lldb-14 python3 python3-lldb-14 reuse shellcheck unixodbc-dev \
            valgrind ;;
        # What interrupts system calls.
        apt:faults) echo strace ;;
        apt:coverage) echo gcovr ;;
        brew:coverage) echo gcovr ;;
        apt:dist) echo git xz-utils ;;
        brew:dist | dnf:dist | pacman:dist | zypper:dist) echo git xz ;;
        # What makes and reads packages of Debian and of Fedora's kind, and a clean root to try them
        # in.
        apt:packages) echo debhelper dpkg-dev git lintian mmdebstrap python3 rpm rpmlint ruby \
            xz-utils ;;
        # The last one writes the help file of Qt's programs.
        apt:docs) echo doxygen doxygen-awesome-css python3 python3-pil qttools5-dev-tools ;;
        # The terminal and the browser of pictures in docs/.
        apt:pictures) echo xterm chromium ;;
        apt:bench) echo libbenchmark-dev libboost-filesystem-dev libglib2.0-dev libinih-dev \
            libsimpleini-dev python3 ;;
        brew:bench) echo google-benchmark boost glib inih simpleini python3 ;;
    esac
}

qt_group() {
    echo "qt${KTQTBASE_QT_MAJOR:-5}"
}

# The packages of groups; to build takes Qt, too.
packages() {
    local manager=$1 group
    shift
    for group in "$@"; do
        named_packages "$manager" "$group"
        if [ "$group" = build ]; then
            named_packages "$manager" "$(qt_group)"
        fi
    done
}

is_installed() {
    case "$1" in
        apt) dpkg-query -W -f '${Status}' "$2" 2>/dev/null | grep -q '^install ok installed' ;;
        brew) brew list --versions "$2" >/dev/null 2>&1 ;;
        dnf | zypper) rpm -q --whatprovides "$2" >/dev/null 2>&1 ;;
        pacman) pacman -T "$2" >/dev/null 2>&1 ;;
        none) false ;;
    esac
}

# sudo may ask for a password where there is a terminal to ask at.
can_become_root() {
    [ "$(id -u)" -eq 0 ] ||
        { command -v sudo >/dev/null && { sudo -n true 2>/dev/null || tty -s; }; }
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Debian installs packages of another architecture once it knows that they are wanted.
install_packages() {
    local manager=$1
    shift
    echo "Installing: $*"
    case "$manager:$*" in
        apt:*:arm64*) as_root dpkg --add-architecture arm64 ;;
    esac
    case "$manager" in
        apt)
            as_root apt-get update &&
                as_root env DEBIAN_FRONTEND=noninteractive \
                    apt-get install -y --no-install-recommends "$@"
            ;;
        brew) brew install "$@" ;;
    esac
}

# The command that installs packages, for the user to copy.
install_command() {
    local manager=$1 sudo='' architecture=''
    shift
    if [ "$(id -u)" -ne 0 ] && command -v sudo >/dev/null; then
        sudo="sudo "
    fi
    case "$*" in
        *:arm64*) architecture="${sudo}dpkg --add-architecture arm64 && " ;;
    esac
    case "$manager" in
        apt) echo "$architecture${sudo}apt-get update &&" \
            "${sudo}apt-get install --no-install-recommends $*" ;;
        dnf) echo "${sudo}dnf install $*" ;;
        pacman) echo "${sudo}pacman -S --needed $*" ;;
        zypper) echo "${sudo}zypper install $*" ;;
    esac
}

tell_what_is_missing() {
    if [ "$1" = none ]; then
        shift
        echo "Needed here, with the names that Debian has for it:"
        echo "    $*"
    else
        echo "Packages are missing, and only root can install them. As root, run:"
        echo "    $(install_command "$@")"
    fi >&2
}

has_one_of() {
    local name
    for name in "$@"; do
        if command -v "$name" >/dev/null; then
            return
        fi
    done
    echo "Nothing can be built here without $1." >&2
    return 1
}

# What no build can do without; CMake tells what else it misses.
has_essentials() {
    has_one_of "${CXX:-c++}" g++ clang++ && has_one_of cmake &&
        has_one_of ninja ninja-build && has_one_of pkg-config pkgconf
}

# Installs packages where that is known to work, and else says what the user has to install.
supply() {
    case "$1" in
        brew) install_packages "$@" ;;
        apt)
            if can_become_root; then
                install_packages "$@"
            else
                tell_what_is_missing "$@"
                return 1
            fi
            ;;
        *)
            tell_what_is_missing "$@"
            has_essentials
            ;;
    esac
}

# Homebrew installs Qt 5 and LLVM outside the folders that CMake and pkg-config search by default.
find_homebrew_package() {
    local prefix
    prefix=$(brew --prefix "$1")
    export CMAKE_PREFIX_PATH="$prefix${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
    export PKG_CONFIG_PATH="$prefix/lib/pkgconfig${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}"
}

# Sees to the packages of groups that are not installed yet. The build group has Qt 5, or Qt 6 where
# KTQTBASE_QT_MAJOR is 6.
setup() {
    local manager names package missing=()
    manager=$(package_manager)
    names=$(packages "$manager" "$@")
    if [ -z "$names" ]; then
        manager=none
        names=$(packages apt "$@")
    fi
    for package in $names; do
        is_installed "$manager" "$package" || missing+=("$package")
    done
    if [ "${#missing[@]}" -gt 0 ]; then
        supply "$manager" "${missing[@]}" || return
    fi
    case "$manager:$1" in
        brew:tools) find_homebrew_package llvm ;;
        brew:*) find_homebrew_package "$(named_packages brew "$(qt_group)")" ;;
    esac
}

# Sees to the packages of ktqt-audit, which a build can do without.
setup_tools() {
    if [ -n "$(packages "$(package_manager)" tools)" ]; then
        setup tools || echo "Without them ktqt-audit is left out." >&2
    fi
}
