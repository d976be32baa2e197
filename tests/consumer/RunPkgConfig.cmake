# SPDX-License-Identifier: MIT
# Builds and runs an outside program with the plain compiler and the flags of the pkg-config module.

set(source ${CMAKE_CURRENT_LIST_DIR}/project/main.cpp)
set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig:$ENV{PKG_CONFIG_PATH}")

function(ask_pkg_config result)
    execute_process(COMMAND pkg-config ${ARGN} KtQtBase
        OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(answer UNIX_COMMAND "${answer}")
    set(${result} "${answer}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
separate_arguments(FLAGS UNIX_COMMAND "${FLAGS}")
ask_pkg_config(flags --cflags)
execute_process(COMMAND ${COMPILER} -std=c++17 ${FLAGS} ${flags} -c ${source}
    -o ${WORK_DIR}/main.o COMMAND_ERROR_IS_FATAL ANY)

# The library is a shared one for who links statically, too.
foreach(way IN ITEMS --shared --static --define-prefix)
    ask_pkg_config(flags ${way} --libs)
    execute_process(COMMAND ${COMPILER} ${FLAGS} ${WORK_DIR}/main.o -o ${WORK_DIR}/program${way}
        ${flags} -Wl,-rpath,${PREFIX}/${LIBDIR} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${WORK_DIR}/program${way} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Qt's own modules are not made for a prefix that pkg-config chooses, so only these two are looked at.
foreach(way IN ITEMS --dont-define-prefix --define-prefix)
    ask_pkg_config(include ${way} --variable=includedir)
    ask_pkg_config(libraries ${way} --variable=libdir)
    if(NOT EXISTS ${include}/KtQtBase/KtQtBase.h OR NOT EXISTS ${libraries}/pkgconfig/KtQtBase.pc)
        message(FATAL_ERROR "Wrong folders with ${way}: ${include}, ${libraries}")
    endif()
endforeach()

ask_pkg_config(requires --print-requires)
foreach(module IN ITEMS Core Gui Widgets)
    if(NOT requires MATCHES "Qt${QT_MAJOR}${module};")
        message(FATAL_ERROR "The module does not require Qt${QT_MAJOR}${module}: ${requires}")
    endif()
endforeach()
