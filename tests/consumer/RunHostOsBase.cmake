# SPDX-License-Identifier: MIT
# Builds a host's OS-base library, then this library against it, and runs a host program that ends
# with 0 only where its own functions were called; its library lies in a folder with a blank in its
# name. Plain debug builds, many sources at once: what is asked here is which library was linked, and
# anything else would only slow that down.

include(${CMAKE_CURRENT_LIST_DIR}/BuildByQmake.cmake)
set(host_source ${CMAKE_CURRENT_LIST_DIR}/host)
set(prefix ${WORK_DIR}/prefix)
set(osbase "${WORK_DIR}/os base")

function(configure source build)
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR}
        -DCMAKE_BUILD_TYPE=Debug
        -DCMAKE_CXX_COMPILER=${COMPILER}
        "-DCMAKE_CXX_FLAGS=${BUILDERS_FLAGS} -g0"
        -DKTQTBASE_QT_MAJOR=${QT_MAJOR}
        -DQt${QT_MAJOR}_DIR=${QT_DIR}
        ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(build folder)
    execute_process(COMMAND ${CMAKE_COMMAND} --build ${folder} ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
file(COPY ${host_source}/osbase/ DESTINATION ${osbase})
configure(${osbase} ${osbase})
build(${osbase})
file(GLOB host_library ${osbase}/libKtOsBase.*)

configure(${PROJECT_DIR} ${WORK_DIR}/library
    -DKTQTBASE_BUILD_TESTS=OFF
    -DKTQTBASE_BUILD_EXAMPLES=OFF
    -DKTQTBASE_BUILD_TOOLS=OFF
    -DCMAKE_UNITY_BUILD=ON
    -DKTQTBASE_HOST_OSBASE=${host_library}
    -DKTQTBASE_HOST_OSBASE_INCLUDE=${osbase}/include
    -DCMAKE_INSTALL_PREFIX=${prefix}
    -DCMAKE_INSTALL_LIBDIR=${LIBDIR})
build(${WORK_DIR}/library --target install)

file(GLOB_RECURSE bundled ${prefix}/*KtOsBase*)
if(bundled)
    message(FATAL_ERROR "Installed beside the host's own: ${bundled}")
endif()

configure(${host_source}/program ${WORK_DIR}/program
    -DKtQtBase_DIR=${prefix}/${LIBDIR}/cmake/KtQtBase)
build(${WORK_DIR}/program)
execute_process(COMMAND ${WORK_DIR}/program/host COMMAND_ERROR_IS_FATAL ANY)

set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig:$ENV{PKG_CONFIG_PATH}")
execute_process(COMMAND pkg-config --cflags --libs KtQtBase
    OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${BUILDERS_FLAGS} ${flags}")
execute_process(COMMAND ${COMPILER} -std=c++17 ${host_source}/program/main.cpp
    -o ${WORK_DIR}/plain ${flags}
    -Wl,-rpath,${osbase} -Wl,-rpath,${prefix}/${LIBDIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/plain COMMAND_ERROR_IS_FATAL ANY)

if(QMAKE)
    run_by_qmake(${host_source}/program/main.cpp ${WORK_DIR}/qmake ${prefix} "${BUILDERS_FLAGS}")
endif()
