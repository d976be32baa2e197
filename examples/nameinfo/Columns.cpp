// SPDX-License-Identifier: MIT
#include "Columns.h"
#include "ShownText.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int kLeastWidth = 12; // GetDisplayName takes no less

struct KnownColumn
{
    const char* heading;
    int width;
};

// The columns that have only a few answers, or short ones.
constexpr KnownColumn kKnown[] = {{"category", 8}, {"type", 9},   {"volume", 6}, {"extension", 9},
                                  {"match", 5},    {"status", 6}, {"valid", 5}};

int assumedWidth(const std::string& heading, int nameWidth)
{
    for (const KnownColumn& column : kKnown) {
        if (column.heading == heading)
            return column.width;
    }
    return std::max(nameWidth, static_cast<int>(heading.size()));
}

int totalOf(const Widths& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

// No column wider than a limit, but for its heading.
Widths limited(Widths widths, const Widths& headings, int limit)
{
    for (std::size_t i = 0; i < widths.size(); ++i)
        widths[i] = std::min(widths[i], std::max(limit, headings[i]));
    return widths;
}

} // namespace

Widths headingWidths(const std::vector<std::string>& columns)
{
    Widths widths;
    for (const std::string& heading : columns)
        widths.push_back(static_cast<int>(heading.size()));
    return widths;
}

void widen(Widths& widths, const Row& row)
{
    for (std::size_t i = 0; i < widths.size(); ++i)
        widths[i] = std::max(widths[i], cellsOf(row[i].text));
}

Widths assumedWidths(const std::vector<std::string>& columns, int nameWidth)
{
    Widths widths;
    for (const std::string& heading : columns)
        widths.push_back(assumedWidth(heading, nameWidth));
    return widths;
}

std::optional<Widths> fitted(Widths widths, const std::vector<std::string>& columns, int room)
{
    room -= kColumnGap * (static_cast<int>(columns.size()) - 1);
    if (totalOf(widths) <= room)
        return widths;
    const Widths headings = headingWidths(columns);
    int limit = kLeastWidth;
    if (totalOf(limited(widths, headings, limit)) > room)
        return std::nullopt;
    while (totalOf(limited(widths, headings, limit + 1)) <= room)
        ++limit;
    return limited(widths, headings, limit);
}
