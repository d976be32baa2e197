# SPDX-License-Identifier: MIT
# Builds and runs an outside project with the installed library, and looks at what else was installed.

include(${CMAKE_CURRENT_LIST_DIR}/ConfigureHost.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
configure_host(${CMAKE_CURRENT_LIST_DIR}/project ${WORK_DIR} -DCMAKE_PREFIX_PATH=${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/consumer COMMAND_ERROR_IS_FATAL ANY)

file(GLOB ours RELATIVE ${PROJECT_DIR} ${PROJECT_DIR}/catalogue/*)
set(data ${PREFIX}/${DATADIR}/KtQtBase)
file(GLOB installed RELATIVE ${data} ${data}/catalogue/*)
if(NOT installed OR NOT installed STREQUAL ours)
    message(FATAL_ERROR "The catalogue is not installed as it is: ${installed}")
endif()

# Nobody's folder but the library's own is searched for what it needs.
if(NOT CMAKE_HOST_APPLE)
    execute_process(COMMAND readelf --dynamic --wide ${PREFIX}/${LIBDIR}/libKtQtBase.so
        OUTPUT_VARIABLE entries COMMAND_ERROR_IS_FATAL ANY)
    if(NOT entries MATCHES "[(]RUNPATH[)] [^\n]*\\[\\$ORIGIN\\]")
        message(FATAL_ERROR "The installed library looks elsewhere for others: ${entries}")
    endif()
endif()

# The programs find their data and their library from where they were moved to.
if(EXISTS ${BUILD_DIR}/audit/ktqt-audit)
    execute_process(COMMAND ${PREFIX}/${BINDIR}/ktqt-audit --explain CloseHandle
        OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
    if(NOT said MATCHES "^CloseHandle, function: inert")
        message(FATAL_ERROR "The installed ktqt-audit says ${said}")
    endif()
endif()
if(EXISTS ${BUILD_DIR}/trace/ktqt-trace)
    execute_process(COMMAND ${PREFIX}/${BINDIR}/ktqt-trace ${WORK_DIR}/consumer
        ERROR_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
    if(NOT said MATCHES "consumer called none of the functions that are counted")
        message(FATAL_ERROR "The installed ktqt-trace says ${said}")
    endif()
endif()
