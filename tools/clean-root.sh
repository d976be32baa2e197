# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# A clean root of this system, to try packages in. Sourced, never run, from the folder that holds the
# project.

# What this system's package manager is set to, without other people's sources of packages.
system_sources() {
    local file
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/{debian,ubuntu}.sources; do
        if [ -s "$file" ]; then
            echo "$file"
        fi
    done
}

# Runs a script of the project in a new minimal root, which is gone afterwards. The script finds the
# sources of the project in /project, and the files that are named after it in /files; what it leaves
# in /out is then in build/out/.
in_clean_root() (
    local script=$1 place suite sources enter
    shift
    place=$(mktemp -d)
    trap 'rm -rf "$place"' EXIT
    suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mapfile -t sources < <(system_sources)
    mkdir "$place/project" "$place/files" "$place/out"
    project_files "*" | xargs -0 cp --parents -t "$place/project"
    cp "$@" "$place/files"
    # How it reaches its sources, and whether those of a fixed day are too old.
    apt-config dump Acquire | grep -E '^Acquire::(Check-|https?::Proxy)' >"$place/apt.conf" || true
    # Settings of the caller, such as a compiler's, are not for it.
    enter="env -i -C /project PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8"
    mmdebstrap --variant=apt --format=null --aptopt="$place/apt.conf" \
        --customize-hook="cp -r '$place/project' '$place/files' '$place/out' \"\$1\"" \
        --customize-hook="chroot \"\$1\" $enter DEBIAN_FRONTEND=noninteractive '$script'" \
        --customize-hook="cp -rT \"\$1\"/out '$place/out'" \
        "$suite" /dev/null "${sources[@]}"
    rm -rf build/out
    mkdir -p build
    mv "$place/out" build
)
