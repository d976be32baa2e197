// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/ShellStubs.h>

#include "system/stubs/Poisoned.h"

#include <gtest/gtest.h>

TEST(SHGetFolderPath, ReadsAsSuccessAndWritesNoPath)
{
    Poisoned<wchar_t[MAX_PATH]> path;
    EXPECT_EQ(SHGetFolderPath(nullptr, CSIDL_APPDATA, nullptr, 0, *path.get()), S_OK);
    EXPECT_TRUE(path.isUntouched());
}

TEST(SHGetSpecialFolderPath, FailsAndWritesNoPath)
{
    Poisoned<wchar_t[MAX_PATH]> path;
    EXPECT_EQ(SHGetSpecialFolderPath(nullptr, *path.get(), CSIDL_PERSONAL, true), 0);
    EXPECT_TRUE(path.isUntouched());
}

TEST(PathMatchSpec, MatchesNothing)
{
    EXPECT_EQ(PathMatchSpec(L"report.txt", L"*.txt"), 0);
    EXPECT_EQ(PathMatchSpec(L"report.txt", L"report.txt"), 0);
    EXPECT_EQ(PathMatchSpec(L"", L""), 0);
}
