// SPDX-License-Identifier: MIT
//
// Functions of the test program that stand in the loader's global scope.
#ifndef KTQTBASE_TESTS_SYSTEM_GLOBALSCOPE_H
#define KTQTBASE_TESTS_SYSTEM_GLOBALSCOPE_H

#include <string>

namespace ktqtbase::test {

// What the C library's mktemp was last given, and whether it fails.
extern std::string lastTemplate;
extern bool mktempFails;

// The flags of the loader's last dlopen.
extern int lastLoaderFlags;

// The format that the OS-base library's swprintf was last given, and the LC_CTYPE meanwhile.
extern std::wstring lastFormat;
extern std::string localeOfLastFormat;

} // namespace ktqtbase::test

#endif
