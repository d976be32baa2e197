# SPDX-License-Identifier: MIT
# Builds and runs an outside program by qmake with the installed library, which refuses another Qt.

include(${CMAKE_CURRENT_LIST_DIR}/BuildByQmake.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run_by_qmake(${CMAKE_CURRENT_LIST_DIR}/project/main.cpp ${WORK_DIR} ${PREFIX} "${FLAGS}")

execute_process(COMMAND ${QMAKE} ${CMAKE_CURRENT_LIST_DIR}/consumer.pro QT_MAJOR_VERSION=4
    KTQTBASE_PRI=${PREFIX}/${LIBDIR}/KtQtBase/KtQtBase.pri
    WORKING_DIRECTORY ${WORK_DIR} RESULT_VARIABLE result ERROR_VARIABLE told)
string(REGEX REPLACE "[ \n]+" " " told "${told}")
if(result EQUAL 0 OR NOT told MATCHES "was built with Qt ${QT_MAJOR}, and this project uses Qt 4")
    message(FATAL_ERROR "Another Qt is not refused: ${told}")
endif()
