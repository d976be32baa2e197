# SPDX-License-Identifier: MIT
# Installs the build, and moves what was installed to a folder whose name has a blank and a letter
# beyond ASCII. All that use the installed library use this one.

file(REMOVE_RECURSE ${WORK_DIR} ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --config ${CONFIG}
    --prefix ${WORK_DIR}/staging COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${WORK_DIR}/staging ${PREFIX})
