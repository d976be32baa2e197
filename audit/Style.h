// SPDX-License-Identifier: MIT
//
// How a report for a person looks.
#ifndef KTQTBASE_AUDIT_STYLE_H
#define KTQTBASE_AUDIT_STYLE_H

#include "Entry.h"

#include <string>
#include <string_view>

namespace ktqtbase::audit {

struct Style
{
    bool hasColour = false;
    bool hasBlocks = false; // the locale has the signs that bars are made of
    std::size_t width = 80;
};

// For a report that goes to standard output. There are colours on a terminal only, and none where
// NO_COLOR is set.
Style styleOfOutput();

// For a report that goes to a file.
Style styleOfFile();

std::string bold(const Style& style, const std::string& text);
std::string coloured(const Style& style, Group group, const std::string& text);

// A bar of one group.
std::string bar(const Style& style, Group group, std::size_t length);

// How many columns a text in UTF-8 takes.
std::size_t columns(std::string_view text);

// A text in lines of the style's width, each behind so many spaces.
//   further    the number of spaces before the second line and those behind it
std::string wrapped(const Style& style, std::string_view text, std::size_t indentation);
std::string wrapped(const Style& style, std::string_view text, std::size_t indentation,
                    std::size_t further);

// A text without what a terminal would take for a command.
std::string printable(std::string text);

} // namespace ktqtbase::audit

#endif
