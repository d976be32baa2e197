// SPDX-License-Identifier: MIT
#include "Narrow.h"

#include <cstdlib>

namespace {

constexpr auto kFailed = static_cast<std::size_t>(-1);

} // namespace

std::optional<std::string> Narrow(const std::wstring& text)
{
    std::string bytes(text.size() * 4 + 4, '\0');
    const std::size_t length = std::wcstombs(bytes.data(), text.c_str(), bytes.size());
    if (length == kFailed)
        return std::nullopt;
    bytes.resize(length);
    return bytes;
}

std::optional<std::wstring> Widen(const std::string& bytes)
{
    std::wstring text(bytes.size() + 1, L'\0');
    const std::size_t length = std::mbstowcs(text.data(), bytes.c_str(), text.size());
    if (length == kFailed)
        return std::nullopt;
    text.resize(length);
    return text;
}

std::string NarrowForDisplay(const std::wstring& text)
{
    std::string bytes;
    for (wchar_t character : text)
        bytes += Narrow(std::wstring(1, character)).value_or("?");
    return bytes;
}

std::wstring WidenForDisplay(const std::string& bytes)
{
    if (const auto text = Widen(bytes))
        return *text;
    std::wstring text;
    for (char byte : bytes)
        text += static_cast<unsigned char>(byte) < 0x80 ? static_cast<wchar_t>(byte) : L'?';
    return text;
}
