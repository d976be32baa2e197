// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Files.h>

namespace {

constexpr unsigned int kPathRoom = 1024;

} // namespace

int CRbUiPathname::Parse(const wchar_t* name, bool flag)
{
    if (!name)
        return 1;
    CRbUiPathname base;
    wchar_t folder[kPathRoom];
    if (GetCurrentDirectoryW(kPathRoom, folder) != 0) {
        const int result = base.ParseRelative(folder, nullptr, flag);
        base.AppendSlash();
        if (result != 0)
            return 4;
    }
    return ParseRelative(name, &base, flag);
}
