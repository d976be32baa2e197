// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/CharNext.h>

const wchar_t* CharNext(const wchar_t* lpsz)
{
    return lpsz + 1;
}
