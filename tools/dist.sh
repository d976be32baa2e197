#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the source archive of the last commit, which is the same bytes each time: git sorts the
# names, and gives every file the commit's time and no owner.
#
#     tools/dist.sh FOLDER
#
# leaves FOLDER/ktqtbase-VERSION.tar.xz and its SHA-256 beside it.
set -euo pipefail
mkdir -p "$1"
out=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh

# macOS has it by another name.
sha256() {
    if command -v sha256sum >/dev/null; then
        sha256sum "$@"
    else
        shasum -a 256 "$@"
    fi
}

if [ ! -e .git ]; then
    echo "A source archive is made of a commit, and this folder is no checkout of git." >&2
    exit 1
fi
if [ -n "$(git status --porcelain)" ]; then
    echo "The archive leaves out what is not committed." >&2
fi

name=ktqtbase-$(git show HEAD:include/KtQtBase/Version.h | version_of)
# What somebody set for git in general would change the bytes.
git -c core.autocrlf=false -c core.attributesFile=/dev/null -c tar.umask=0022 \
    archive --format=tar --prefix="$name/" HEAD | xz -9 --threads=1 >"$out/$name.tar.xz"
(cd "$out" && sha256 "$name.tar.xz" >"$name.tar.xz.sha256")
echo "$out/$name.tar.xz"
