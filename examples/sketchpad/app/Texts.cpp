// SPDX-License-Identifier: MIT
#include "Texts.h"

#include "FileNames.h"
#include "Reasons.h"
#include "TextTable.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/PathName.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/WindowsFunctions.h>

namespace {

constexpr wchar_t kModule[] = L"sketchtexts.dll";
constexpr wchar_t kPlaceholder[] = L"%ls";

std::wstring Fill(std::wstring text, const std::wstring& argument)
{
    const std::size_t place = text.find(kPlaceholder);
    return place == std::wstring::npos ? text : text.replace(place, 3, argument);
}

} // namespace

std::wstring LoadTexts()
{
    // Loads no module, but sets the locale in which the executable's own path is read next.
    LoadLibrary(L"/");
    ktuiSetCurrentDirPrefix();
    AfxSetResourceHandle(LoadLibrary(BesideExecutable(kModule).c_str()));
    if (AfxGetResourceHandle())
        return std::wstring();
    return Text(IDS_NOTEXTS, LoaderReason());
}

std::wstring Text(unsigned int id)
{
    CStdStr<wchar_t> text;
    if (text.LoadString(id))
        return text.c_str();
    const wchar_t* const english = EnglishText(id);
    return english ? english : L"";
}

std::wstring Text(TextId id, const std::wstring& argument)
{
    return Fill(Text(id), argument);
}

std::wstring Text(TextId id, const std::wstring& first, const std::wstring& second)
{
    std::wstring text = Text(id);
    const std::size_t place = text.find(kPlaceholder);
    if (place == std::wstring::npos)
        return text;
    return text.substr(0, place) + first + Fill(text.substr(place + 3), second);
}
