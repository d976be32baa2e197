#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the reference out of the headers, the catalogue and the pages beside this script, with
# nothing from the network; the packages are those of the group docs of tools/setup.sh.
#
#     docs/reference/build.sh FOLDER
#
# leaves FOLDER/html/index.html, FOLDER/man/ and FOLDER/KtQtBase.qch. A warning is an error.
set -euo pipefail
mkdir -p "$1"
out=$(cd "$1" && pwd)
cd "$(dirname "$0")/../.."
here=docs/reference
theme=${KTQTBASE_DOXYGEN_THEME:-/usr/share/doxygen-awesome-css}
rm -rf "$out"/{html,man,pages,pictures,KtQtBase.qch}

version() {
    sed -nE 's/^#define KTQTBASE_VERSION_[MP][A-Z]+ ([0-9]+)$/\1/p' include/KtQtBase/Version.h |
        paste -sd. -
}

# Doxygen's own, with the switch between light and dark.
# shellcheck disable=SC2016 # the name is Doxygen's, not the shell's
write_frame() {
    doxygen -w html "$out/pages/plain.html" "$out/pages/footer.html" "$out/pages/unused.css"
    sed '/^<\/head>/i\
<script src="$relpath^doxygen-awesome-darkmode-toggle.js"></script>\
<script>DoxygenAwesomeDarkModeToggle.init()</script>' "$out/pages/plain.html" >"$out/pages/header.html"
}

# Doxygen's own, with other tabs, and without a list of all members, which are all in one place.
write_layout() {
    doxygen -l "$out/pages/default.xml"
    sed -e "/<navindex>/,/<\/navindex>/{ /<navindex>/r $here/tabs.xml
        d; }" -e '/<allmemberslink/s/yes/no/' "$out/pages/default.xml" >"$out/pages/layout.xml"
}

settings() {
    cat "$here/Doxyfile"
    cat <<END
PROJECT_NUMBER = $(version)
OUTPUT_DIRECTORY = "$out"
INPUT = include/KtQtBase docs/first-window.md "$out/pages"
LAYOUT_FILE = "$out/pages/layout.xml"
IMAGE_PATH = "$out/pictures" docs
HTML_HEADER = "$out/pages/header.html"
HTML_EXTRA_STYLESHEET = "$theme/doxygen-awesome.css" $here/style.css
HTML_EXTRA_FILES = "$theme/doxygen-awesome-darkmode-toggle.js"
GENERATE_QHP = YES
END
}

# Where each Qt has its own tools, the name without a number may be a switch between them.
help_generator() {
    local name
    for name in qhelpgenerator-qt5 qhelpgenerator; do
        command -v "$name" && return
    done
    ls /usr/lib/qt5/bin/qhelpgenerator
}

# What it says of each step is shown only if it fails.
write_help() {
    local run=$out/pages/run
    mkdir -m 700 "$run"
    sed '/dir_[0-9a-f]*\.html/d' "$out/html/index.qhp" >"$out/html/help.qhp"
    if ! XDG_RUNTIME_DIR=$run QT_QPA_PLATFORM=offscreen "$(help_generator)" \
        "$out/html/help.qhp" -o "$out/KtQtBase.qch" >"$run/told.txt" 2>&1; then
        cat "$run/told.txt" >&2
        return 1
    fi
}

"$here/pages.py" "$out/pages"
"$here/pictures.py" docs/gallery.png "$out/pictures"
write_frame
write_layout
doxygen <(settings)
# Pages of folders, to which nothing leads.
rm -f "$out"/html/dir_*.html
"$here/man.py" "$out/man"
write_help
rm -rf "$out"/{pages,pictures} "$out"/html/*.qhp
"$here/check.py" "$out"
