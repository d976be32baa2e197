#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks packaging/sbom.py with two packages of a file each, by fake commands of dpkg.
#
#     tests/packages/check-sbom.sh CASE    CASE is one of the functions with a capital
# shellcheck disable=SC2016 # the fake commands expand it
set -euo pipefail
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
export SOURCE_DATE_EPOCH=1700000000

# A package's fields stand in the package itself, one a line.
lay_out_packages() {
    mkdir -p "$work/bin" "$1"
    printf '#!/bin/sh\nsed -n "s/^$3: //p" "$2"\n' >"$work/bin/dpkg-deb"
    printf '#!/bin/sh\n[ "$4" != libnone ] && printf %%s "1.0~$4"\n' >"$work/bin/dpkg-query"
    chmod +x "$work"/bin/*
    printf '%s\n' "Package: libown1" "Version: 1.2-1" "Architecture: amd64" \
        "Depends: libknown (>= 3), libnone | libother" >"$1/libown1.deb"
    printf '%s\n' "Package: own-dev" "Version: 1.2-1" "Architecture: all" \
        "Depends: libown1 (= 1.2-1)" >"$1/own-dev.deb"
}

write_bill() {
    PATH="$work/bin:$PATH" "$project/packaging/sbom.py" "$@"
}

# Prints what a Python expression makes of the bill.
ask() {
    python3 -c 'import json, sys; bill = json.load(open(sys.argv[1])); print(eval(sys.argv[2]))' \
        "$work/bill.json" "$1"
}

expect() {
    if [ "$(ask "$1")" != "$2" ]; then
        echo "$1 is $(ask "$1") and should be $2" >&2
        exit 1
    fi
}

HaveTheSameBytesEachTime() {
    lay_out_packages "$work/one"
    lay_out_packages "$work/two"
    touch -d @1 "$work/two"/*
    write_bill "$work/bill.json" "$work"/one/{libown1,own-dev}.deb
    TZ=Asia/Tokyo write_bill "$work/other.json" "$work"/two/{own-dev,libown1}.deb
    cmp "$work/bill.json" "$work/other.json"
    echo >>"$work/two/own-dev.deb"
    write_bill "$work/other.json" "$work"/two/*.deb
    (! cmp -s "$work/bill.json" "$work/other.json")
}

TellWhatEachPackageNeeds() {
    local digest
    lay_out_packages "$work/packages"
    digest=$(sha256sum "$work/packages/libown1.deb" | cut -d' ' -f1)
    write_bill "$work/bill.json" "$work"/packages/*.deb
    expect 'bill["bomFormat"], bill["specVersion"]' "('CycloneDX', '1.5')"
    expect '[(one["name"], one.get("version")) for one in bill["components"]]' \
        "[('libown1', '1.2-1'), ('own-dev', '1.2-1'), ('libknown', '1.0~libknown'), ('libnone', None)]"
    expect 'bill["components"][0]["hashes"][0]["content"]' "$digest"
    expect '[one["dependsOn"] for one in bill["dependencies"]]' \
        "[['package:libown1', 'package:own-dev'], ['needed:libknown', 'needed:libnone'], ['package:libown1']]"
}

NameTheirTime() {
    lay_out_packages "$work/packages"
    write_bill "$work/bill.json" "$work"/packages/*.deb
    expect 'bill["metadata"]["timestamp"]' 2023-11-14T22:13:20Z
    expect 'bill["serialNumber"][:9]' urn:uuid:
}

"$1"
