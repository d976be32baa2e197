// SPDX-License-Identifier: MIT
#include <KtOsBase/KtOsBase.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <vector>

namespace {

// Converts a wide name to multibyte text. Result: false if the name is null or does not convert.
bool toNarrow(const wchar_t* name, std::vector<char>& narrow)
{
    if (!name)
        return false;
    // Room for the locale's longest character, so that no name is ever cut.
    narrow.resize(std::wcslen(name) * MB_CUR_MAX + 1);
    const std::size_t length = std::wcstombs(narrow.data(), name, narrow.size());
    return length != static_cast<std::size_t>(-1) && length < narrow.size();
}

// The C library gives -1 both for a buffer that is too small and for a text that does not convert,
// so larger buffers are tried only up to this size.
constexpr std::size_t kLargestPrint = std::size_t{1} << 22;

} // namespace

wchar_t* _wcsinc(const wchar_t* text)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): the result's type is Windows'.
    return const_cast<wchar_t*>(text + 1);
}

unsigned int _wcsnextc(const wchar_t* text)
{
    return static_cast<unsigned int>(*text);
}

int swprintf(wchar_t* buffer, const wchar_t* format, ...)
{
    std::vector<wchar_t> text;
    int length = -1;
    for (std::size_t room = 1024; length < 0 && room <= kLargestPrint; room *= 4) {
        text.resize(room);
        va_list arguments;
        va_start(arguments, format);
        length = std::vswprintf(text.data(), room, format, arguments);
        va_end(arguments);
    }
    if (length < 0) {
        *buffer = L'\0';
        return -1;
    }
    std::wmemcpy(buffer, text.data(), static_cast<std::size_t>(length) + 1);
    return length;
}

int _wrename(const wchar_t* oldName, const wchar_t* newName)
{
    std::vector<char> oldNarrow;
    std::vector<char> newNarrow;
    if (!toNarrow(oldName, oldNarrow) || !toNarrow(newName, newNarrow))
        return -1;
    return std::rename(oldNarrow.data(), newNarrow.data());
}

int IsDBCSLeadByte(unsigned char)
{
    return 0;
}
