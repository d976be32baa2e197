// SPDX-License-Identifier: MIT
//
// A host's own header of Windows names, after the library's.
#include <KtQtBase/Porting.h>

#include "HostTypes.h"

static_assert(sizeof(TEXT("ab")) == sizeof(_T("ab")));
