// SPDX-License-Identifier: MIT
//
// One walk through a profile's text, line by line, without copying any of it.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILENAMES_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILENAMES_H

#include <optional>
#include <string_view>

namespace ktqtbase {

class ProfileResult;

// What is asked for. Without a section the answer is the list of sections, without a key the list
// of the section's keys.
struct ProfileQuery
{
    std::optional<std::string_view> section;
    std::optional<std::string_view> key;
};

// Makes the list that a query without a section or without a key asks for.
class ProfileNames
{
public:
    // The text and the list must outlive the scanner.
    ProfileNames(std::string_view text, const ProfileQuery& query, ProfileResult& list);

    // Walks to the end of the text and fills the list.
    // Result: whether the list is the answer, be it empty; not where the section is missing.
    bool list();

private:
    std::string_view takeLine();
    std::size_t lineLength();
    bool readHeader(std::string_view line);
    void enterSection(std::string_view name);
    void readKeyLine(std::string_view line);

    std::string_view m_rest;
    const ProfileQuery m_query;
    ProfileResult& m_list;
    bool m_inSection = false;
    bool m_keyListStopped = false;
    bool m_lineFeedsLeft = true;
};

} // namespace ktqtbase

#endif
