# SPDX-License-Identifier: MIT
# Builds and runs an outside project with the library that lies in its build folder.

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/project -B ${WORK_DIR}
    -G ${GENERATOR}
    -DCMAKE_BUILD_TYPE=${CONFIG}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_FLAGS=${FLAGS}
    -DKtQtBase_DIR=${BUILD_DIR}
    -DKTQTBASE_QT_MAJOR=${QT_MAJOR}
    -DQt${QT_MAJOR}_DIR=${QT_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/consumer COMMAND_ERROR_IS_FATAL ANY)
