# SPDX-License-Identifier: MIT
# Configures an outside project that uses this library, in the way in which the library was built.
#   source     the project's folder
#   build      its build folder
#   place      where CMake finds the library: -DKtQtBase_DIR=... or -DCMAKE_PREFIX_PATH=...

function(configure_host source build place)
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR}
        -DCMAKE_BUILD_TYPE=${CONFIG}
        -DCMAKE_CXX_COMPILER=${COMPILER}
        -DCMAKE_CXX_FLAGS=${FLAGS}
        ${place}
        -DKTQTBASE_QT_MAJOR=${QT_MAJOR}
        -DQt${QT_MAJOR}_DIR=${QT_DIR} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
