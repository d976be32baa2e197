// SPDX-License-Identifier: MIT
#include <KtOsBase/KtOsBase.h>

#include <cstdarg>
#include <cwchar>

wchar_t* _wcsinc(const wchar_t* text)
{
    return const_cast<wchar_t*>(text + 1);
}

unsigned int _wcsnextc(const wchar_t* text)
{
    return static_cast<unsigned int>(*text);
}

int swprintf(wchar_t* buffer, const wchar_t* format, ...)
{
    constexpr std::size_t kRoom = 1024;
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vswprintf(buffer, kRoom, format, arguments);
    va_end(arguments);
    return length;
}

int _wrename(const wchar_t*, const wchar_t*)
{
    return 0;
}

int IsDBCSLeadByte(unsigned char)
{
    return 42;
}
