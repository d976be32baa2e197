// SPDX-License-Identifier: MIT
//
// Uses both installed libraries; ends with 0 where they work.
#include <KtOsBase/KtOsBase.h>
#include <KtQtBase/PathName.h>

#include <clocale>

int main()
{
    // The folder that this program lies in may have any name.
    if (!std::setlocale(LC_CTYPE, "UTF-8") && !std::setlocale(LC_CTYPE, "C.UTF-8"))
        return 2;
    CRbUiPathname name;
    CStdStr<wchar_t> basename;
    const int parsed = name.Parse(L" \"\\nowhere\\report.txt\" ", false);
    name.GetBasename(basename);
    return parsed == 0 && basename == L"report.txt" && IsDBCSLeadByte('r') == 0 ? 0 : 1;
}
