#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the source package in /files by Debian's tools, and leaves the packages in /out. Changes the
# system that it runs on: it is for a clean root.
set -e
mkdir /build
cd /build
cp /files/* .
apt-get install -y --no-install-recommends build-essential dpkg-dev
apt-get build-dep -y --no-install-recommends ./*.dsc
useradd --no-create-home builder
dpkg-source --extract ./*.dsc sources
chown -R builder .
cd sources
runuser -u builder -- env HOME=/build dpkg-buildpackage -us -uc
cp /build/*.deb /build/*.changes /build/*.buildinfo /out
