#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes packages of Fedora's kind by cpack, and an SBOM of them:
#
#     packaging/rpm.sh    leaves build/rpm/packages/*.rpm and ktqtbase.cdx.json
#
# They need what the machine that builds them has; for Fedora they are built on Fedora.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=packaging/begin.sh
. packaging/begin.sh
prepare_build
build=build/rpm

# Fedora's libraries can be executed, which its tools look for.
cmake --preset packages -B "$build" -DCMAKE_INSTALL_LIBDIR=lib64 \
    -DCMAKE_INSTALL_DOCDIR=share/doc/ktqtbase-doc -DCMAKE_INSTALL_SO_NO_EXE=0 \
    -DKTQTBASE_PACKAGER="$(maintainer)"
cmake --build "$build" --parallel "$(getconf _NPROCESSORS_ONLN)"
rm -rf "$build/packages"
(cd "$build" && cpack -G RPM)
rm -rf "$build/packages/_CPack_Packages"
packaging/sbom.py "$build/packages/ktqtbase.cdx.json" "$build"/packages/*.rpm
