// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Files.h>

namespace {

constexpr unsigned int kPathRoom = 1024;

} // namespace

bool ktuiSetCurrentDirPrefix()
{
    wchar_t folder[kPathRoom];
    if (GetCurrentDirectoryW(kPathRoom, folder) != 0) {
        const int result = g_CurrentDirPrefix.ParseRelative(folder, nullptr, false);
        g_CurrentDirPrefix.AppendSlash();
        if (result == 0)
            return true;
    }
    g_CurrentDirPrefix.Empty();
    return false;
}
