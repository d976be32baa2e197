// SPDX-License-Identifier: MIT
//
// A host that includes GNU's <objc/objc.h> as plain C++; where it is not installed, its BOOL.
#if __has_include(<objc/objc.h>)
#include <objc/objc.h>
#else
// NOLINTNEXTLINE(modernize-use-using): as hosts have it.
typedef unsigned char BOOL;
#define __objc_INCLUDE_GNU
#endif

#include <KtQtBase/KtQtBase.h>

static_assert(sizeof(BOOL) == 1, "the host's type is lost");
