// SPDX-License-Identifier: MIT
//
// A host with a BOOL of its own: the same type, and later a macro.
// NOLINTNEXTLINE(modernize-use-using): as hosts have it.
typedef int BOOL;

#include <KtQtBase/KtQtBase.h>

#define BOOL unsigned char

#include <KtQtBase/KtQtBase.h>

static_assert(sizeof(BOOL) == 1, "the host's macro is lost");
