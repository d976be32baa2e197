// SPDX-License-Identifier: MIT
//
// Ends with 0 only where this host's own OS-base library answers, both to the program and to the
// library: a file that does not exist is renamed only by the host's version.
#include <KtOsBase/KtOsBase.h>
#include <KtQtBase/PathName.h>

int main()
{
    CRnUiPathname name;
    const bool parsed = name.Parse(L"/nowhere/old.txt") == 0;
    const bool renamed = name.Rename(L"/nowhere/new.txt");
    return parsed && renamed && IsDBCSLeadByte('x') == 42 ? 0 : 1;
}
