// SPDX-License-Identifier: MIT
//
// A host that includes <objc/objc.h> as plain C++: its BOOL, and the macro that tells of it.
// NOLINTNEXTLINE(modernize-use-using): as hosts have it.
typedef signed char BOOL;
#define OBJC_BOOL_DEFINED

#include <KtQtBase/KtQtBase.h>

static_assert(sizeof(BOOL) == 1, "the host's type is lost");
