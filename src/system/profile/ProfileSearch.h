// SPDX-License-Identifier: MIT
//
// The search for one key's value, which need not look at every line.
#ifndef KTQTBASE_SYSTEM_PROFILE_PROFILESEARCH_H
#define KTQTBASE_SYSTEM_PROFILE_PROFILESEARCH_H

#include <optional>
#include <string_view>

namespace ktqtbase {

// The value that a walk through a profile's lines would find, many times faster: of the lines before
// the value only those are looked at that hold a bracket, and then those that hold the key.
//   text            in: the profile's text; the value is a part of it
//   section, key    in: without white space at their ends
std::optional<std::string_view> searchProfile(std::string_view text, std::string_view section,
                                              std::string_view key);

} // namespace ktqtbase

#endif
