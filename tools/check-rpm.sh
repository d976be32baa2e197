#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the .rpm packages of packaging/rpm.sh: rpmlint finds no error that is not explained in
# packaging/rpmlint.toml, making them again gives the same bytes, and rpm installs them into an empty
# folder, verifies them and removes them from there. Only Fedora has the packages that they need, so
# these are not asked for.
#
#     tools/check-rpm.sh
set -euo pipefail
cd "$(dirname "$0")/.."
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
built=build/rpm/packages

# The system's own list of packages stays as it is.
rpm_elsewhere() {
    rpm --root "$scratch/root" --dbpath /var/lib/rpm "$@"
}

packaging/rpm.sh
cp -r "$built" "$scratch/first"
packaging/rpm.sh
diff -r "$scratch/first" "$built"
rpmlint --config packaging/rpmlint.toml "$built"/*.rpm
mkdir "$scratch/root"
rpm_elsewhere --install --nodeps --noscripts "$built"/*.rpm
cmp "$scratch/root/usr/share/licenses/libktqtbase1/LICENSE" LICENSE
[ -x "$scratch/root/usr/bin/ktqt-trace" ]
mapfile -t names < <(rpm_elsewhere --query --all --queryformat '%{NAME}\n')
[ "${#names[@]}" -eq 4 ]
rpm_elsewhere --verify --nodeps "${names[@]}"
rpm_elsewhere --erase --nodeps --noscripts "${names[@]}"
find "$scratch/root/usr" -type f | (! grep .)
