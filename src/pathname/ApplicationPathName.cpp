// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

CRnUiPathname::CRnUiPathname() = default;

CRnUiPathname::CRnUiPathname(const CRnUiPathname& other) : CRbUiPathname()
{
    CRbUiPathname::AssignCopy(other);
}

CRnUiPathname::~CRnUiPathname() = default;

int CRnUiPathname::Parse(const wchar_t* name, bool flag)
{
    return name ? ParseRelative(name, &g_CurrentDirPrefix, flag) : 1;
}

void CRnUiPathname::AssignCopy(const CRnUiPathname& other)
{
    CRbUiPathname::AssignCopy(other);
}

int CRnUiPathname::Open(IKtFile**, const wchar_t*)
{
    return 0;
}
