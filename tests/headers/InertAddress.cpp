// SPDX-License-Identifier: MIT
//
// A host that hands the address of a function that does nothing to somebody else.
#include <KtQtBase/windows/KernelStubs.h>

int (*const closer)(void*) = &CloseHandle;
