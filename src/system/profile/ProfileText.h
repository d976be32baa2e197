// SPDX-License-Identifier: MIT
//
// The text of a profile file and the pieces that its lines are taken apart with.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILETEXT_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILETEXT_H

#include <cstddef>
#include <memory>
#include <string_view>

namespace ktqtbase {

// A profile file, read into memory as a whole.
class ProfileText
{
public:
    enum class State
    {
        Absent,
        Empty,
        Unreadable,
        Read
    };

    // Reads the file of a name; null names no file.
    explicit ProfileText(const char* fileName);

    State state() const { return m_state; }

    // The bytes before the first zero byte. Only where the state is Read.
    std::string_view text() const { return m_text; }

private:
    State m_state = State::Absent;
    std::unique_ptr<char[]> m_bytes;
    std::string_view m_text;
};

// White space as the C locale has it, whatever locale the process has set, and for bytes above
// 0x7F as well: isspace would ask the process's locale and takes no negative char.
constexpr bool isWhiteSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// A text without the white space at its beginning, at its end, at both.
std::string_view trimmedStart(std::string_view text);
std::string_view trimmedEnd(std::string_view text);
std::string_view trimmed(std::string_view text);

} // namespace ktqtbase

#endif
