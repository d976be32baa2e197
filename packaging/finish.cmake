# SPDX-License-Identifier: MIT
# Run by cpack between installing the components and packing them: adds what each package of a
# distribution has, and packs the manual pages.

# What is named here is the whole place.
unset(ENV{DESTDIR})

function(pack file)
    execute_process(COMMAND gzip -9nf "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(add_notes_of_debian folder package)
    set(notes ${folder}/usr/share/doc/${package})
    file(INSTALL ${CPACK_KTQTBASE_SOURCES}/packaging/debian/copyright DESTINATION ${notes})
    file(INSTALL ${CPACK_KTQTBASE_BUILD}/debian/changelog DESTINATION ${notes} RENAME changelog.Debian)
    file(INSTALL ${CPACK_KTQTBASE_SOURCES}/CHANGELOG.md DESTINATION ${notes} RENAME changelog)
    pack(${notes}/changelog.Debian)
    pack(${notes}/changelog)
    if(EXISTS ${CPACK_KTQTBASE_SOURCES}/packaging/debian/${package}.lintian-overrides)
        file(INSTALL ${CPACK_KTQTBASE_SOURCES}/packaging/debian/${package}.lintian-overrides
            DESTINATION ${folder}/usr/share/lintian/overrides RENAME ${package})
    endif()
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(folder ${CPACK_TEMPORARY_DIRECTORY}/${component})
    string(TOUPPER ${component} name)
    if(CPACK_GENERATOR STREQUAL "DEB")
        add_notes_of_debian(${folder} ${CPACK_DEBIAN_${name}_PACKAGE_NAME})
    else()
        file(INSTALL ${CPACK_KTQTBASE_SOURCES}/LICENSE
            DESTINATION ${folder}/usr/share/licenses/${CPACK_RPM_${name}_PACKAGE_NAME})
    endif()
    file(GLOB_RECURSE pages ${folder}/usr/share/man/*)
    foreach(page IN LISTS pages)
        pack(${page})
    endforeach()
endforeach()
