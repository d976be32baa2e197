#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Does what the Containerfile says in a clean root of this system: its commands, then the one that a
# container of it runs. Must be root.
#
#     tools/check-container.sh
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/setup.sh
. tools/setup.sh
# shellcheck source=tools/files.sh
. tools/files.sh
# shellcheck source=tools/clean-root.sh
. tools/clean-root.sh
setup packages
in_clean_root tools/follow-containerfile.sh Containerfile
