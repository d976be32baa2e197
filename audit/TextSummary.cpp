// SPDX-License-Identifier: MIT
#include "TextSummary.h"
#include "Words.h"

#include <algorithm>
#include <numeric>

namespace ktqtbase::audit {

namespace {

constexpr std::size_t kBarLength = 40;
constexpr std::size_t kNumberWidth = 6;
constexpr std::size_t kGroupWidth = 10;

std::string padded(const std::string& text, std::size_t width)
{
    const std::size_t used = columns(text);
    return text + std::string(width > used ? width - used : 0, ' ');
}

std::string right(const std::string& text, std::size_t width)
{
    return std::string(width > text.size() ? width - text.size() : 0, ' ') + text;
}

std::string number(std::size_t value, std::size_t width = kNumberWidth)
{
    return right(std::to_string(value), width);
}

// A part of a length, never nothing for something.
std::size_t share(std::size_t part, std::size_t whole, std::size_t length)
{
    return part == 0 ? 0 : std::max<std::size_t>(1, (part * length + whole / 2) / whole);
}

std::vector<Group> bestFirst()
{
    return {kGroups.rbegin(), kGroups.rend()};
}

void writeInputs(const Report& report, llvm::raw_ostream& out)
{
    std::string text;
    for (const std::string& input : report.inputs)
        text += (text.empty() ? "" : ", ") + printable(input);
    out << text << ": " << counted(report.binaryCount, "binary", "binaries") << ", "
        << counted(report.sourceCount, "source", "sources") << "\n\n";
}

void writeFunctions(const Count& count, const Style& style, llvm::raw_ostream& out)
{
    out << bold(style, counted(count.total(), "function", "functions") + " used") << "\n";
    for (const Group group : bestFirst()) {
        const std::size_t part = count.of(group);
        const std::size_t percent =
            count.total() ? (part * 100 + count.total() / 2) / count.total() : 0;
        out << "  " << padded(title(group), 9) << number(part) << number(percent, 5) << " %  "
            << bar(style, group, share(part, count.total(), kBarLength)) << "\n";
    }
}

void writeOthers(const Count& count, llvm::raw_ostream& out)
{
    out << counted(count.total(), "known class, type or constant",
                   "known classes, types and constants")
        << " used: ";
    const char* separator = "";
    for (const Group group : bestFirst()) {
        if (count.of(group) == 0)
            continue;
        out << separator << countedGroup(count.of(group), group);
        separator = ", ";
    }
    out << "\n";
}

struct FamilyRow
{
    std::string title;
    Count count;
};

// Those with most to do come first.
std::vector<FamilyRow> familyRows(const Report& report, const Summary& summary)
{
    std::vector<FamilyRow> rows;
    for (const auto& [id, count] : summary.families)
        rows.push_back({report.families.at(id).title, count});
    std::stable_sort(rows.begin(), rows.end(), [](const FamilyRow& one, const FamilyRow& other) {
        return one.count.total() > other.count.total();
    });
    return rows;
}

// The parts of a family's bar. Each is rounded, and none is nothing, so that the largest gives way
// where all together are too long.
std::vector<std::size_t> partLengths(const Count& count, std::size_t most, std::size_t length)
{
    std::vector<std::size_t> parts;
    for (const Group group : bestFirst())
        parts.push_back(share(count.of(group), most, length));
    while (std::accumulate(parts.begin(), parts.end(), std::size_t()) >
           std::max(length, parts.size()))
        --*std::max_element(parts.begin(), parts.end());
    return parts;
}

void writeFamily(const FamilyRow& row, std::size_t titleWidth, std::size_t most, const Style& style,
                 llvm::raw_ostream& out)
{
    const std::size_t room =
        style.width -
        std::min(style.width, titleWidth + kNumberWidth + kGroups.size() * kGroupWidth + 4);
    out << "  " << padded(row.title, titleWidth) << number(row.count.total());
    for (const Group group : bestFirst())
        out << number(row.count.of(group), kGroupWidth);
    out << "  ";
    const std::vector<std::size_t> parts =
        partLengths(row.count, most, std::min<std::size_t>(room, kBarLength));
    for (std::size_t i = 0; i < parts.size(); ++i)
        out << bar(style, bestFirst()[i], parts[i]);
    out << "\n";
}

void writeFamilies(const std::vector<FamilyRow>& rows, const Style& style, llvm::raw_ostream& out)
{
    std::size_t width = 6;
    for (const FamilyRow& row : rows)
        width = std::max(width, columns(row.title));
    out << "\n  " << bold(style, padded("Family", width)) << "  used";
    for (const Group group : bestFirst())
        out << right(title(group), kGroupWidth);
    out << "\n";
    for (const FamilyRow& row : rows)
        writeFamily(row, width, rows.front().count.total(), style, out);
}

} // namespace

void writeTextSummary(const Report& report, const Style& style, llvm::raw_ostream& out)
{
    const Summary summary = summaryOf(report);
    writeInputs(report, out);
    writeFunctions(summary.functions, style, out);
    if (summary.others.total() > 0)
        writeOthers(summary.others, out);
    if (!summary.families.empty())
        writeFamilies(familyRows(report, summary), style, out);
}

} // namespace ktqtbase::audit
