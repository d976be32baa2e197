// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

#include <utility>

namespace {

// The parent of a name without separator or colon is what the name is relative to.
void replaceByPrefix(CRbUiPathname& path)
{
    if (!path.m_pRelPath) {
        path.Empty();
        return;
    }
    ReleaseCStrPtr(&path.m_pWork);
    std::swap(path.m_pWork, path.m_pRelPath);
    ParseRelPath(&path.m_pWork, path.m_separator, path.m_category);
}

void cutAfterFolder(CRbUiPathname& path, wchar_t separator)
{
    const std::size_t length = ktqtbase::lastComponent(*path.m_pWork, separator);
    if (length > 0)
        path.m_pWork->resize(length);
    else
        replaceByPrefix(path);
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
    parent.Empty();
    parent.AssignCopy(*this);
    parent.m_type = PT_DIRECTORY;
    // A host's AssignCopy may have copied nothing.
    if (!parent.m_pWork)
        return;
    if (GetLastCharacter(*parent.m_pWork) == m_separator)
        parent.TrimSlash();
    cutAfterFolder(parent, m_separator);
}
