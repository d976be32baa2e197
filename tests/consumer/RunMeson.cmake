# SPDX-License-Identifier: MIT
# Builds and runs an outside project of Meson with the installed library, found in both of its ways.
# Meson cannot read what pkg-config writes for a letter beyond ASCII, so a link leads to the library.

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND mktemp -d
    OUTPUT_VARIABLE scratch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(CREATE_LINK ${PREFIX} ${scratch}/installed SYMBOLIC)
set(ENV{CXX} "${COMPILER} ${FLAGS}")
execute_process(COMMAND ${MESON} setup ${WORK_DIR} ${CMAKE_CURRENT_LIST_DIR}/project
    --buildtype=plain
    -Dpkg_config_path=${scratch}/installed/${LIBDIR}/pkgconfig
    -Dcmake_prefix_path=${PREFIX} RESULT_VARIABLE set_up)
# It gives a program no run-time path to a library that CMake told it of.
set(ENV{LD_LIBRARY_PATH} "${PREFIX}/${LIBDIR}:$ENV{LD_LIBRARY_PATH}")
execute_process(COMMAND ${MESON} test -C ${WORK_DIR} --print-errorlogs RESULT_VARIABLE tested)
file(REMOVE_RECURSE ${scratch})
if(NOT set_up EQUAL 0 OR NOT tested EQUAL 0)
    message(FATAL_ERROR "Meson ended with ${set_up} and ${tested}.")
endif()
