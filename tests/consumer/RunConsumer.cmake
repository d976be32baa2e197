# SPDX-License-Identifier: MIT
# Installs the build, moves what was installed, and builds and runs an outside project with it: once
# by its CMake package, once by its pkg-config module and the plain compiler.

include(${CMAKE_CURRENT_LIST_DIR}/ConfigureHost.cmake)
set(source ${CMAKE_CURRENT_LIST_DIR}/project)
set(prefix ${WORK_DIR}/prefix)

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --config ${CONFIG}
    --prefix ${WORK_DIR}/staging COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${WORK_DIR}/staging ${prefix})

configure_host(${source} ${WORK_DIR}/build
    ${prefix}/${LIBDIR}/cmake/KtQtBase)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/build/consumer COMMAND_ERROR_IS_FATAL ANY)

set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig:$ENV{PKG_CONFIG_PATH}")
execute_process(COMMAND pkg-config --cflags --libs KtQtBase
    OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${FLAGS} ${flags}")
execute_process(COMMAND ${COMPILER} -std=c++17 ${source}/main.cpp
    -o ${WORK_DIR}/plain ${flags} -Wl,-rpath,${prefix}/${LIBDIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/plain COMMAND_ERROR_IS_FATAL ANY)

execute_process(COMMAND pkg-config --print-requires KtQtBase
    OUTPUT_VARIABLE requires COMMAND_ERROR_IS_FATAL ANY)
foreach(module IN ITEMS Core Gui Widgets)
    if(NOT requires MATCHES "Qt${QT_MAJOR}${module} ")
        message(FATAL_ERROR "The module does not require Qt${QT_MAJOR}${module}: ${requires}")
    endif()
endforeach()

file(GLOB ours RELATIVE ${PROJECT_DIR} ${PROJECT_DIR}/catalogue/*)
set(data ${prefix}/${DATADIR}/KtQtBase)
file(GLOB installed RELATIVE ${data} ${data}/catalogue/*)
if(NOT installed OR NOT installed STREQUAL ours)
    message(FATAL_ERROR "The catalogue is not installed as it is: ${installed}")
endif()

# Nobody's folder but the library's own is searched for what it needs.
if(NOT CMAKE_HOST_APPLE)
    execute_process(COMMAND readelf --dynamic --wide ${prefix}/${LIBDIR}/libKtQtBase.so
        OUTPUT_VARIABLE entries COMMAND_ERROR_IS_FATAL ANY)
    if(NOT entries MATCHES "[(]RUNPATH[)] [^\n]*\\[\\$ORIGIN\\]")
        message(FATAL_ERROR "The installed library looks elsewhere for others: ${entries}")
    endif()
endif()

# The programs find their data and their library from where they were moved to.
if(EXISTS ${BUILD_DIR}/audit/ktqt-audit)
    execute_process(COMMAND ${prefix}/${BINDIR}/ktqt-audit --explain CloseHandle
        OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
    if(NOT said MATCHES "^CloseHandle, function: inert")
        message(FATAL_ERROR "The installed ktqt-audit says ${said}")
    endif()
endif()
if(EXISTS ${BUILD_DIR}/trace/ktqt-trace)
    execute_process(COMMAND ${prefix}/${BINDIR}/ktqt-trace ${WORK_DIR}/build/consumer
        ERROR_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
    if(NOT said MATCHES "consumer called none of the functions that are counted")
        message(FATAL_ERROR "The installed ktqt-trace says ${said}")
    endif()
endif()
