# SPDX-License-Identifier: MIT
# Read by cpack before it makes the packages of a kind. A summary of the whole project would stand
# above that of each .deb. Each .deb has its debug symbols beside it; those of an .rpm are left out.

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${CPACK_DEFAULT_PACKAGE_DESCRIPTION_SUMMARY}")
elseif(CPACK_GENERATOR STREQUAL "RPM")
    set(CPACK_STRIP_FILES ON)
endif()
