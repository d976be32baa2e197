#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the tests of paths, texts, volumes, profiles, registry keys and modules under valgrind, which
# sees uninitialised memory being read; the sanitizers do not.
#     tools/check-valgrind.sh BUILD
set -euo pipefail
cd "$(dirname "$0")/.."
tests=$1/tests
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT

for program in string/widestring-test string/textconversion-test pathname/pathname-tests \
    pathname/path-edit-test volume/volumedescriptor-test system/system-tests \
    system/profile/ProfileTest system/registry/RegistryKeyTest; do
    echo "$program"
    HOME=$home XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=offscreen \
        LC_ALL=C.UTF-8 valgrind --quiet --error-exitcode=9 --leak-check=no \
        --suppressions=tests/support/valgrind.supp "$tests/$program" --gtest_brief=1
done
