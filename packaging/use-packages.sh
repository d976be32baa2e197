#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs the packages in /files, uses them, removes them, and looks whether something of them is
# left. Changes the system that it runs on: it is for a clean root.
set -e
names=$(for file in /files/*.deb; do dpkg-deb --field "$file" Package; done)

# Its own packages are not what is looked for.
listed() {
    find / -xdev \( -path /proc -o -path /sys -o -path /var -o -path /tmp -o -path /project \) -prune -o \
        \( -ipath '*ktqt*' -o -ipath '*KtOsBase*' \) ! -path '/files*' -print
}

apt-get install -y --no-install-recommends cmake g++ man-db ninja-build pkg-config
listed >/tmp/before
apt-get install -y --no-install-recommends /files/*.deb
for name in $names; do
    dpkg --verify "$name"
    test -s "/usr/share/doc/$name/copyright"
done
packaging/debian/tests/use
man -w ktqt-audit CreateFile
# shellcheck disable=SC2086 # one word a name
apt-get purge -y $names
listed | diff /tmp/before -
