# SPDX-License-Identifier: MIT
# Builds and runs an outside project of qmake with the installed library.

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
execute_process(COMMAND ${QMAKE} ${CMAKE_CURRENT_LIST_DIR}/project/consumer.pro
    KTQTBASE_PRI=${PREFIX}/${LIBDIR}/KtQtBase/KtQtBase.pri
    QMAKE_CXX=${COMPILER}
    QMAKE_LINK=${COMPILER}
    QMAKE_CXXFLAGS=${FLAGS}
    QMAKE_LFLAGS=${FLAGS}
    WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND make WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/consumer COMMAND_ERROR_IS_FATAL ANY)
