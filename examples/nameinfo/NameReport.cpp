// SPDX-License-Identifier: MIT
#include "NameReport.h"

#include <KtQtBase/PathName.h>

namespace {

using Answer = std::optional<std::wstring>;

const wchar_t* categoryName(path_category category)
{
    switch (category) {
    case PC_DRIVE:
        return L"drive";
    case PC_UNC:
        return L"UNC";
    case PC_ROOTED:
        return L"rooted";
    case PC_RELATIVE:
        return L"relative";
    }
    return L"?";
}

const wchar_t* typeName(path_type type)
{
    switch (type) {
    case PT_NONE:
        return L"bad name";
    case PT_NOT_FOUND:
        return L"not found";
    case PT_WILDCARD:
        return L"wildcard";
    case PT_FILE:
        return L"file";
    case PT_DIRECTORY:
        return L"directory";
    }
    return L"?";
}

Answer copyOf(const CStdStr<wchar_t>* text)
{
    return text ? Answer(*text) : std::nullopt;
}

// The getters leave their argument alone where they have no answer, so one is told from an empty
// answer by a text that no name holds.
Answer ask(const CRbUiPathname& name, void (CRbUiPathname::*get)(CStdStr<wchar_t>&) const)
{
    const std::wstring untouched(1, L'\0');
    CStdStr<wchar_t> answer(untouched);
    (name.*get)(answer);
    return answer == untouched ? std::nullopt : Answer(answer);
}

Answer fullPath(const CRbUiPathname& name)
{
    CStdStr<wchar_t> path;
    return name.GetFullPath(path) ? Answer(path) : std::nullopt;
}

Answer volume(const CRbUiPathname& name)
{
    return name.m_pVolume ? copyOf(name.m_pVolume->GetLocalName()) : std::nullopt;
}

} // namespace

Row describe(const std::wstring& text)
{
    CRbUiPathname name;
    const bool parsed = name.Parse(text.c_str(), false) == 0;
    return {
        {"name", text},
        {"category", parsed ? Answer(categoryName(name.m_category)) : std::nullopt},
        {"type", typeName(name.m_type)},
        {"volume", volume(name)},
        {"work string", copyOf(name.m_pWork)},
        {"prefix", copyOf(name.m_pRelPath)},
        {"full path", fullPath(name)},
        {"base name", ask(name, &CRbUiPathname::GetBasename)},
        {"file name", ask(name, &CRbUiPathname::GetFilename)},
        {"extension", ask(name, &CRbUiPathname::GetExtension)},
    };
}
