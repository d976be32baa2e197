// SPDX-License-Identifier: MIT
//
// The search for a section and for one key's value, which need not look at every line.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILESEARCH_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILESEARCH_H

#include "system/profile/ProfileGrammar.h"

#include <optional>
#include <string_view>

namespace ktqtbase {

// Goes on to the line after the section's header. Result: whether there is one.
bool findSection(ProfileLines& lines, std::string_view section);

// The value of a key in the first section of a name, or in any section after it.
//   text            in: the profile's text; the value is a part of it
//   section, key    in: without white space at their ends
std::optional<std::string_view> searchProfile(std::string_view text, std::string_view section,
                                              std::string_view key);

} // namespace ktqtbase

#endif
