// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_SHOWNTEXT_H
#define NAMEINFO_SHOWNTEXT_H

#include <optional>
#include <string>

// A text as a terminal shows it, and the number of cells that it takes there.
struct ShownText
{
    std::string bytes;
    int cells = 0;
};

// The cells that an answer takes in full.
int cellsOf(const std::optional<std::wstring>& text);

// Shows an answer in full. None is a dash, an empty one a pair of quotes.
ShownText show(const std::optional<std::wstring>& text);

// Shows an answer in so many cells at most: a name as GetDisplayName shortens it, and a text that
// is no name, or has no such form, with dots at its end.
ShownText show(const std::optional<std::wstring>& text, int room);

#endif
