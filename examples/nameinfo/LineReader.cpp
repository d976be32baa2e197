// SPDX-License-Identifier: MIT
#include "LineReader.h"

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace {

// One more than is allowed, for the CR.
constexpr std::size_t kKept = LineReader::kLongestLine + 1;

} // namespace

// Result: whether there are more bytes.
bool LineReader::fill()
{
    ssize_t count = -1;
    do
        count = read(m_file, m_buffer.data(), m_buffer.size());
    while (count < 0 && errno == EINTR);
    m_error = count < 0 ? errno : 0;
    m_begin = 0;
    m_end = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    return m_end > 0;
}

// Takes the bytes of a line that are here. Result: whether its end is among them.
bool LineReader::take(std::string& line, std::size_t& length)
{
    const char* const begin = m_buffer.data() + m_begin;
    const char* const end = m_buffer.data() + m_end;
    const char* const found = std::find(begin, end, '\n');
    const auto count = static_cast<std::size_t>(found - begin);
    line.append(begin, std::min(count, kKept - line.size()));
    length += count;
    m_begin += count + (found != end);
    return found != end;
}

LineReader::Found LineReader::next(std::string& line)
{
    line.clear();
    std::size_t length = 0;
    bool hasEnd = false;
    while (!hasEnd && (m_begin < m_end || fill()))
        hasEnd = take(line, length);
    if (m_error != 0 || (!hasEnd && length == 0))
        return Found::End;
    const bool isWhole = length == line.size();
    if (hasEnd && !line.empty() && line.back() == '\r')
        line.pop_back();
    return isWhole && line.size() <= kLongestLine ? Found::Line : Found::LongLine;
}
