// SPDX-License-Identifier: MIT
//
// The families of names: what a reader looks for on one page, with advice for what is not here.
#ifndef KTQTBASE_AUDIT_FAMILIES_H
#define KTQTBASE_AUDIT_FAMILIES_H

#include <QtCore/QRegularExpression>

#include <deque>
#include <string>
#include <vector>

namespace ktqtbase::audit {

struct Family
{
    std::string id;
    std::string title;
    std::string advice;
    std::vector<std::string> dlls; // in lower case
    std::vector<QRegularExpression> patterns;
};

class Families
{
public:
    // A family that is added again completes what was known of it.
    void add(Family family);

    // The family of that id; if there is none, one whose title is the id.
    const Family& named(const std::string& id);

    // The id of the first family that has a pattern for the name or has its DLL; "other" if none.
    std::string familyOf(const std::string& name, const std::string& dll) const;

    const std::deque<Family>& all() const { return m_families; }

private:
    Family* find(const std::string& id);

    std::deque<Family> m_families;
};

} // namespace ktqtbase::audit

#endif
