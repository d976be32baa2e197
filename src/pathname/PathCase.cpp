// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"
#include "string/CaseFolding.h"

namespace {

// Changes the last component in place.
void changeBase(CRbUiPathname& name, void (*change)(CStdStr<wchar_t>&))
{
    CStdStr<wchar_t> base;
    name.GetBasename(base);
    if (base.empty())
        return;
    change(base);
    name.m_pWork->replace(name.m_pWork->size() - base.size(), base.size(), base);
}

} // namespace

void CRbUiPathname::RemoveSpaces()
{
    if (!m_pWork || *m_pWork == L"." || *m_pWork == L"..")
        return;
    const std::size_t start = ktqtbase::lastComponent(*m_pWork, m_separator);
    const std::size_t dot = m_pWork->rfind(kPeriod);
    const bool hasExtension = dot != m_pWork->npos && dot >= start;
    const std::size_t end = hasExtension ? dot : m_pWork->size();
    CStdStr<wchar_t> stem(*m_pWork, start, end - start);
    stem.TrimLeft().TrimRight();
    m_pWork->replace(start, end - start, stem);
}

void CRbUiPathname::BaseToLower()
{
    changeBase(*this, KtErrorEat::strMakeLower);
}

void CRbUiPathname::BaseToUpper()
{
    changeBase(*this, KtErrorEat::strMakeUpper);
}

void upperPathFirstChar(CStdStr<wchar_t>& s)
{
    if (s.size() > 1 && s[1] == kColon && ktqtbase::isLetter(s.front()))
        s.front() = ktqtbase::upperCase(s.front());
}
