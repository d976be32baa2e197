// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

namespace {

// Makes an owned string a copy of another one, or null. Overwriting keeps the storage, which costs
// more to free and to get again than to fill.
void copyString(CStdStr<wchar_t>*& own, const CStdStr<wchar_t>* other)
{
    if (!other)
        ReleaseCStrPtr(&own);
    else if (own)
        own->assign(*other);
    else
        own = new CStdStr<wchar_t>(*other);
}

} // namespace

CRbUiPathname::CRbUiPathname()
    : m_type(PT_NONE), m_pVolume(nullptr), m_pWork(nullptr), m_pRelPath(nullptr),
      m_separator(kSlash), m_bQualified(false)
{}

CRbUiPathname::~CRbUiPathname()
{
    Empty();
}

void CRbUiPathname::Empty()
{
    m_pVolume = nullptr;
    m_type = PT_NONE;
    ReleaseCStrPtr(&m_pRelPath);
    ReleaseCStrPtr(&m_pWork);
}

void CRbUiPathname::AssignCopy(const CRbUiPathname& other)
{
    ktqtbase::EmptyUnlessFinished guard(*this);
    // The object's own strings go before the other's are looked at.
    if (&other == this)
        return;
    copyString(m_pWork, other.m_pWork);
    copyString(m_pRelPath, other.m_pRelPath);
    m_type = other.m_type;
    m_pVolume = other.m_pVolume;
    m_category = other.m_category;
    m_separator = other.m_separator;
    m_bQualified = other.m_bQualified;
    guard.finished();
}
