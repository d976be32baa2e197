// SPDX-License-Identifier: MIT
//
// A host's own header of Windows names, before the library's.
#include <KtQtBase/windows/Records.h>

#include "HostTypes.h"

#include <KtQtBase/Porting.h>

static_assert(sizeof(TEXT("ab")) == sizeof(_T("ab")));
