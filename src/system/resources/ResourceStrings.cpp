// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Modules.h>
#include <KtQtBase/windows/ResourceStrings.h>

#include <cwchar>

namespace {

using StringFunction = const wchar_t* (*)(unsigned int id);

} // namespace

int LoadString(HINSTANCE hInstance, unsigned int uID, wchar_t* lpBuffer, int nBufferMax)
{
    if (!lpBuffer || nBufferMax < 1)
        return 0;
    const auto find = reinterpret_cast<StringFunction>(GetProcAddress(hInstance, "loadstring"));
    const wchar_t* const text = find ? find(uID) : L"";
    if (!text)
        return 0;
    const auto room = static_cast<std::size_t>(nBufferMax);
    std::wcsncpy(lpBuffer, text, room - 1);
    return static_cast<int>(wcsnlen(lpBuffer, room));
}
