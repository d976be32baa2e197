// SPDX-License-Identifier: MIT
#include "Entry.h"

namespace ktqtbase::audit {

std::string_view wordOf(Group group)
{
    switch (group) {
    case Group::Works:
        return "works";
    case Group::Differs:
        return "differs";
    case Group::Inert:
        return "inert";
    case Group::NotHere:
        break;
    }
    return "not-here";
}

std::optional<Group> groupOfWord(std::string_view word)
{
    for (const Group group : kGroups) {
        if (wordOf(group) == word)
            return group;
    }
    return std::nullopt;
}

bool isFunction(const Entry& entry)
{
    return entry.kind == "function" || entry.kind == "method";
}

bool isClass(const Entry& entry)
{
    return entry.kind == "class";
}

std::string fullName(const Entry& entry)
{
    return entry.scope.empty() ? entry.name : entry.scope + "::" + entry.name;
}

const std::string& sentence(const Entry& entry)
{
    return entry.group == Group::Inert ? entry.here : entry.windows;
}

} // namespace ktqtbase::audit
