# SPDX-License-Identifier: MIT
# Configures the library without a preset and looks which kind of build that is.

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${PROJECT_DIR} -B ${WORK_DIR} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_FLAGS=${BUILDERS_FLAGS}
    -DKTQTBASE_BUILD_TESTS=OFF
    -DKTQTBASE_BUILD_EXAMPLES=OFF
    -DKTQTBASE_BUILD_TOOLS=OFF
    -DKTQTBASE_QT_MAJOR=${QT_MAJOR}
    -DQt${QT_MAJOR}_DIR=${QT_DIR} COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${WORK_DIR}/CMakeCache.txt build_type REGEX "^CMAKE_BUILD_TYPE:")
if(NOT build_type MATCHES "=Release$")
    message(FATAL_ERROR "Not a Release build: ${build_type}")
endif()
