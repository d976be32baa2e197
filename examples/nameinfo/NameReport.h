// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_NAMEREPORT_H
#define NAMEINFO_NAMEREPORT_H

#include <optional>
#include <string>
#include <vector>

// One answer about a name: its heading, and the answer where there is one.
struct Cell
{
    const char* heading;
    std::optional<std::wstring> text;
};

using Row = std::vector<Cell>;

// What the library makes of a name, as one row.
Row describe(const std::wstring& text);

#endif
