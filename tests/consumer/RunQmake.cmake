# SPDX-License-Identifier: MIT
# Builds and runs an outside project of qmake with the installed library.

include(${CMAKE_CURRENT_LIST_DIR}/BuildByQmake.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
build_by_qmake(${CMAKE_CURRENT_LIST_DIR}/project/consumer.pro ${WORK_DIR} ${PREFIX} "${FLAGS}")
execute_process(COMMAND ${WORK_DIR}/consumer COMMAND_ERROR_IS_FATAL ANY)
