// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"
#include "string/CaseFolding.h"

#include <typeinfo>
#include <utility>

namespace {

// Whether a host's class may look at itself while it becomes a copy. The library's own two do not.
bool seesItsCopy(const CRbUiPathname& name)
{
    return typeid(name) != typeid(CRbUiPathname) && typeid(name) != typeid(CRnUiPathname);
}

// The parent of a name without separator or colon is what the name is relative to.
void replaceByPrefix(CRbUiPathname& name)
{
    if (!name.m_pRelPath) {
        name.Empty();
        return;
    }
    ReleaseCStrPtr(&name.m_pWork);
    std::swap(name.m_pWork, name.m_pRelPath);
    ParseRelPath(&name.m_pWork, name.m_separator, name.m_category);
}

// Makes a parent the prefix of a name without separator or colon, as replaceByPrefix does with a
// whole copy of the name, of which it would throw one string away.
void copyPrefix(CRbUiPathname& parent, const CRbUiPathname& name)
{
    ktqtbase::EmptyUnlessFinished guard(parent);
    ktqtbase::copyString(parent.m_pWork, name.m_pRelPath);
    ReleaseCStrPtr(&parent.m_pRelPath);
    ktqtbase::copyState(parent, name);
    guard.finished();
    parent.m_type = PT_DIRECTORY;
    ParseRelPath(&parent.m_pWork, parent.m_separator, parent.m_category);
}

} // namespace

void CRbUiPathname::GetParent(CRbUiPathname& parent) const
{
    if (!ktqtbase::isParsed(*this))
        return;
    if (&parent == this) {
        CRbUiPathname self;
        self.AssignCopy(*this);
        self.GetParent(parent);
        return;
    }
    const bool isSeen = seesItsCopy(parent);
    const std::size_t last = ktqtbase::lastComponent(*m_pWork, m_separator);
    if (!isSeen && last == 0 && m_pRelPath) {
        copyPrefix(parent, *this);
        return;
    }
    // What is overwritten at once need not be freed first.
    if (isSeen)
        parent.Empty();
    parent.AssignCopy(*this);
    parent.m_type = PT_DIRECTORY;
    // A host's AssignCopy may have copied nothing.
    if (!parent.m_pWork)
        return;
    if (GetLastCharacter(*parent.m_pWork) == m_separator)
        parent.TrimSlash();
    const bool isSame = !isSeen && parent.m_pWork->size() == m_pWork->size();
    const std::size_t length =
        isSame ? last : ktqtbase::lastComponent(*parent.m_pWork, m_separator);
    if (length > 0)
        parent.m_pWork->resize(length);
    else
        replaceByPrefix(parent);
}

void ParseRelPath(CStdStr<wchar_t>** pp, wchar_t sep, path_category& cat)
{
    CStdStr<wchar_t>& text = **pp;
    const wchar_t first = text.at(0);
    const wchar_t second = text.size() > 1 ? text[1] : kEOS;
    if (first == sep) {
        cat = second == sep ? PC_UNC : PC_ROOTED;
    } else if (second == kColon && ktqtbase::isLetter(first)) {
        cat = PC_DRIVE;
        text.front() = ktqtbase::upperCase(first);
    }
}
