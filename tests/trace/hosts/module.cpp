// SPDX-License-Identifier: MIT
#include "hosts/module.h"

#include <KtQtBase/WindowsFunctions.h>

// The sum keeps the call from being the function's last act.
extern "C" KTQTBASE_EXPORT int callClose(void* handle)
{
    return CloseHandle(handle) + 1;
}
