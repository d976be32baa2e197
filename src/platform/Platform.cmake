# SPDX-License-Identifier: MIT
# Chooses the platform's own source file and the libraries that it needs.

target_sources(KtQtBase PRIVATE platform/Loader.cpp)
if(APPLE)
    target_sources(KtQtBase PRIVATE platform/PlatformMac.mm)
    target_link_libraries(KtQtBase PRIVATE "-framework AppKit" "-framework Foundation")
else()
    target_sources(KtQtBase PRIVATE platform/PlatformLinux.cpp)
    target_link_libraries(KtQtBase PRIVATE ${CMAKE_DL_LIBS})
    # The sanitizers' own symbols come from the program, not from this library.
    if(NOT KTQTBASE_SANITIZE)
        target_link_options(KtQtBase PRIVATE -Wl,--no-undefined)
    endif()
endif()
