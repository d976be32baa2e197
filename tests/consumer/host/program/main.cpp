// SPDX-License-Identifier: MIT
//
// Ends with 0 only where this host's own OS-base library answers, both to the program and to the
// library.
#include <KtOsBase/KtOsBase.h>
#include <KtQtBase/WindowsFunctions.h>

int main()
{
    return IsDBCSLeadByte('x') == 42 && KtKernel32::IsDBCSLeadByte('x') == 42 ? 0 : 1;
}
