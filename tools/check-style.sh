#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks house rules that no compiler checks. Prints every line or file that breaks one, then fails.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/files.sh
. tools/files.sh
failed=0

# Prints a rule and the lines of standard input, which break it.
report() {
    local offenders
    offenders=$(cat)
    if [ -n "$offenders" ]; then
        printf '%s:\n%s\n' "$1" "$offenders"
        failed=1
    fi
}

long_sources() {
    project_files include src osbase audit | xargs -0 awk 'FNR == 401 { print FILENAME }'
}

platform_conditionals() {
    project_files '*.h' '*.cpp' '*.mm' ':!src/platform' | xargs -0 \
        grep -nHE '^ *# *(if|ifdef|ifndef|elif)\b.*(__APPLE__|__linux__|_WIN32|Q_OS_)' || true
}

# The first line of a script is for the system, so the notice may be on the second one. The brackets
# keep the pattern from being taken for the notice of this file.
unlicensed() {
    project_files '*.h' '*.cpp' '*.mm' '*.cmake' '*CMakeLists.txt' '*.in' '*.sh' '*.py' \
        '*.mjs' '*.yml' '*.build' '*.pro' run .ci/run |
        xargs -0 awk 'FNR == 1 { seen = 0 } /SPDX-License-Identifier[:] MIT/ { seen = 1 }
            FNR == 2 && !seen { print FILENAME }'
}

# No source refers to a document that is not in the project. The brackets keep the pattern from
# matching itself.
outside_references() {
    local words='\bsp[e]c(ification)?\b|\b[i]nterface\.md\b|\bsha[r]ed/|\b[P]art [0-9]|\b[i]ssue #?[0-9]'
    project_files ':!*.svg' ':!*.json' ':!*.abi' | xargs -0 grep -nHIiE "$words" || true
}

untested_headers() {
    local header
    for header in $(project_files 'include/*.h' | tr '\0' '\n'); do
        grep -q "^ *${header#include/KtQtBase/}\\b" tests/headers/CMakeLists.txt || echo "$header"
    done
}

report "Over 400 lines" < <(long_sources)
report "Platform conditional outside src/platform/" < <(platform_conditionals)
report "No licence notice" < <(unlicensed)
report "Reference to an outside document" < <(outside_references)
report "Public header that tests/headers does not compile" < <(untested_headers)
exit "$failed"
