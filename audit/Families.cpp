// SPDX-License-Identifier: MIT
#include "Families.h"

#include <algorithm>
#include <utility>

namespace ktqtbase::audit {

namespace {

bool hasPatternFor(const Family& family, const QString& name)
{
    return std::any_of(
        family.patterns.begin(), family.patterns.end(),
        [&](const QRegularExpression& pattern) { return pattern.match(name).hasMatch(); });
}

bool hasDll(const Family& family, const std::string& dll)
{
    return std::find(family.dlls.begin(), family.dlls.end(), dll) != family.dlls.end();
}

void complete(std::string& text, std::string&& more)
{
    if (!more.empty())
        text = std::move(more);
}

template<class Item>
void append(std::vector<Item>& list, std::vector<Item>&& more)
{
    std::move(more.begin(), more.end(), std::back_inserter(list));
}

} // namespace

void Families::add(Family family)
{
    Family* const known = find(family.id);
    if (!known) {
        m_families.push_back(std::move(family));
        return;
    }
    complete(known->title, std::move(family.title));
    complete(known->advice, std::move(family.advice));
    append(known->dlls, std::move(family.dlls));
    append(known->patterns, std::move(family.patterns));
}

const Family& Families::named(const std::string& id)
{
    if (const Family* const known = find(id))
        return *known;
    m_families.push_back({id, id, {}, {}, {}});
    return m_families.back();
}

std::string Families::familyOf(const std::string& name, const std::string& dll) const
{
    const QString text = QString::fromStdString(name);
    for (const Family& family : m_families) {
        if (hasPatternFor(family, text) || hasDll(family, dll))
            return family.id;
    }
    return "other";
}

Family* Families::find(const std::string& id)
{
    const auto found = std::find_if(m_families.begin(), m_families.end(),
                                    [&](const Family& family) { return family.id == id; });
    return found == m_families.end() ? nullptr : &*found;
}

} // namespace ktqtbase::audit
