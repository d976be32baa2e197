#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Writes the port of vcpkg, which names the version of the sources:
#
#     packaging/vcpkg.sh FOLDER    then vcpkg install ktqtbase --overlay-ports=FOLDER
set -euo pipefail
mkdir -p "$1"
out=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh
sed "s/@VERSION@/$(project_version)/" packaging/vcpkg/vcpkg.json.in >"$out/vcpkg.json"
cp packaging/vcpkg/portfile.cmake "$out"
