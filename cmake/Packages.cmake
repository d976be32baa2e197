# SPDX-License-Identifier: MIT
# What cpack makes of the components: .deb and .rpm. packaging/deb.sh and packaging/rpm.sh build for
# it and call it.

set(KTQTBASE_RUNTIME_PACKAGE libktqtbase${PROJECT_VERSION_MAJOR})
set(KTQTBASE_PACKAGER "The KtQtBase authors <ktqtbase@example.org>" CACHE STRING
    "Whom the packages name as their maintainer")
set(KTQTBASE_PACKAGE_RELEASE 1 CACHE STRING "The number of this packaging of the version")

set(CPACK_PACKAGE_NAME ktqtbase)
set(CPACK_PACKAGE_CONTACT "${KTQTBASE_PACKAGER}")
set(CPACK_PACKAGE_VENDOR "The KtQtBase authors")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL runtime development documentation tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# Sets the summary and the description of a component to those of a package in Debian's own list.
function(ktqtbase_describe component package)
    file(READ ${PROJECT_SOURCE_DIR}/packaging/debian/control text)
    string(REGEX REPLACE ".*\nPackage: ${package}\n" "" text "${text}")
    string(REGEX REPLACE "\n\n.*" "" text "${text}")
    string(REGEX REPLACE ".*\nDescription: " "" text "${text}")
    string(REGEX REPLACE "\n [.]?" "\n" text "${text}")
    string(FIND "${text}" "\n" end)
    string(SUBSTRING "${text}" 0 ${end} summary)
    math(EXPR end "${end} + 1")
    string(SUBSTRING "${text}" ${end} -1 long)
    set(CPACK_DEBIAN_${component}_DESCRIPTION "${text}" PARENT_SCOPE)
    set(CPACK_RPM_${component}_PACKAGE_SUMMARY "${summary}" PARENT_SCOPE)
    set(CPACK_RPM_${component}_PACKAGE_DESCRIPTION "${long}" PARENT_SCOPE)
endfunction()

ktqtbase_describe(RUNTIME ${KTQTBASE_RUNTIME_PACKAGE})
ktqtbase_describe(DEVELOPMENT libktqtbase-dev)
ktqtbase_describe(DOCUMENTATION libktqtbase-doc)
ktqtbase_describe(TOOLS ktqt-tools)

# ---- Debian --------------------------------------------------------------------------------------

set(KTQTBASE_DEBIAN_FOLDER ${PROJECT_BINARY_DIR}/debian)
set(KTQTBASE_DEBIAN_VERSION ${PROJECT_VERSION}-${KTQTBASE_PACKAGE_RELEASE})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${KTQTBASE_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_SOURCE ktqtbase)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/osbase)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${KTQTBASE_RUNTIME_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    ${KTQTBASE_DEBIAN_FOLDER}/shlibs
    ${KTQTBASE_DEBIAN_FOLDER}/symbols
    ${KTQTBASE_DEBIAN_FOLDER}/triggers)
set(CPACK_DEBIAN_RUNTIME_DEBUGINFO_PACKAGE ON)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libktqtbase-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${KTQTBASE_RUNTIME_PACKAGE} (= ${KTQTBASE_DEBIAN_VERSION}), qtbase5-dev (>= ${KTQTBASE_QT_MINIMUM})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "libktqtbase-doc, ktqt-tools")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME libktqtbase-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ktqt-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_CONTROL_EXTRA ${KTQTBASE_DEBIAN_FOLDER}/triggers)
set(CPACK_DEBIAN_TOOLS_DEBUGINFO_PACKAGE ON)

# ---- Fedora's kind -------------------------------------------------------------------------------

set(CPACK_RPM_COMPONENT_INSTALL ON)
set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_RELEASE ${KTQTBASE_PACKAGE_RELEASE})
set(CPACK_RPM_PACKAGE_LICENSE MIT)
set(CPACK_RPM_PACKAGE_GROUP "Development/Libraries")
# Folders of the system belong to its own packages.
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
    /usr/${CMAKE_INSTALL_LIBDIR} /usr/${CMAKE_INSTALL_LIBDIR}/cmake
    /usr/${CMAKE_INSTALL_LIBDIR}/pkgconfig /usr/share/gdb /usr/share/gdb/auto-load
    /usr/share/gdb/auto-load/usr /usr/share/gdb/auto-load/usr/${CMAKE_INSTALL_LIBDIR}
    /usr/share/doc /usr/share/licenses /usr/share/man /usr/share/man/man1 /usr/share/man/man3)
# The same sources give the same bytes, whoever builds them and when.
set(CPACK_RPM_SPEC_MORE_DEFINE "%define packager ${KTQTBASE_PACKAGER}
%define _buildhost localhost
%define use_source_date_epoch_as_buildtime 1
%define clamp_mtime_to_source_date_epoch 1")
set(CPACK_RPM_RUNTIME_PACKAGE_NAME ${KTQTBASE_RUNTIME_PACKAGE})
set(CPACK_RPM_RUNTIME_POST_INSTALL_SCRIPT_FILE ${PROJECT_SOURCE_DIR}/packaging/ldconfig.sh)
set(CPACK_RPM_RUNTIME_POST_UNINSTALL_SCRIPT_FILE ${PROJECT_SOURCE_DIR}/packaging/ldconfig.sh)
set(CPACK_RPM_DEVELOPMENT_PACKAGE_NAME ktqtbase-devel)
set(CPACK_RPM_DEVELOPMENT_PACKAGE_REQUIRES
    "${KTQTBASE_RUNTIME_PACKAGE} = ${PROJECT_VERSION}, qt5-qtbase-devel >= ${KTQTBASE_QT_MINIMUM}")
set(CPACK_RPM_DOCUMENTATION_PACKAGE_NAME ktqtbase-doc)
set(CPACK_RPM_DOCUMENTATION_PACKAGE_ARCHITECTURE noarch)
set(CPACK_RPM_TOOLS_PACKAGE_NAME ktqt-tools)

# What cpack cannot be told by variables.
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/finish.cmake)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/packaging/config.cmake)
set(CPACK_KTQTBASE_SOURCES ${PROJECT_SOURCE_DIR})
set(CPACK_KTQTBASE_BUILD ${PROJECT_BINARY_DIR})
include(CPack)
