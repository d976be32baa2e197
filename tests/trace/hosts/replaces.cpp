// SPDX-License-Identifier: MIT
//
// Is asked for the attributes of two files, by itself and by the library.
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Files.h>

#include <cstdio>

int main()
{
    std::printf("%u\n", GetFileAttributes(L"/mine"));
    CRnUiPathname name;
    name.Parse(L"/yours", false);
}
