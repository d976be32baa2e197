# SPDX-License-Identifier: MIT
# The options of a build, and the compile settings that all targets of this project share.

if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
    message(FATAL_ERROR "KtQtBase can only be a shared library, since its hosts find names in it when "
        "they run: leave BUILD_SHARED_LIBS out, or set it to ON before this project is added.")
endif()

# Without a preset the build is the one that is shipped; a host that adds this project chooses its own.
get_property(KTQTBASE_MULTI_CONFIG GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(PROJECT_IS_TOP_LEVEL AND NOT KTQTBASE_MULTI_CONFIG AND NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "The kind of build" FORCE)
endif()

set(KTQTBASE_QT_MAJOR 5 CACHE STRING "The major version of Qt to build with, 5 or 6")
set_property(CACHE KTQTBASE_QT_MAJOR PROPERTY STRINGS 5 6)
if(KTQTBASE_QT_MAJOR EQUAL 5)
    set(KTQTBASE_QT_MINIMUM 5.15)
elseif(KTQTBASE_QT_MAJOR EQUAL 6)
    set(KTQTBASE_QT_MINIMUM 6.2)
else()
    message(FATAL_ERROR "KTQTBASE_QT_MAJOR is ${KTQTBASE_QT_MAJOR}: KtQtBase builds with Qt 5 or Qt 6.")
endif()
set(KTQTBASE_QT Qt${KTQTBASE_QT_MAJOR})

option(KTQTBASE_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(KTQTBASE_BUILD_EXAMPLES "Build the example programs" ${PROJECT_IS_TOP_LEVEL})
option(KTQTBASE_BUILD_FUZZERS "Build the fuzzers, which need clang++" OFF)
option(KTQTBASE_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(KTQTBASE_BUILD_TOOLS "Build the programs that help to port a host" ${PROJECT_IS_TOP_LEVEL})
option(KTQTBASE_BUILD_DOCS "Build the reference, with Doxygen" OFF)
option(KTQTBASE_PACKAGES "Let cpack make packages; the scripts in packaging/ do the rest" OFF)
option(KTQTBASE_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(KTQTBASE_SANITIZE "Build with the sanitizers that KTQTBASE_SANITIZERS names" OFF)
set(KTQTBASE_SANITIZERS address,undefined CACHE STRING "The sanitizers, as -fsanitize= takes them")
option(KTQTBASE_COVERAGE "Build with coverage counters" OFF)
option(KTQTBASE_HARDEN "Build with stack protection, checked buffers and read-only tables" ON)
set(KTQTBASE_HOST_OSBASE "" CACHE FILEPATH
    "A host's own OS-base library to link instead of the bundled one")
set(KTQTBASE_HOST_OSBASE_INCLUDE "" CACHE PATH
    "The folder that holds KtOsBase/KtOsBase.h of the host's own OS-base library")

# Settings for one target: C++17, hidden symbols (Objective-C++ takes neither from the C++ ones),
# warnings, and the sanitizers or counters if they are switched on.
function(ktqtbase_target_settings target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        OBJCXX_STANDARD 17
        OBJCXX_STANDARD_REQUIRED ON
        OBJCXX_EXTENSIONS OFF
        OBJCXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
    if(KTQTBASE_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(KTQTBASE_SANITIZE)
        set(sanitizers -fsanitize=${KTQTBASE_SANITIZERS} -fno-sanitize-recover=all)
        target_compile_options(${target} PRIVATE ${sanitizers} -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE ${sanitizers})
    endif()
    if(KTQTBASE_BUILD_FUZZERS)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    if(KTQTBASE_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
        target_link_options(${target} PRIVATE --coverage)
    endif()
endfunction()

# Sets a variable to the flags that check buffers of a known size, of which the C library has two
# forms. They need an optimising build, know nothing of sanitizers, and give way to whoever builds
# and chose a level himself. A compiler may have a level of its own, which is no choice.
function(ktqtbase_fortify_flags result)
    get_directory_property(definitions COMPILE_DEFINITIONS)
    get_directory_property(options COMPILE_OPTIONS)
    foreach(config IN ITEMS Release RelWithDebInfo MinSizeRel)
        string(TOUPPER ${config} name)
        set(chosen "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${name}} ${options} ${definitions}")
        if(chosen MATCHES "-O([1-3gsz]|fast)" AND NOT KTQTBASE_SANITIZE
                AND NOT chosen MATCHES "-O0|_FORTIFY_SOURCE|-fsanitize")
            list(APPEND flags
                "$<$<CONFIG:${config}>:-U_FORTIFY_SOURCE>" "$<$<CONFIG:${config}>:-D_FORTIFY_SOURCE=2>")
        endif()
    endforeach()
    set(${result} ${flags} PARENT_SCOPE)
endfunction()

# Makes faults of memory that remain in a target harder to use. What the loader fills in is read-only
# from the first call on; the linker of macOS has no such flags.
function(ktqtbase_harden target)
    if(NOT KTQTBASE_HARDEN)
        return()
    endif()
    target_compile_options(${target} PRIVATE -fstack-protector-strong)
    if(NOT APPLE)
        target_link_options(${target} PRIVATE -Wl,-z,relro -Wl,-z,now)
    endif()
endfunction()

function(ktqtbase_fortify target)
    if(KTQTBASE_HARDEN)
        ktqtbase_fortify_flags(flags)
        target_compile_options(${target} PRIVATE ${flags})
    endif()
endfunction()

# Makes what is shipped the same bytes in whatever folder it is built. Debuggers and reports of tests
# want the real names, so other builds keep them.
function(ktqtbase_hide_folders target)
    target_compile_options(${target} PRIVATE
        $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
        $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=./build>)
    # A name of the build folder would leave its length behind where it is replaced.
    set_target_properties(${target} PROPERTIES BUILD_RPATH_USE_ORIGIN ON)
endfunction()
