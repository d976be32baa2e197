# SPDX-License-Identifier: MIT
# Finds out which C++ library and which of its string layouts this build uses, and writes both into
# a header, so that a host that uses others is told when it compiles.

set(KTQTBASE_GENERATED_INCLUDE ${PROJECT_BINARY_DIR}/include)

# Whether a condition of the preprocessor holds with the flags of this build.
function(ktqtbase_check_condition result condition)
    get_directory_property(options COMPILE_OPTIONS)
    get_directory_property(definitions COMPILE_DEFINITIONS)
    list(TRANSFORM definitions PREPEND -D)
    set(source ${PROJECT_BINARY_DIR}/CMakeFiles/BuiltWith.cpp)
    file(WRITE ${source} "#include <string>\n#if !(${condition})\n#error no\n#endif\n")
    set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
    # The answer is not kept, since the flags may change.
    unset(KTQTBASE_CONDITION_HOLDS CACHE)
    try_compile(KTQTBASE_CONDITION_HOLDS ${PROJECT_BINARY_DIR}/CMakeFiles/BuiltWith ${source}
        COMPILE_DEFINITIONS ${definitions} ${options})
    if(KTQTBASE_CONDITION_HOLDS)
        set(${result} 1 PARENT_SCOPE)
    else()
        set(${result} 0 PARENT_SCOPE)
    endif()
    unset(KTQTBASE_CONDITION_HOLDS CACHE)
endfunction()

set(KTQTBASE_LIBCXX 0)
ktqtbase_check_condition(KTQTBASE_CXX11_ABI
    "defined(_GLIBCXX_USE_CXX11_ABI) && _GLIBCXX_USE_CXX11_ABI")
if(NOT KTQTBASE_CXX11_ABI)
    ktqtbase_check_condition(KTQTBASE_LIBCXX "defined(_LIBCPP_VERSION)")
endif()
configure_file(cmake/BuiltWith.h.in ${KTQTBASE_GENERATED_INCLUDE}/KtQtBase/BuiltWith.h @ONLY)
