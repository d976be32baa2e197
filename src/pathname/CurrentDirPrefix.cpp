// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Files.h>

#include "pathname/PathInternals.h"

namespace {

constexpr unsigned int kPathRoom = 1024;

} // namespace

bool ktuiSetCurrentDirPrefix()
{
    wchar_t folder[kPathRoom];
    ktqtbase::EmptyUnlessFinished guard(g_CurrentDirPrefix);
    if (GetCurrentDirectoryW(kPathRoom, folder) == 0)
        return false;
    const int result = g_CurrentDirPrefix.ParseRelative(folder, nullptr, false);
    g_CurrentDirPrefix.AppendSlash();
    if (result != 0)
        return false;
    guard.finished();
    return true;
}
