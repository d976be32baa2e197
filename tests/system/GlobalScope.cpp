// SPDX-License-Identifier: MIT
#include "system/GlobalScope.h"

#include <dlfcn.h>

#define KTQTBASE_GLOBAL extern "C" __attribute__((visibility("default")))

std::string ktqtbase::test::lastTemplate;
bool ktqtbase::test::mktempFails = false;

// A string function of the program itself, which no look-up in a module may find.
KTQTBASE_GLOBAL const wchar_t* loadstring(unsigned int)
{
    return L"of the program";
}

// Found before the C library's own.
KTQTBASE_GLOBAL char* mktemp(char* text)
{
    ktqtbase::test::lastTemplate = text;
    if (ktqtbase::test::mktempFails) {
        text[0] = '\0';
        return text;
    }
    return reinterpret_cast<char* (*)(char*)>(dlsym(RTLD_NEXT, "mktemp"))(text);
}
