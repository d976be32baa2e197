// SPDX-License-Identifier: MIT
//
// The lines of a profile, and what a line says.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILEGRAMMAR_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILEGRAMMAR_H

#include <cstddef>
#include <optional>
#include <string_view>

namespace ktqtbase {

// A text without the white space at its start, at its end, at both. White space is the classic
// locale's, whatever locale the process has set.
std::string_view trimmedStart(std::string_view text);
std::string_view trimmedEnd(std::string_view text);
std::string_view trimmed(std::string_view text);

// The lines of a text, without copying any of it. A line ends with a line feed as long as one
// follows, and with a carriage return from there on.
class ProfileLines
{
public:
    // The text must outlive the lines.
    explicit ProfileLines(std::string_view text);

    bool atEnd() const { return m_position == m_text.size(); }

    std::string_view text() const { return m_text; }

    // Where the next line begins.
    std::size_t position() const { return m_position; }

    // Takes the next line, or the one that a later place lies in; the lines before that are passed
    // over. Result: the line, without white space at its ends.
    std::string_view take() { return takeAt(m_position); }
    std::string_view takeAt(std::size_t place);

private:
    std::string_view m_text;
    std::size_t m_lineFeedsEnd;
    std::size_t m_position = 0;
};

// The section that a trimmed line opens. A line with "[" and without "]" opens none.
std::optional<std::string_view> sectionOf(std::string_view line);

// A key and its value.
struct ProfileEntry
{
    std::string_view key;
    std::string_view value;
};

// The entry that a trimmed line holds.
std::optional<ProfileEntry> entryOf(std::string_view line);

} // namespace ktqtbase

#endif
