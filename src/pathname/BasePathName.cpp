// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

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
    ktqtbase::copyString(m_pWork, other.m_pWork);
    ktqtbase::copyString(m_pRelPath, other.m_pRelPath);
    ktqtbase::copyState(*this, other);
    guard.finished();
}
