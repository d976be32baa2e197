// SPDX-License-Identifier: MIT
//
// The caller's result area, filled by one text or by a list of names.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILERESULT_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILERESULT_H

#include <cstddef>
#include <string_view>

namespace ktqtbase {

class ProfileResult
{
public:
    // Fills the area with zeros.
    //   area    out: the caller's, not owned
    //   size    in: its size in bytes, at least 1
    ProfileResult(char* area, std::size_t size);

    // Holds this text, as far as it fits with a terminator.
    void assign(std::string_view text);

    // Adds a name and a tab. A name that does not fit with its tab, a terminator and one byte to
    // spare closes the list with what fits of it.
    void addName(std::string_view name);

    // Takes every double quote off both ends. The count stays.
    void stripQuotes();

    // The bytes held, before quotes were stripped.
    int count() const { return static_cast<int>(m_count); }

private:
    void append(std::string_view text);

    char* m_area;
    std::size_t m_size;
    std::size_t m_count = 0;
};

} // namespace ktqtbase

#endif
