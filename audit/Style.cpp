// SPDX-License-Identifier: MIT
#include "Style.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>

#include <langinfo.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace ktqtbase::audit {

namespace {

constexpr std::size_t kWidth = 100;
constexpr std::size_t kLeastWidth = 40;
constexpr std::size_t kLargestWidth = 160;

struct GroupLook
{
    const char* colour;
    const char* block;
    char letter;
};

GroupLook lookOf(Group group)
{
    switch (group) {
    case Group::NotHere:
        return {"\033[31m", "░", '.'};
    case Group::Inert:
        return {"\033[35m", "▒", '-'};
    case Group::Differs:
        return {"\033[33m", "▓", '='};
    case Group::Works:
        break;
    }
    return {"\033[32m", "█", '#'};
}

bool isSet(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value && *value;
}

std::size_t terminalWidth()
{
    winsize size = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return std::clamp<std::size_t>(size.ws_col, kLeastWidth, kLargestWidth);
    return kWidth;
}

bool isUtf8()
{
    std::setlocale(LC_CTYPE, "");
    return std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
}

std::string signal(const Style& style, const char* start, const std::string& text)
{
    return style.hasColour ? start + text + "\033[0m" : text;
}

} // namespace

Style styleOfOutput()
{
    Style style = styleOfFile();
    const char* const terminal = std::getenv("TERM");
    const bool isDumb = terminal && std::strcmp(terminal, "dumb") == 0;
    if (isatty(STDOUT_FILENO) == 1) {
        style.width = terminalWidth();
        style.hasColour = !isSet("NO_COLOR") && !isDumb;
    }
    return style;
}

Style styleOfFile()
{
    Style style;
    style.hasBlocks = isUtf8();
    style.width = kWidth;
    return style;
}

std::string bold(const Style& style, const std::string& text)
{
    return signal(style, "\033[1m", text);
}

std::string coloured(const Style& style, Group group, const std::string& text)
{
    return signal(style, lookOf(group).colour, text);
}

std::string bar(const Style& style, Group group, std::size_t length)
{
    const GroupLook look = lookOf(group);
    std::string text;
    for (std::size_t i = 0; i < length; ++i)
        text += style.hasBlocks ? std::string(look.block) : std::string(1, look.letter);
    return length > 0 ? coloured(style, group, text) : text;
}

std::size_t columns(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char ch) {
        return (static_cast<unsigned char>(ch) & 0xC0) != 0x80;
    }));
}

std::string wrapped(const Style& style, std::string_view text, std::size_t indentation)
{
    return wrapped(style, text, indentation, indentation);
}

std::string wrapped(const Style& style, std::string_view text, std::size_t indentation,
                    std::size_t further)
{
    std::string lines(indentation, ' ');
    std::size_t column = indentation;
    const char* separator = "";
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(text.size(), word.size() + 1));
        column += std::strlen(separator) + columns(word);
        if (*separator && column > style.width) {
            lines += "\n" + std::string(further, ' ');
            column = further + columns(word);
            separator = "";
        }
        lines.append(separator).append(word);
        separator = " ";
    }
    return lines + "\n";
}

std::string printable(std::string text)
{
    for (char& ch : text) {
        const auto byte = static_cast<unsigned char>(ch);
        if (byte < 0x20 || byte == 0x7F)
            ch = '?';
    }
    return text;
}

} // namespace ktqtbase::audit
