// SPDX-License-Identifier: MIT
//
// The lists of names that a profile is asked for.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILENAMES_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILENAMES_H

#include <string_view>

namespace ktqtbase {

class ProfileResult;

// Adds the names of all sections of a profile's text to a list.
void listSections(std::string_view text, ProfileResult& list);

// Adds the names of a section's keys to a list.
// Result: whether the section is there; the list may be empty then.
bool listKeys(std::string_view text, std::string_view section, ProfileResult& list);

} // namespace ktqtbase

#endif
