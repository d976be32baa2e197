# SPDX-License-Identifier: MIT
# Looks for LLVM and Clang, whose libraries ktqt-audit reads programs and sources with.
# KTQTBASE_AUDIT_LLVM tells whether they can be used, and KtQtBase::AuditLlvm is then a target to
# link.

include(CheckCXXSourceCompiles)
include(CheckLanguage)

set(KTQTBASE_AUDIT_LLVM OFF)
# LLVM's package compiles programs in C when it is looked for.
check_language(C)
if(CMAKE_C_COMPILER)
    enable_language(C)
    find_package(LLVM CONFIG QUIET)
endif()
# Each Clang belongs to one LLVM and is installed with it.
if(LLVM_FOUND AND NOT LLVM_VERSION VERSION_LESS 14)
    find_package(Clang CONFIG QUIET
        HINTS ${LLVM_INSTALL_PREFIX} ${LLVM_LIBRARY_DIR} NO_DEFAULT_PATH)
endif()
if(NOT LLVM_FOUND OR NOT Clang_FOUND OR NOT TARGET LLVM OR NOT TARGET clang-cpp)
    message(STATUS "ktqt-audit is not built: it needs LLVM 14 or newer, and Clang's library")
    return()
endif()

# LLVM's C++ library need not be the one that is used here.
set(CMAKE_REQUIRED_INCLUDES ${LLVM_INCLUDE_DIRS})
set(CMAKE_REQUIRED_LIBRARIES LLVM)
check_cxx_source_compiles("
    #include <llvm/ADT/StringRef.h>
    #include <llvm/Support/Regex.h>
    int main() { std::string why; return llvm::Regex(\"a\").isValid(why) ? 0 : 1; }"
    KTQTBASE_AUDIT_LLVM_LINKS)
unset(CMAKE_REQUIRED_INCLUDES)
unset(CMAKE_REQUIRED_LIBRARIES)
if(NOT KTQTBASE_AUDIT_LLVM_LINKS)
    message(STATUS "ktqt-audit is not built: LLVM ${LLVM_VERSION} has another C++ library")
    return()
endif()

set(KTQTBASE_AUDIT_LLVM ON)
message(STATUS "ktqt-audit is built with LLVM ${LLVM_VERSION}")
add_library(ktqtbase-audit-llvm INTERFACE)
add_library(KtQtBase::AuditLlvm ALIAS ktqtbase-audit-llvm)
target_include_directories(ktqtbase-audit-llvm SYSTEM INTERFACE
    ${LLVM_INCLUDE_DIRS} ${CLANG_INCLUDE_DIRS})
target_link_libraries(ktqtbase-audit-llvm INTERFACE clang-cpp LLVM)
