# SPDX-License-Identifier: MIT
# Installs what debuggers load to show the library's types.

set(KTQTBASE_DEBUGGER_DIR ${CMAKE_INSTALL_LIBDIR}/KtQtBase/debugger)
install(FILES
    debugger/ktqtbase_gdb.py
    debugger/ktqtbase_lldb.py
    debugger/ktqtbase_views.py
    ${PROJECT_BINARY_DIR}/debugger/ktqtbase_names.py
    DESTINATION ${KTQTBASE_DEBUGGER_DIR} COMPONENT development)
if(APPLE)
    return()
endif()
install(FILES ${PROJECT_BINARY_DIR}/debugger/ktqtbase_types.o
    DESTINATION ${KTQTBASE_DEBUGGER_DIR} COMPONENT development OPTIONAL)

# gdb's script lies beside the library; for a library below /usr in a folder that gdb trusts. Which of
# the two is known when it is installed: a package is made of another folder's usr.
set(gdb_trusts ${CMAKE_INSTALL_DATADIR}/gdb/auto-load/usr/${CMAKE_INSTALL_LIBDIR})
set(KTQTBASE_VIEWS KtQtBase/debugger)
configure_file(debugger/auto-load-gdb.py.in debugger/elsewhere-gdb.py @ONLY)
file(RELATIVE_PATH KTQTBASE_VIEWS /usr/${gdb_trusts} /usr/${KTQTBASE_DEBUGGER_DIR})
configure_file(debugger/auto-load-gdb.py.in debugger/usr-gdb.py @ONLY)
install(CODE "
    set(place ${CMAKE_INSTALL_LIBDIR})
    set(script elsewhere-gdb.py)
    if(CMAKE_INSTALL_PREFIX MATCHES \"(^|/)usr/?$\")
        set(place ${gdb_trusts})
        set(script usr-gdb.py)
    endif()
    file(INSTALL \"${PROJECT_BINARY_DIR}/debugger/\${script}\"
        DESTINATION \"\${CMAKE_INSTALL_PREFIX}/\${place}\"
        RENAME \"$<TARGET_FILE_NAME:KtQtBase>-gdb.py\")"
    COMPONENT development)
