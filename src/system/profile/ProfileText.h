// SPDX-License-Identifier: MIT
//
// The text of a profile file.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILETEXT_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILETEXT_H

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

} // namespace ktqtbase

#endif
