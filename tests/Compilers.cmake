# SPDX-License-Identifier: MIT
# Command lines that compile a host's source against the public headers: KTQTBASE_HOST_COMPILER with
# the compiler and the C++ library of this build, and KTQTBASE_OTHER_HOST_COMPILER with the other one
# of g++ and clang++, empty where that is not installed. Both hold generator expressions.

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    find_program(KTQTBASE_OTHER_CXX clang++)
else()
    find_program(KTQTBASE_OTHER_CXX g++)
endif()

set(host_options -fPIC -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    -I${PROJECT_SOURCE_DIR}/include)
# Qt 6 names the system's own folder too, which must keep its place behind the C++ library's.
foreach(module IN ITEMS Core Gui Widgets)
    set(folders $<TARGET_PROPERTY:${KTQTBASE_QT}::${module},INTERFACE_INCLUDE_DIRECTORIES>)
    set(folders $<FILTER:${folders},EXCLUDE,^/usr/include/?$>)
    list(APPEND host_options -isystem$<JOIN:${folders},$<SEMICOLON>-isystem>)
endforeach()
if(APPLE)
    # Where the frameworks lie, seen from the library inside one of them.
    set(core $<TARGET_FILE_DIR:${KTQTBASE_QT}::Core>)
    list(APPEND host_options -F${core}/.. -F${core}/../../..)
endif()

separate_arguments(build_flags UNIX_COMMAND "${CMAKE_CXX_FLAGS}")
set(KTQTBASE_HOST_COMPILER ${CMAKE_CXX_COMPILER} ${build_flags} ${host_options}
    -I${KTQTBASE_GENERATED_INCLUDE})
# Without the header that tells of the build, since its C++ library may be another one. The other
# compiler is the same in each build, so that one of them is enough.
set(KTQTBASE_OTHER_HOST_COMPILER "")
if(KTQTBASE_OTHER_CXX AND NOT KTQTBASE_WHOLE_TEST_PROGRAMS)
    set(KTQTBASE_OTHER_HOST_COMPILER ${KTQTBASE_OTHER_CXX} ${host_options})
endif()

# One test for each of the two compilers: the command, with the compiler's own where it says COMPILER.
function(ktqtbase_add_compiler_tests name)
    set(suffix "")
    foreach(compiler IN ITEMS KTQTBASE_HOST_COMPILER KTQTBASE_OTHER_HOST_COMPILER)
        if(${compiler})
            list(TRANSFORM ARGN REPLACE "^COMPILER$" "${${compiler}}" OUTPUT_VARIABLE command)
            add_test(NAME ${name}${suffix} COMMAND ${command} COMMAND_EXPAND_LISTS)
        endif()
        set(suffix UnderTheOtherCompiler)
    endforeach()
endfunction()
