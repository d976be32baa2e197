// SPDX-License-Identifier: MIT
#include "Texts.h"

#include "FileNames.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/PathName.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/WindowsFunctions.h>

namespace {

constexpr wchar_t kModule[] = L"sketchtexts.dll";
constexpr wchar_t kPlaceholder[] = L"%ls";

const wchar_t* BuiltInText(TextId id)
{
    switch (id) {
    case IDS_APPTITLE:
        return L"Sketchpad";
    case IDS_UNTITLED:
        return L"Untitled";
    case IDS_DISCARD:
        return L"Discard the changes to %ls?";
    case IDS_OVERWRITE:
        return L"%ls exists. Replace it?";
    case IDS_CANNOTOPEN:
        return L"%ls cannot be opened: %ls";
    case IDS_CANNOTSAVE:
        return L"%ls cannot be saved: %ls";
    case IDS_CANNOTPRINT:
        return L"%ls cannot be printed to.";
    case IDS_BADNAME:
        return L"%ls cannot be used: %ls";
    case IDS_OPENED:
        return L"Opened %ls";
    case IDS_SAVED:
        return L"Saved %ls (status %ls)";
    case IDS_COPIED:
        return L"Saved a copy as %ls";
    case IDS_PRINTED:
        return L"Printed to %ls";
    case IDS_SELECTED:
        return L"Selected: %ls";
    case IDS_READY:
        return L"Ready";
    case IDS_OPENTITLE:
        return L"Open a drawing";
    case IDS_SAVETITLE:
        return L"Save the drawing";
    case IDS_PRINTTITLE:
        return L"Print to a PDF file";
    case IDS_FILTER:
        return L"Drawings (*.sketch);;All files (*)";
    case IDS_PDFFILTER:
        return L"PDF files (*.pdf);;All files (*)";
    case IDS_NOCOPYNAME:
        return L"no free name was found";
    }
    return L"";
}

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
    const std::wstring path = BesideExecutable(kModule);
    AfxSetResourceHandle(LoadLibrary(path.c_str()));
    return AfxGetResourceHandle() ? L"" : L"The built-in texts are used: no " + path;
}

std::wstring Text(TextId id)
{
    CStdStr<wchar_t> text;
    return text.LoadString(id) ? text.c_str() : BuiltInText(id);
}

std::wstring Text(TextId id, const std::wstring& argument)
{
    return Fill(Text(id), argument);
}

std::wstring Text(TextId id, const std::wstring& first, const std::wstring& second)
{
    const std::wstring text = Text(id);
    const std::size_t place = text.find(kPlaceholder);
    if (place == std::wstring::npos)
        return text;
    return text.substr(0, place) + first + Fill(text.substr(place + 3), second);
}
