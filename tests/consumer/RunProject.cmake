# SPDX-License-Identifier: MIT
# Builds an outside project, the folder PROJECT, with the installed library, and runs its tests.

include(${CMAKE_CURRENT_LIST_DIR}/ConfigureHost.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
configure_host(${CMAKE_CURRENT_LIST_DIR}/${PROJECT} ${WORK_DIR} -DCMAKE_PREFIX_PATH=${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_CTEST_COMMAND} --output-on-failure
    WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
