#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the source package: Debian's tools build it in a clean root, lintian finds no error in it or
# in what was built, and those packages are installed, used and removed in another one. Needs root.
#
#     tools/check-source-package.sh
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh
# shellcheck source=tools/clean-root.sh
. tools/clean-root.sh

packaging/source.sh
lintian --allow-root --fail-on error build/source/*.dsc
in_clean_root packaging/build-source-package.sh build/source/*
lintian --allow-root --fail-on error build/out/*.deb
in_clean_root packaging/use-packages.sh build/out/*.deb
