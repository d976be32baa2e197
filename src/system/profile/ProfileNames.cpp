// SPDX-License-Identifier: MIT
#include "system/profile/ProfileNames.h"

#include "system/profile/ProfileGrammar.h"
#include "system/profile/ProfileResult.h"
#include "system/profile/ProfileSearch.h"

namespace {

bool beginsHeader(std::string_view line)
{
    return !line.empty() && line.front() == '[';
}

} // namespace

void ktqtbase::listSections(std::string_view text, ProfileResult& list)
{
    ProfileLines lines(text);
    while (!lines.atEnd()) {
        if (const auto section = sectionOf(lines.take()))
            list.addName(*section);
    }
}

bool ktqtbase::listKeys(std::string_view text, std::string_view section, ProfileResult& list)
{
    ProfileLines lines(text);
    if (!findSection(lines, section))
        return false;
    while (!lines.atEnd()) {
        const std::string_view line = lines.take();
        // Also one without a closing bracket, which is no header.
        if (beginsHeader(line))
            break;
        if (const auto entry = entryOf(line))
            list.addName(entry->key);
    }
    return true;
}
