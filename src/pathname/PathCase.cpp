// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

namespace {

// Changes the last component in place.
void changeBase(CRbUiPathname& path, void (*change)(CStdStr<wchar_t>&))
{
    CStdStr<wchar_t> base;
    path.GetBasename(base);
    if (base.empty())
        return;
    change(base);
    path.m_pWork->replace(path.m_pWork->size() - base.size(), base.size(), base);
}

} // namespace

void CRbUiPathname::BaseToLower()
{
    changeBase(*this, KtErrorEat::strMakeLower);
}

void CRbUiPathname::BaseToUpper()
{
    changeBase(*this, KtErrorEat::strMakeUpper);
}
