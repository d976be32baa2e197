# SPDX-License-Identifier: MIT
# What `cmake --install` installs: the libraries, their headers, what CMake, pkg-config and qmake find
# them by, the catalogue and what debuggers load. No installed file holds the prefix, so a host may
# move them. The components are runtime, development, documentation and tools; Packages.cmake makes
# one package of each.

include(CMakePackageConfigHelpers)

set(KTQTBASE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KtQtBase)
set(KTQTBASE_PC_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The two libraries are in the same folder, and the loader looks for the second one there.
if(APPLE)
    set_target_properties(KtQtBase PROPERTIES INSTALL_RPATH "@loader_path")
else()
    set_target_properties(KtQtBase PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

install(TARGETS KtQtBase KtQtBaseStrict EXPORT KtQtBaseTargets
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY include/KtQtBase ${KTQTBASE_GENERATED_INCLUDE}/KtQtBase
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(DIRECTORY catalogue DESTINATION ${CMAKE_INSTALL_DATADIR}/KtQtBase COMPONENT tools)
install(EXPORT KtQtBaseTargets NAMESPACE KtQtBase:: DESTINATION ${KTQTBASE_CMAKE_DIR}
    COMPONENT development)
include(cmake/InstallDebugger.cmake)

# A host's own OS-base library is not installed; the package only names its place.
if(KTQTBASE_HOST_OSBASE)
    # A blank would end the name.
    string(REPLACE " " "\\ " KTQTBASE_PC_OSBASE_LIBS "${KTQTBASE_HOST_OSBASE}")
    string(REPLACE " " "\\ " KTQTBASE_PC_OSBASE_CFLAGS "-I${KTQTBASE_HOST_OSBASE_INCLUDE}")
else()
    set(KTQTBASE_PC_OSBASE_LIBS "-lKtOsBase")
    install(TARGETS KtOsBase EXPORT KtOsBaseTargets
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development)
    install(DIRECTORY osbase/include/KtOsBase DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        COMPONENT development)
    install(EXPORT KtOsBaseTargets NAMESPACE KtOsBase:: DESTINATION ${KTQTBASE_CMAKE_DIR}
        COMPONENT development)
endif()

# The build folder is a package, too.
export(EXPORT KtQtBaseTargets NAMESPACE KtQtBase:: FILE ${PROJECT_BINARY_DIR}/KtQtBaseTargets.cmake)
if(NOT KTQTBASE_HOST_OSBASE)
    export(EXPORT KtOsBaseTargets NAMESPACE KtOsBase::
        FILE ${PROJECT_BINARY_DIR}/KtOsBaseTargets.cmake)
endif()

configure_package_config_file(cmake/KtQtBaseConfig.cmake.in
    ${PROJECT_BINARY_DIR}/KtQtBaseConfig.cmake
    INSTALL_DESTINATION ${KTQTBASE_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KtQtBaseConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/KtQtBaseConfig.cmake
    ${PROJECT_BINARY_DIR}/KtQtBaseConfigVersion.cmake
    DESTINATION ${KTQTBASE_CMAKE_DIR} COMPONENT development)

# The library folder may be one or two levels deep, so relative paths are computed. Some versions of
# pkg-config put a prefix of their own in place of the module's one, and count one level for it; so
# the other folders are relative to the module itself.
set(KTQTBASE_FULL_PC_DIR ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH KTQTBASE_PC_PREFIX ${KTQTBASE_FULL_PC_DIR} ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH KTQTBASE_PC_INCLUDEDIR
    ${KTQTBASE_FULL_PC_DIR} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
configure_file(cmake/KtQtBase.pc.in ${PROJECT_BINARY_DIR}/KtQtBase.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/KtQtBase.pc DESTINATION ${KTQTBASE_PC_DIR}
    COMPONENT development)

# What a project of qmake includes; it is as deep as the pkg-config module.
configure_file(cmake/KtQtBase.pri.in ${PROJECT_BINARY_DIR}/KtQtBase.pri @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/KtQtBase.pri DESTINATION ${CMAKE_INSTALL_LIBDIR}/KtQtBase
    COMPONENT development)

# Packages of a distribution have their own places and forms for these.
option(KTQTBASE_INSTALL_NOTES "Install the licence, the readme and the changelog" ON)
if(KTQTBASE_INSTALL_NOTES)
    install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
    install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT documentation)
endif()
