# SPDX-License-Identifier: MIT
# Reads the version of the library where it is set, in a header that hosts can ask.

set(KTQTBASE_VERSION_HEADER ${CMAKE_CURRENT_LIST_DIR}/../include/KtQtBase/Version.h)
file(STRINGS ${KTQTBASE_VERSION_HEADER} KTQTBASE_VERSION
    REGEX "^#define KTQTBASE_VERSION_(MAJOR|MINOR|PATCH) ")
list(TRANSFORM KTQTBASE_VERSION REPLACE "^.* " "")
list(JOIN KTQTBASE_VERSION . KTQTBASE_VERSION)
