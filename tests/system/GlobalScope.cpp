// SPDX-License-Identifier: MIT
#include "system/GlobalScope.h"

#include <KtOsBase/KtOsBase.h>

#include <clocale>
#include <cstdarg>
#include <cwchar>

#include <dlfcn.h>

#define KTQTBASE_GLOBAL extern "C" __attribute__((visibility("default")))

std::string ktqtbase::test::lastTemplate;
ktqtbase::test::MktempEnd ktqtbase::test::mktempEnd = ktqtbase::test::MktempEnd::Name;
int ktqtbase::test::lastLoaderFlags = 0;
std::wstring ktqtbase::test::lastFormat;
std::string ktqtbase::test::localeOfLastFormat;

// A string function of the program itself, which no look-up in a module may find.
KTQTBASE_GLOBAL const wchar_t* loadstring(unsigned int)
{
    return L"of the program";
}

// Found before the C library's own.
KTQTBASE_GLOBAL char* mktemp(char* text)
{
    ktqtbase::test::lastTemplate = text;
    switch (ktqtbase::test::mktempEnd) {
    case ktqtbase::test::MktempEnd::EmptyText:
        text[0] = '\0';
        return text;
    case ktqtbase::test::MktempEnd::Null:
        return nullptr;
    case ktqtbase::test::MktempEnd::Name:
        break;
    }
    return reinterpret_cast<char* (*)(char*)>(dlsym(RTLD_NEXT, "mktemp"))(text);
}

KTQTBASE_GLOBAL void* dlopen(const char* fileName, int flags)
{
    ktqtbase::test::lastLoaderFlags = flags;
    return reinterpret_cast<void* (*)(const char*, int)>(dlsym(RTLD_NEXT, "dlopen"))(fileName,
                                                                                     flags);
}

// Found before the OS-base library's own, which then copies the text.
__attribute__((visibility("default"))) int swprintf(wchar_t* buffer, const wchar_t* format, ...)
{
    ktqtbase::test::lastFormat = format;
    ktqtbase::test::localeOfLastFormat = std::setlocale(LC_CTYPE, nullptr);
    wchar_t text[2048];
    std::va_list arguments;
    va_start(arguments, format);
    std::vswprintf(text, 2048, format, arguments);
    va_end(arguments);
    using Print = int (*)(wchar_t*, const wchar_t*, ...);
    return reinterpret_cast<Print>(dlsym(RTLD_NEXT, "_Z8swprintfPwPKwz"))(buffer, L"%ls", text);
}
