// SPDX-License-Identifier: MIT
//
// A host's macros min and max, behind the headers of C++ and of Qt, which cannot stand them, and
// before this library's.
#include <QtWidgets/QtWidgets>

#include <algorithm>
#include <limits>
#include <locale>

#define min(a, b) (((a) < (b)) ? (a) : (b))
#define max(a, b) (((a) > (b)) ? (a) : (b))

#include <KtQtBase/KtQtBase.h>
#include <KtQtBase/Porting.h>

static_assert(min(1, 2) == 1 && max(1, 2) == 2, "the host's macros are lost");

// Instantiates what the class does inline.
bool cutsText()
{
    return CStdStr<wchar_t>(L"abc").Mid(1, 1) == L"b";
}
