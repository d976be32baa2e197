#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Prints the changelog that Debian's tools read the version from: one entry, of this version, by
# whoever packages it, at the time of the last change of the sources.
#
#     packaging/changelog.sh
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh
cat <<END
ktqtbase ($(project_version)-1) unstable; urgency=medium

  * Version $(project_version). CHANGELOG.md tells what is new.

 -- $(maintainer)  $(LC_ALL=C date -u -R -d "@$(project_time)")
END
