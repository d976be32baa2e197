# SPDX-License-Identifier: MIT
# Removes what tools/install.cmake installed, by the manifest that it left below the prefix:
#
#     cmake -DPREFIX=FOLDER -P tools/uninstall.cmake
#
# Removes nothing at all if one of the files is not as it was installed.

set(root "$ENV{DESTDIR}${PREFIX}")
set(manifest "${root}/share/KtQtBase/installed.txt")
set(installed)
set(folders)

if(NOT EXISTS "${manifest}")
    message(FATAL_ERROR "Nothing was installed by ./run install in ${root}: "
        "there is no ${manifest}. Nothing is removed.")
endif()
get_filename_component(real_root "${root}" REALPATH)

# Fails unless a name of the manifest lies below the prefix, and not behind a link that leaves it.
function(check_place name)
    get_filename_component(place "${root}/${name}" DIRECTORY)
    get_filename_component(place "${place}" REALPATH)
    string(FIND "${place}/" "${real_root}/" position)
    if(NOT position EQUAL 0)
        message(FATAL_ERROR "${name} is not below ${root}. Nothing is removed.")
    endif()
endfunction()

# Fails unless a name is what was installed, or is gone.
function(check_content kind mark name)
    set(found gone)
    if(IS_SYMLINK "${root}/${name}")
        file(READ_SYMLINK "${root}/${name}" target)
        set(found "link ${target}")
    elseif(EXISTS "${root}/${name}")
        file(SHA256 "${root}/${name}" digest)
        set(found "file ${digest}")
    endif()
    if(NOT found STREQUAL "gone" AND NOT found STREQUAL "${kind} ${mark}")
        message(FATAL_ERROR "${root}/${name} is not as it was installed. Nothing is removed.")
    endif()
endfunction()

file(STRINGS "${manifest}" lines ENCODING UTF-8)
foreach(line IN LISTS lines)
    if(line MATCHES "^folder (.+)$")
        set(name "${CMAKE_MATCH_1}")
        check_place("${name}")
        get_filename_component(folder "${root}/${name}" ABSOLUTE)
        list(APPEND folders "${folder}")
    elseif(line MATCHES "^(file|link) ([^ ]+) (.+)$")
        set(name "${CMAKE_MATCH_3}")
        check_place("${name}")
        check_content("${CMAKE_MATCH_1}" "${CMAKE_MATCH_2}" "${name}")
        list(APPEND installed "${root}/${name}")
    else()
        message(FATAL_ERROR "${manifest} has a line of no known kind: ${line}")
    endif()
endforeach()

file(REMOVE ${installed} "${manifest}")
# A folder that holds something else by now stays.
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
    execute_process(COMMAND rmdir "${folder}" ERROR_QUIET)
endforeach()
list(LENGTH installed count)
message(STATUS "Removed ${count} files from ${root}")
