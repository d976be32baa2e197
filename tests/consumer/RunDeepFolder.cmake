# SPDX-License-Identifier: MIT
# Configures the library for a library folder of two levels, and asks its pkg-config module where it
# is moved to.

set(libraries ${WORK_DIR}/moved/lib/deep)

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${PROJECT_DIR} -B ${WORK_DIR} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_FLAGS=${BUILDERS_FLAGS}
    -DCMAKE_INSTALL_LIBDIR=lib/deep
    -DKTQTBASE_BUILD_TESTS=OFF
    -DKTQTBASE_BUILD_EXAMPLES=OFF
    -DKTQTBASE_BUILD_TOOLS=OFF
    -DKTQTBASE_QT_MAJOR=${QT_MAJOR}
    -DQt${QT_MAJOR}_DIR=${QT_DIR} COMMAND_ERROR_IS_FATAL ANY)
file(COPY ${WORK_DIR}/KtQtBase.pc DESTINATION ${libraries}/pkgconfig)

function(expect_folder variable folder)
    foreach(way IN ITEMS --dont-define-prefix --define-prefix)
        execute_process(COMMAND pkg-config ${way} --variable=${variable} KtQtBase
            OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        separate_arguments(answer UNIX_COMMAND "${answer}")
        get_filename_component(answer "${answer}" ABSOLUTE)
        if(NOT answer STREQUAL folder)
            message(FATAL_ERROR "${variable} is ${answer} with ${way}, not ${folder}.")
        endif()
    endforeach()
endfunction()

set(ENV{PKG_CONFIG_PATH} "${libraries}/pkgconfig:$ENV{PKG_CONFIG_PATH}")
expect_folder(libdir ${libraries})
expect_folder(includedir ${WORK_DIR}/moved/include)
