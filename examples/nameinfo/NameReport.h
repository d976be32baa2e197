// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_NAMEREPORT_H
#define NAMEINFO_NAMEREPORT_H

#include <optional>
#include <string>
#include <vector>

// One answer about a name: its heading, and the answer, if any.
struct Cell
{
    const char* heading;
    std::optional<std::wstring> text;
};

using Row = std::vector<Cell>;

// What is asked besides the parts of a name; each adds a column.
struct Questions
{
    bool parent = false;                    // the folder that holds it
    std::optional<std::wstring> extensions; // the name with an extension of this list
    std::optional<int> width;               // the name cut to so many characters
    std::optional<std::wstring> match;      // whether it denotes the same path as this one
    bool unique = false;                    // a free name in the same folder
    bool status = false;                    // what may be done with it
    bool validate = false;                  // whether its volume takes it
};

// What the library makes of a name, as one row.
Row describe(const std::wstring& text, const Questions& questions);

// The cells of a row in these columns, all of which it has.
Row pick(const Row& row, const std::vector<std::string>& columns);

// The headings of what describe answers.
std::vector<std::string> headingsFor(const Questions& questions);

// The same without those that show parts of others, which leave little room in a table.
std::vector<std::string> tableHeadingsFor(const Questions& questions);

#endif
