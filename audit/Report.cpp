// SPDX-License-Identifier: MIT
#include "Report.h"

#include <algorithm>

namespace ktqtbase::audit {

void Count::add(Group group)
{
    ++m_total;
    ++m_groups[static_cast<std::size_t>(group)];
}

Summary summaryOf(const Report& report)
{
    Summary summary;
    for (const Use& use : report.uses) {
        const Group group = use.entry.group;
        (isFunction(use.entry) ? summary.functions : summary.others).add(group);
        summary.families[use.entry.family].add(group);
    }
    return summary;
}

bool shows(const Report& report, Group group)
{
    return std::find(report.shown.begin(), report.shown.end(), group) != report.shown.end();
}

std::string placeText(const Report& report, const Place& place)
{
    const ReadFile& file = report.files[place.file];
    std::string text = file.path;
    if (!file.member.empty())
        text += "(" + file.member + ")";
    if (place.line > 0)
        text += ":" + std::to_string(place.line);
    return text;
}

} // namespace ktqtbase::audit
