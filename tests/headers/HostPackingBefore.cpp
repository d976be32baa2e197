// SPDX-License-Identifier: MIT
//
// A host's macros for packing numbers, before the library's functions of these names.
#include "HostPacking.h"

#include <KtQtBase/windows/Packing.h>

CHECK_PACKING();
