# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# The packages that the scripts of this project need, and how each platform's package manager finds
# and installs them. Sourced, never run. Uses only what the bash 3.2 of macOS knows.

package_manager() {
    if [ "$(uname -s)" = Darwin ]; then
        echo brew
    elif command -v apt-get >/dev/null; then
        echo apt
    else
        echo none
    fi
}

# The packages of one group (build, check or bench) under the names of this platform.
packages() {
    case "$(package_manager):$1" in
        # poppler-utils reads printed pages; the packages after it show the tests' windows on an
        # invisible display.
        apt:build) echo build-essential cmake ninja-build pkg-config qtbase5-dev libgtest-dev \
            libgmock-dev poppler-utils xvfb xauth openbox xdotool fonts-dejavu-core ;;
        # The formatter's version is fixed, since each version formats some lines differently; so is
        # that of clang-tidy, since each version finds something new.
        apt:check) echo git clang clang-format-14 clang-tidy-14 libgnustep-gui-dev python3 reuse \
            unixodbc-dev ;;
        brew:build) echo cmake ninja pkg-config qt@5 googletest poppler ;;
        apt:bench) echo libbenchmark-dev libboost-filesystem-dev libglib2.0-dev libinih-dev \
            libsimpleini-dev python3 ;;
        brew:bench) echo google-benchmark boost glib inih simpleini python3 ;;
    esac
}

is_installed() {
    case "$(package_manager)" in
        apt) dpkg-query -W -f '${Status}' "$1" 2>/dev/null | grep -q '^install ok installed' ;;
        brew) brew list --versions "$1" >/dev/null 2>&1 ;;
    esac
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

install_packages() {
    case "$(package_manager)" in
        apt)
            as_root apt-get update
            as_root env DEBIAN_FRONTEND=noninteractive \
                apt-get install -y --no-install-recommends "$@"
            ;;
        brew) brew install "$@" ;;
    esac
}

# Homebrew installs Qt 5 outside the folders that CMake and pkg-config search by default.
find_homebrew_qt() {
    local qt
    qt=$(brew --prefix qt@5)
    export CMAKE_PREFIX_PATH="$qt${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
    export PKG_CONFIG_PATH="$qt/lib/pkgconfig${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}"
}

# Installs the packages of one group that are not installed yet.
setup() {
    local package missing=()
    if [ "$(package_manager)" = none ]; then
        echo "No apt-get here: a compiler, CMake, Ninja, Qt 5.15 and GoogleTest must be there." >&2
        return
    fi
    for package in $(packages "$1"); do
        is_installed "$package" || missing+=("$package")
    done
    if [ "${#missing[@]}" -gt 0 ]; then
        echo "Installing: ${missing[*]}"
        install_packages "${missing[@]}"
    fi
    if [ "$(package_manager)" = brew ]; then
        find_homebrew_qt
    fi
}
