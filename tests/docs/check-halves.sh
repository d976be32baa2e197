#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that the drawing program's own half and its modules name no type of Qt.
set -euo pipefail
cd "$(dirname "$0")/../../examples/sketchpad"
! grep -nwE 'Q[A-Z][A-Za-z]+|include <Q.*' app/* modules/*
