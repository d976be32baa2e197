// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

#include <cwchar>

namespace {

using ktqtbase::OwnedText;

OwnedText copyOf(const CStdStr<wchar_t>* text)
{
    return text ? std::make_unique<CStdStr<wchar_t>>(*text) : nullptr;
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
    Empty();
    OwnedText work = copyOf(other.m_pWork);
    m_pRelPath = copyOf(other.m_pRelPath).release();
    m_pWork = work.release();
    m_type = other.m_type;
    m_pVolume = other.m_pVolume;
    m_category = other.m_category;
    m_separator = other.m_separator;
    m_bQualified = other.m_bQualified;
}

void CRbUiPathname::lstrncpy_x(wchar_t* dst, const wchar_t* src, int n) const
{
    if (n < 0)
        return;
    std::wmemcpy(dst, src, static_cast<std::size_t>(n));
    dst[n] = kEOS;
}
