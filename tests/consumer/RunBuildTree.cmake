# SPDX-License-Identifier: MIT
# Builds and runs an outside project with the library that lies in its build folder.

include(${CMAKE_CURRENT_LIST_DIR}/ConfigureHost.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
configure_host(${CMAKE_CURRENT_LIST_DIR}/project ${WORK_DIR} -DKtQtBase_DIR=${BUILD_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/consumer COMMAND_ERROR_IS_FATAL ANY)
