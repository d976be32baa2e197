# SPDX-License-Identifier: MIT
# Chooses the platform's own source file and the libraries that it needs.

include(CheckLinkerFlag)

target_sources(KtQtBase PRIVATE platform/Loader.cpp)
if(APPLE)
    target_sources(KtQtBase PRIVATE platform/PlatformMac.mm)
    target_link_libraries(KtQtBase PRIVATE "-framework AppKit" "-framework Foundation")
else()
    target_sources(KtQtBase PRIVATE platform/PlatformLinux.cpp)
    target_link_libraries(KtQtBase PRIVATE ${CMAKE_DL_LIBS})
    # Calls of the library's own functions go straight to them, as on macOS, which spares the loader a
    # fifth of its work. It still looks for objects, which a program may hold copies of, and for the
    # functions that a host may have its own of.
    set(replaceable ${CMAKE_CURRENT_SOURCE_DIR}/platform/replaceable-functions.txt)
    set(own_calls -Wl,-Bsymbolic-functions -Wl,--dynamic-list-data)
    check_linker_flag(CXX "${own_calls}" KTQTBASE_LINKER_BINDS_OWN_CALLS)
    if(KTQTBASE_LINKER_BINDS_OWN_CALLS)
        target_link_options(KtQtBase PRIVATE
            ${own_calls} "SHELL:-Xlinker \"--dynamic-list=${replaceable}\"")
        set_property(TARGET KtQtBase APPEND PROPERTY LINK_DEPENDS ${replaceable})
    endif()
    # The sanitizers' own symbols come from the program, not from this library.
    if(NOT KTQTBASE_SANITIZE)
        target_link_options(KtQtBase PRIVATE -Wl,--no-undefined)
    endif()
endif()
