# SPDX-License-Identifier: MIT
# Builds an outside project of qmake that uses this library.
#   source     the project's file
#   build      its build folder
#   prefix     where the library is installed
#   flags      those of the compiler

function(build_by_qmake source build prefix flags)
    file(MAKE_DIRECTORY ${build})
    execute_process(COMMAND ${QMAKE} ${source}
        KTQTBASE_PRI=${prefix}/${LIBDIR}/KtQtBase/KtQtBase.pri
        QMAKE_CXX=${COMPILER}
        QMAKE_LINK=${COMPILER}
        QMAKE_CXXFLAGS=${flags}
        QMAKE_LFLAGS=${flags}
        WORKING_DIRECTORY ${build} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND make WORKING_DIRECTORY ${build} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
