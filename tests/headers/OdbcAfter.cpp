// SPDX-License-Identifier: MIT
//
// A host that uses unixODBC, in the order of docs/porting.md.
#include <KtQtBase/KtQtBase.h>

#define _WINDOWS_
#include <sql.h>
#include <sqlext.h>

#include <KtQtBase/windows/MessageNumbers.h>
#include <KtQtBase/windows/Packing.h>

#include <type_traits>

static_assert(std::is_convertible_v<HWND, SQLHWND> && std::is_same_v<DWORD, unsigned int>);
static_assert(RGB(1, 0, 0) == 1);
