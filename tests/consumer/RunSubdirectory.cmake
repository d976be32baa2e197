# SPDX-License-Identifier: MIT
# Builds and runs a host, the folder PROJECT, that adds this project to itself, as a unity build with
# all sources of a library in one.

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/${PROJECT} -B ${WORK_DIR}
    -G ${GENERATOR}
    -DCMAKE_BUILD_TYPE=Debug
    -DCMAKE_CXX_COMPILER=${COMPILER}
    "-DCMAKE_CXX_FLAGS=${BUILDERS_FLAGS} -g0"
    -DCMAKE_UNITY_BUILD=ON
    -DCMAKE_UNITY_BUILD_BATCH_SIZE=0
    -DBY_FUNCTION=${BY_FUNCTION}
    -DKTQTBASE_SOURCES=${PROJECT_DIR}
    -DKTQTBASE_QT_MAJOR=${QT_MAJOR}
    -DQt${QT_MAJOR}_DIR=${QT_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/host COMMAND_ERROR_IS_FATAL ANY)
