# SPDX-License-Identifier: MIT
# Installs a build and leaves a manifest of what that made, for tools/uninstall.cmake:
#
#     cmake -DBUILD=FOLDER -DPREFIX=FOLDER -P tools/install.cmake
#
# The manifest names folders that were not there before, files with their SHA-256 and links with
# their targets, all below the prefix, so that it holds where the prefix was moved to.

set(root "$ENV{DESTDIR}${PREFIX}")
set(manifest "${root}/share/KtQtBase/installed.txt")
set(stage "${BUILD}/stage")
set(lines)

function(add_line line)
    list(APPEND lines "${line}")
    set(lines "${lines}" PARENT_SCOPE)
endfunction()

# What an earlier installation made stays known, but for files that this one makes anew.
if(EXISTS "${manifest}")
    file(STRINGS "${manifest}" lines ENCODING UTF-8)
endif()

# Tried elsewhere first, which shows all names before the prefix has any of them.
file(REMOVE_RECURSE "${stage}")
execute_process(COMMAND ${CMAKE_COMMAND} -E env "DESTDIR=${stage}"
    ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(MAKE_DIRECTORY "${stage}${PREFIX}/share/KtQtBase")
file(GLOB_RECURSE names RELATIVE "${stage}${PREFIX}" LIST_DIRECTORIES TRUE "${stage}${PREFIX}/*")
foreach(name IN ITEMS . ${names})
    if(IS_DIRECTORY "${stage}${PREFIX}/${name}" AND NOT EXISTS "${root}/${name}")
        add_line("folder ${name}")
    endif()
endforeach()

execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
    COMMAND_ERROR_IS_FATAL ANY)
foreach(name IN LISTS names)
    if(IS_DIRECTORY "${stage}${PREFIX}/${name}")
        continue()
    endif()
    string(REGEX REPLACE "([][+.*()^])" "\\\\\\1" literal "${name}")
    list(FILTER lines EXCLUDE REGEX "^(file|link) [^ ]+ ${literal}$")
    if(IS_SYMLINK "${root}/${name}")
        file(READ_SYMLINK "${root}/${name}" target)
        add_line("link ${target} ${name}")
    else()
        file(SHA256 "${root}/${name}" digest)
        add_line("file ${digest} ${name}")
    endif()
endforeach()
file(REMOVE_RECURSE "${stage}")

list(SORT lines)
list(JOIN lines "\n" text)
file(WRITE "${manifest}" "${text}\n")
