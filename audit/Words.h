// SPDX-License-Identifier: MIT
//
// The words that reports for people share.
#ifndef KTQTBASE_AUDIT_WORDS_H
#define KTQTBASE_AUDIT_WORDS_H

#include "Entry.h"

#include <string>

namespace ktqtbase::audit {

// "works", "differs", "inert", "not here"
std::string title(Group group);

// What so many names do: "1 works", "2 work", "3 not here"
std::string countedGroup(std::size_t count, Group group);

// "1 file", "2 files"
std::string counted(std::size_t count, const char* one, const char* several);

// What an entry's group means for whoever uses the name, in sentences; empty if the catalogue says
// no more than the group does.
std::string meaning(const Entry& entry);

} // namespace ktqtbase::audit

#endif
