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
    -DCMAKE_CXX_FLAGS=${SANITIZER_FLAGS}
    -DKtQtBase_DIR=${prefix}/${LIBDIR}/cmake/KtQtBase
    -DQt5_DIR=${Qt5_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/build/consumer COMMAND_ERROR_IS_FATAL ANY)

set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig:$ENV{PKG_CONFIG_PATH}")
execute_process(COMMAND pkg-config --cflags --libs KtQtBase
    OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND ${COMPILER} -std=c++17 ${SANITIZER_FLAGS} ${source}/main.cpp
    -o ${WORK_DIR}/plain ${flags} -Wl,-rpath,${prefix}/${LIBDIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/plain COMMAND_ERROR_IS_FATAL ANY)
