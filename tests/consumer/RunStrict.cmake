# SPDX-License-Identifier: MIT
# Builds and runs an outside project that asks for a warning at each use of a function that does
# nothing, and looks for the warning.

include(${CMAKE_CURRENT_LIST_DIR}/ConfigureHost.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
configure_host(${CMAKE_CURRENT_LIST_DIR}/strict ${WORK_DIR} -DKtQtBase_DIR=${BUILD_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}
    OUTPUT_VARIABLE said ERROR_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "main.cpp:[0-9]+:[0-9]+: warning: [^\n]*" warnings "${said}")
if(NOT warnings MATCHES "^main.cpp:9:[^;]*inert: returns 0 and closes nothing[^;]*$")
    message(FATAL_ERROR "Not the one warning of line 9: ${said}")
endif()
execute_process(COMMAND ${WORK_DIR}/strict COMMAND_ERROR_IS_FATAL ANY)
