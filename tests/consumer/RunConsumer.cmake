# SPDX-License-Identifier: MIT
# Installs the build, moves what was installed, and builds and runs an outside project with it: once
# by its CMake package, once by its pkg-config module and the plain compiler.

set(source ${CMAKE_CURRENT_LIST_DIR}/project)
set(prefix ${WORK_DIR}/prefix)

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --config ${CONFIG}
    --prefix ${WORK_DIR}/staging COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${WORK_DIR}/staging ${prefix})

execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${WORK_DIR}/build -G ${GENERATOR}
    -DCMAKE_BUILD_TYPE=${CONFIG}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_FLAGS=${FLAGS}
    -DKtQtBase_DIR=${prefix}/${LIBDIR}/cmake/KtQtBase
    -DKTQTBASE_QT_MAJOR=${QT_MAJOR}
    -DQt${QT_MAJOR}_DIR=${QT_DIR} COMMAND_ERROR_IS_FATAL ANY)
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
