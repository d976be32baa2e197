// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/CharNext.h>

#include <gtest/gtest.h>

TEST(CharNext, IsTheNextPlaceAlsoAtTheTerminator)
{
    const wchar_t text[] = L"\U0001F600b";
    EXPECT_EQ(CharNext(text), text + 1);
    EXPECT_EQ(CharNext(text + 1), text + 2);
    EXPECT_EQ(CharNext(text + 2), text + 3);
}
