// SPDX-License-Identifier: MIT
#include "system/profile/ProfileGrammar.h"

#include <algorithm>

namespace ktqtbase {

std::string_view trimmedStart(std::string_view text)
{
    while (!text.empty() && isWhiteSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string_view trimmedEnd(std::string_view text)
{
    while (!text.empty() && isWhiteSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view trimmed(std::string_view text)
{
    return trimmedStart(trimmedEnd(text));
}

ProfileLines::ProfileLines(std::string_view text)
    : m_text(text), m_lineFeedsEnd(text.rfind('\n') + 1)
{}

std::string_view ProfileLines::takeAt(std::size_t place)
{
    const bool endsWithLineFeed = place < m_lineFeedsEnd;
    const char lineEnd = endsWithLineFeed ? '\n' : '\r';
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
