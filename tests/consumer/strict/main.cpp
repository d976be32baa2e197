// SPDX-License-Identifier: MIT
//
// Uses a function that works and one that does nothing.
#include <KtQtBase/WindowsFunctions.h>

int main()
{
    const unsigned int start = GetTickCount();
    return CloseHandle(nullptr) + static_cast<int>(GetTickCount() - start) / 1000;
}
