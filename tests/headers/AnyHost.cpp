// SPDX-License-Identifier: MIT
//
// A host without any Qt, for compilers that are asked to refuse it.
#include <KtQtBase/WideString.h>
#include <KtQtBase/windows/Files.h>
