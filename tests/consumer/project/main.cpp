// SPDX-License-Identifier: MIT
//
// Uses both installed libraries; ends with 0 where they work.
#include <KtOsBase/KtOsBase.h>
#include <KtQtBase/PathName.h>

int main()
{
    CRbUiPathname name;
    CStdStr<wchar_t> basename;
    const int parsed = name.Parse(L" \"\\nowhere\\report.txt\" ", false);
    name.GetBasename(basename);
    return parsed == 0 && basename == L"report.txt" && IsDBCSLeadByte('r') == 0 ? 0 : 1;
}
