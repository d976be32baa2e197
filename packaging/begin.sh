# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# What the scripts that make packages begin with: what they need, and the time of what they make.
# Sourced, never run, from the folder that holds the project.

# shellcheck source=tools/setup.sh
. tools/setup.sh
# shellcheck source=tools/files.sh
. tools/files.sh
setup packages
SOURCE_DATE_EPOCH=$(project_time)
export SOURCE_DATE_EPOCH

# Installs what a build of all components needs.
prepare_build() {
    setup build docs
    setup tools
}
