// SPDX-License-Identifier: MIT
#include "system/profile/ProfileNames.h"

#include "system/profile/ProfileResult.h"
#include "system/profile/ProfileText.h"

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

} // namespace

namespace ktqtbase {

ProfileNames::ProfileNames(std::string_view text, const ProfileQuery& query, ProfileResult& list)
    : m_rest(text), m_query(query), m_list(list)
{}

bool ProfileNames::list()
{
    while (!m_rest.empty()) {
        const std::string_view line = trimmed(takeLine());
        if (!line.empty() && !readHeader(line))
            readKeyLine(line);
    }
    return !m_query.section || m_inSection;
}

std::string_view ProfileNames::takeLine()
{
    const std::string_view line = m_rest.substr(0, lineLength());
    m_rest.remove_prefix(line.size());
    return line;
}

// Carriage returns end lines only where no line feed follows any more. That is remembered: looking
// for one again at each line would make a file of carriage returns quadratic.
std::size_t ProfileNames::lineLength()
{
    std::size_t end = m_lineFeedsLeft ? m_rest.find('\n') : kNowhere;
    m_lineFeedsLeft = end != kNowhere;
    if (!m_lineFeedsLeft)
        end = m_rest.find('\r');
    return end == kNowhere ? m_rest.size() : end + 1;
}

// Whether the line is a header. One without a closing bracket is none, yet ends the list of keys.
bool ProfileNames::readHeader(std::string_view line)
{
    if (line.front() != '[')
        return false;
    m_keyListStopped = m_inSection;
    const std::size_t close = line.find(']');
    if (close == kNowhere)
        return false;
    enterSection(line.substr(1, close - 1));
    return true;
}

// A section is entered and never left: keys of later sections count as its own.
void ProfileNames::enterSection(std::string_view name)
{
    if (!m_query.section)
        m_list.addName(name);
    else if (name == *m_query.section)
        m_inSection = true;
}

void ProfileNames::readKeyLine(std::string_view line)
{
    if (!m_inSection || m_keyListStopped)
        return;
    const std::size_t equals = line.find('=');
    const std::string_view name = trimmedEnd(line.substr(0, equals));
    if (equals != kNowhere && !name.empty())
        m_list.addName(name);
}

} // namespace ktqtbase
