// SPDX-License-Identifier: MIT
//
// The library's functions for packing numbers, before a host's macros of these names.
#include <KtQtBase/windows/Packing.h>

#include "HostPacking.h"

CHECK_PACKING();
