// SPDX-License-Identifier: MIT
#include "system/profile/ProfileResult.h"

#include <algorithm>
#include <cstring>

namespace {

std::string_view withoutQuotes(std::string_view text)
{
    while (!text.empty() && text.front() == '"')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == '"')
        text.remove_suffix(1);
    return text;
}

} // namespace

namespace ktqtbase {

ProfileResult::ProfileResult(char* area, std::size_t size) : m_area(area), m_size(size)
{
    std::memset(area, 0, size);
}

void ProfileResult::assign(std::string_view text)
{
    append(text.substr(0, m_size - 1));
}

void ProfileResult::addName(std::string_view name)
{
    const std::size_t room = m_size - 1 - m_count;
    if (room > name.size() + 1) {
        append(name);
        append("\t");
        return;
    }
    // One byte of room is left, into which no later name fits, not even an empty one.
    append(name.substr(0, room - 1));
}

void ProfileResult::stripQuotes()
{
    const std::string_view text = withoutQuotes({m_area, m_count});
    const std::size_t length = text.size();
    std::memmove(m_area, text.data(), length);
    std::memset(m_area + length, 0, m_count - length);
}

void ProfileResult::append(std::string_view text)
{
    std::copy(text.begin(), text.end(), m_area + m_count);
    m_count += text.size();
}

} // namespace ktqtbase
