// SPDX-License-Identifier: MIT
//
// A host that uses unixODBC, by the table of docs/porting-header.md.
#define KTQTBASE_PORTING_NO_LPCWSTR
#define KTQTBASE_PORTING_NO_LPTSTR
#define KTQTBASE_PORTING_NO_LPWSTR
#define KTQTBASE_PORTING_NO_TCHAR
#define KTQTBASE_PORTING_NO_ULONG
#define KTQTBASE_PORTING_NO_WCHAR
#include <KtQtBase/Porting.h>

#define _WINDOWS_
#include <sql.h>
#include <sqlext.h>

static_assert(sizeof(TCHAR) == 1 && sizeof(SQLHWND) == 8);
