// SPDX-License-Identifier: MIT
//
// Functions of the test program that stand in the loader's global scope.
#ifndef KTQTBASE_TESTS_SYSTEM_GLOBALSCOPE_H
#define KTQTBASE_TESTS_SYSTEM_GLOBALSCOPE_H

#include <string>

namespace ktqtbase::test {

// How the C library's mktemp ends: where it finds no name, one library empties the text, another one
// returns null.
enum class MktempEnd
{
    Name,
    EmptyText,
    Null,
};

// What mktemp was last given, and how it ends.
extern std::string lastTemplate;
extern MktempEnd mktempEnd;

// The flags of the loader's last dlopen.
extern int lastLoaderFlags;

// The format that the OS-base library's swprintf was last given, and the LC_CTYPE meanwhile.
extern std::wstring lastFormat;
extern std::string localeOfLastFormat;

} // namespace ktqtbase::test

#endif
