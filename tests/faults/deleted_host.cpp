// SPDX-License-Identifier: MIT
//
// Deletes its own file, before or behind its first question about it, and tells what the library says
// of it then.
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/Modules.h>

#include <clocale>
#include <cstdio>
#include <cstring>

#include <unistd.h>

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "C.UTF-8");
    wchar_t file[1024] = {};
    wchar_t folder[1024] = {};
    if (argc == 2 && std::strcmp(argv[1], "behind") == 0)
        GetModuleFileName(nullptr, file, 1024);
    if (unlink(argv[0]) != 0)
        return 1;
    const unsigned int result = GetModuleFileName(nullptr, file, 1024);
    const unsigned int size = GetCurrentDirectoryW(1024, folder);
    std::printf("%u %ls\n%u %ls\n", result, file, size, folder);
}
