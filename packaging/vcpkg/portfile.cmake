# SPDX-License-Identifier: MIT
# KTQTBASE_ARCHIVE names the source archive of ./run dist in the environment, as a file.

if(NOT EXISTS "$ENV{KTQTBASE_ARCHIVE}")
    message(FATAL_ERROR "KTQTBASE_ARCHIVE must name the source archive.")
endif()
vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)
vcpkg_extract_source_archive(SOURCE_PATH ARCHIVE "$ENV{KTQTBASE_ARCHIVE}")
vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        -DKTQTBASE_BUILD_EXAMPLES=OFF
        -DKTQTBASE_BUILD_TESTS=OFF
        -DKTQTBASE_BUILD_TOOLS=OFF
        -DKTQTBASE_INSTALL_NOTES=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/KtQtBase PACKAGE_NAME KtQtBase)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
