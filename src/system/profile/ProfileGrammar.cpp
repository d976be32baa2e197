// SPDX-License-Identifier: MIT
#include "system/profile/ProfileGrammar.h"

#include "string/WhiteSpace.h"

#include <algorithm>

namespace ktqtbase {

std::string_view trimmedStart(std::string_view text)
{
    return trimmedStart(text, isClassicSpace<char>);
}

std::string_view trimmedEnd(std::string_view text)
{
    return trimmedEnd(text, isClassicSpace<char>);
}

std::string_view trimmed(std::string_view text)
{
    return trimmed(text, isClassicSpace<char>);
}

ProfileLines::ProfileLines(std::string_view text)
    // 0 without a line feed, since npos + 1 is 0.
    : m_text(text), m_lineFeedsEnd(text.rfind('\n') + 1)
{}

std::string_view ProfileLines::takeAt(std::size_t place)
{
    const bool endsWithLineFeed = place < m_lineFeedsEnd;
    const char lineEnd = endsWithLineFeed ? '\n' : '\r';
    // A line that ends with a carriage return begins after the last line feed.
    const std::size_t first = endsWithLineFeed ? m_position : std::max(m_position, m_lineFeedsEnd);
    std::size_t start = place;
    while (start > first && m_text[start - 1] != lineEnd)
        --start;
    const std::size_t end = m_text.find(lineEnd, place);
    m_position = end == m_text.npos ? m_text.size() : end + 1;
    return trimmed(m_text.substr(start, m_position - start));
}

std::optional<std::string_view> sectionOf(std::string_view line)
{
    if (line.empty() || line.front() != '[')
        return std::nullopt;
    const std::size_t close = line.find(']');
    if (close == line.npos)
        return std::nullopt;
    return line.substr(1, close - 1);
}

std::optional<ProfileEntry> entryOf(std::string_view line)
{
    const std::size_t equals = line.find('=');
    if (equals == line.npos || sectionOf(line))
        return std::nullopt;
    const std::string_view key = trimmedEnd(line.substr(0, equals));
    if (key.empty())
        return std::nullopt;
    return ProfileEntry{key, trimmedStart(line.substr(equals + 1))};
}

} // namespace ktqtbase
