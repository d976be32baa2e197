// SPDX-License-Identifier: MIT
#include "NameReport.h"

#include <KtQtBase/PathName.h>

#include <algorithm>

namespace {

using Answer = std::optional<std::wstring>;

constexpr const char* kParts[] = {"work string", "prefix", "base name", "file name"};

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

// A getter without an answer leaves its argument alone. A text that no name holds is put in first,
// to tell that case from an empty answer.
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

Answer yesOrNo(bool yes)
{
    return yes ? L"yes" : L"no";
}

Answer parent(const CRnUiPathname& name)
{
    CRnUiPathname folder;
    name.GetParent(folder);
    return copyOf(folder.m_pWork);
}

Answer withExtension(const CRnUiPathname& name, const std::wstring& list)
{
    CRnUiPathname copy(name);
    copy.ReplaceExtensionIfNoMatch(list.c_str());
    return copyOf(copy.m_pWork);
}

Answer display(const CRnUiPathname& name, int width)
{
    CStdStr<wchar_t> shown;
    name.GetDisplayName(shown, width);
    return shown;
}

Answer match(const CRnUiPathname& name, const std::wstring& text)
{
    CRnUiPathname other;
    other.Parse(text.c_str(), false);
    return yesOrNo(name.PathMatch(&other));
}

Answer unique(const CRnUiPathname& name)
{
    CRnUiPathname result;
    name.GetUniqueName(result, false);
    return copyOf(result.m_pWork);
}

// Asks the rules of the name's own volume, or of the first volume if the name has none.
Answer validity(const CRnUiPathname& name, const std::wstring& text)
{
    CStdStr<wchar_t> plain(text);
    CRbUiPathname::Unquote(plain);
    plain.TrimLeft().TrimRight();
    const CRbUiVolumeDescriptor* rules = name.m_pVolume ? name.m_pVolume : volumeList.first();
    return yesOrNo(rules->ValidateFilename(&plain, name.m_type == PT_WILDCARD));
}

// The answers that only a parsed name has.
void addAnswers(Row& row, CRnUiPathname& name, const Questions& questions)
{
    const bool parsed = name.m_type != PT_NONE;
    const auto add = [&row, parsed](const char* heading, bool asked, auto answer) {
        if (asked)
            row.push_back({heading, parsed ? answer() : Answer()});
    };
    add("parent", questions.parent, [&] { return parent(name); });
    add("with extension", questions.extensions.has_value(),
        [&] { return withExtension(name, *questions.extensions); });
    add("display", questions.width.has_value(), [&] { return display(name, *questions.width); });
    add("match", questions.match.has_value(), [&] { return match(name, *questions.match); });
    add("unique", questions.unique, [&] { return unique(name); });
    add("status", questions.status, [&] { return Answer(std::to_wstring(name.Status())); });
}

} // namespace

Row describe(const std::wstring& text, const Questions& questions)
{
    CRnUiPathname name;
    const bool parsed = name.Parse(text.c_str(), false) == 0;
    Row row = {
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
    addAnswers(row, name, questions);
    if (questions.validate)
        row.push_back({"valid", validity(name, text)});
    return row;
}

Row pick(const Row& row, const std::vector<std::string>& columns)
{
    Row picked;
    for (const std::string& heading : columns)
        picked.push_back(*std::find_if(row.begin(), row.end(), [&heading](const Cell& cell) {
            return cell.heading == heading;
        }));
    return picked;
}

std::vector<std::string> headingsFor(const Questions& questions)
{
    std::vector<std::string> headings;
    for (const Cell& cell : describe(std::wstring(), questions))
        headings.emplace_back(cell.heading);
    return headings;
}

std::vector<std::string> tableHeadingsFor(const Questions& questions)
{
    std::vector<std::string> headings = headingsFor(questions);
    const auto isPart = [](const std::string& heading) {
        return std::count(std::begin(kParts), std::end(kParts), heading) > 0;
    };
    headings.erase(std::remove_if(headings.begin(), headings.end(), isPart), headings.end());
    return headings;
}
