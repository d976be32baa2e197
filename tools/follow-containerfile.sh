#!/bin/bash
# SPDX-License-Identifier: MIT
# Runs the commands of /files/Containerfile, and the command of its container, in the folder of the
# project. Changes the system that it runs on: it is for a clean root.
set -euo pipefail
mapfile -t commands < <(sed -n 's/^RUN //p' /files/Containerfile)
for command in "${commands[@]}"; do
    bash -euc "$command"
done
read -r -a last < <(sed -n 's/^CMD \[\(.*\)\]$/\1/p' /files/Containerfile | tr -d '",')
"${last[@]}"
