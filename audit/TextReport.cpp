// SPDX-License-Identifier: MIT
#include "TextReport.h"
#include "TextSummary.h"
#include "Words.h"

#include <algorithm>

namespace ktqtbase::audit {

namespace {

constexpr std::size_t kShownPlaces = 3;

std::string upperCase(std::string text)
{
    for (char& ch : text)
        ch = ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch;
    return text;
}

std::string places(const Report& report, const Use& use)
{
    const std::size_t count = use.places.size();
    const std::size_t shown = std::min(count, kShownPlaces);
    std::string text = counted(count, "use", "uses") + ":";
    for (std::size_t i = 0; i < shown; ++i)
        text += (i > 0 ? ", " : " ") + printable(placeText(report, use.places[i]));
    return count > shown ? text + " and " + std::to_string(count - shown) + " more" : text;
}

void writeUse(const Report& report, const Use& use, const Style& style, llvm::raw_ostream& out)
{
    const Entry& entry = use.entry;
    const std::string name = printable(fullName(entry));
    const std::string result = entry.result.empty() ? "" : " returns " + entry.result + ";";
    std::string lines = wrapped(style, name + result + " " + places(report, use), 2, 4);
    out << lines.replace(2, name.size(), bold(style, name));
    const std::string text = meaning(entry);
    if (!text.empty())
        out << wrapped(style, text, 4);
}

// Where nothing has to be done, the names alone are enough.
void writeNames(const std::vector<const Use*>& uses, const Style& style, llvm::raw_ostream& out)
{
    std::string names;
    for (const Use* const use : uses)
        names += (names.empty() ? "" : ", ") + fullName(use->entry);
    out << wrapped(style, names, 2);
}

void writeFamily(const Report& report, const std::vector<const Use*>& uses, const Style& style,
                 llvm::raw_ostream& out)
{
    const Entry& first = uses.front()->entry;
    const FamilyText& family = report.families.at(first.family);
    out << "\n" << bold(style, family.title) << "\n";
    if (first.group == Group::NotHere && !family.advice.empty())
        out << wrapped(style, family.advice, 2);
    if (first.group == Group::Works) {
        writeNames(uses, style, out);
        return;
    }
    for (const Use* const use : uses)
        writeUse(report, *use, style, out);
}

using UseIterator = std::vector<Use>::const_iterator;

// The uses that follow in the same family.
std::vector<const Use*> takeFamily(UseIterator& use, UseIterator end)
{
    std::vector<const Use*> uses;
    const std::string& family = use->entry.family;
    for (; use != end && use->entry.family == family; ++use)
        uses.push_back(&*use);
    return uses;
}

void writeGroup(const Report& report, Group group, const Style& style, llvm::raw_ostream& out)
{
    const auto isOther = [&](const Use& use) { return use.entry.group != group; };
    auto use = std::find_if_not(report.uses.begin(), report.uses.end(), isOther);
    const auto end = std::find_if(use, report.uses.end(), isOther);
    if (use == end)
        return;
    const std::string heading = upperCase(title(group)) + " (" + std::to_string(end - use) + ")";
    out << "\n" << coloured(style, group, heading) << "\n";
    while (use != end)
        writeFamily(report, takeFamily(use, end), style, out);
}

void writeLine(const char* heading, const std::string& text, const Style& style,
               llvm::raw_ostream& out)
{
    if (!text.empty())
        out << wrapped(style, heading + text, 2);
}

} // namespace

void writeTextReport(const Report& report, const Style& style, llvm::raw_ostream& out)
{
    writeTextSummary(report, style, out);
    for (const Group group : kGroups) {
        if (shows(report, group))
            writeGroup(report, group, style, out);
    }
}

void writeEntry(const Entry& entry, const FamilyText& family, const Style& style,
                llvm::raw_ostream& out)
{
    out << bold(style, fullName(entry)) << ", " << entry.kind << ": "
        << coloured(style, entry.group, title(entry.group)) << "\n";
    writeLine("Family: ", family.title, style, out);
    writeLine("DLL on Windows: ", entry.dll, style, out);
    writeLine("Header: ", entry.porting ? "KtQtBase/Porting.h" : entry.header, style, out);
    writeLine("Result: ", entry.result, style, out);
    writeLine("Here: ", entry.here, style, out);
    writeLine("On Windows: ", entry.windows, style, out);
    writeLine("Instead: ", entry.instead, style, out);
    writeLine("Test: ", entry.test, style, out);
    if (entry.group == Group::NotHere)
        writeLine("Advice: ", family.advice, style, out);
}

} // namespace ktqtbase::audit
