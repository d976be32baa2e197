# SPDX-License-Identifier: MIT
# The reference, its manual pages and its help file for Qt's programs, built with the library and
# installed as a component of its own. docs/reference/build.sh says what it needs.

set(KTQTBASE_DOCS ${PROJECT_BINARY_DIR}/documentation)
file(GLOB_RECURSE KTQTBASE_DOCS_SOURCES CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/catalogue/*.json
    ${PROJECT_SOURCE_DIR}/docs/*
    ${PROJECT_SOURCE_DIR}/include/KtQtBase/*.h
    ${PROJECT_SOURCE_DIR}/tests/docs/*.cpp)
add_custom_command(
    OUTPUT ${KTQTBASE_DOCS}/KtQtBase.qch
    COMMAND ${PROJECT_SOURCE_DIR}/docs/reference/build.sh ${KTQTBASE_DOCS}
    DEPENDS ${KTQTBASE_DOCS_SOURCES}
    COMMENT "Building the reference"
    VERBATIM)
add_custom_target(ktqtbase-documentation ALL DEPENDS ${KTQTBASE_DOCS}/KtQtBase.qch)

install(DIRECTORY ${KTQTBASE_DOCS}/html DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT documentation)
install(FILES ${KTQTBASE_DOCS}/KtQtBase.qch DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT documentation)
# The pages of installed programs are installed with these, and examples are not installed.
install(DIRECTORY ${KTQTBASE_DOCS}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR}
    COMPONENT documentation PATTERN man1 EXCLUDE)
