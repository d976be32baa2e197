#!/bin/sh
# SPDX-License-Identifier: MIT
/sbin/ldconfig
