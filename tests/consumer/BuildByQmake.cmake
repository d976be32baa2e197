# SPDX-License-Identifier: MIT
# Builds and runs an outside program by qmake that uses this library.
#   source     the program's source
#   build      its build folder
#   prefix     where the library is installed
#   flags      those of the compiler

function(run_by_qmake source build prefix flags)
    file(MAKE_DIRECTORY ${build})
    execute_process(COMMAND ${QMAKE} ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/consumer.pro
        SOURCE=${source}
        KTQTBASE_PRI=${prefix}/${LIBDIR}/KtQtBase/KtQtBase.pri
        QMAKE_CXX=${COMPILER}
        QMAKE_LINK=${COMPILER}
        QMAKE_CXXFLAGS=${flags}
        QMAKE_LFLAGS=${flags}
        WORKING_DIRECTORY ${build} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND make WORKING_DIRECTORY ${build} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${build}/consumer COMMAND_ERROR_IS_FATAL ANY)
endfunction()
