// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/NoRttiPath.h"

TEST(NoRttiPath, IsFilledWithAParent)
{
    const HandMadePath name(PC_ROOTED, L"/tmp/dir");
    const NoRttiResult parent = parentInNoRttiPath(name);
    EXPECT_EQ(parent.work, L"/tmp/");
    EXPECT_EQ(parent.type, PT_DIRECTORY);
    EXPECT_EQ(parent.copies, 1);
}

TEST(NoRttiPath, IsFilledWithThePrefixOfABareName)
{
    HandMadePath name(PC_RELATIVE, L"f.txt");
    name.setPrefix(L"/home/u/");
    const NoRttiResult parent = parentInNoRttiPath(name);
    EXPECT_EQ(parent.work, L"/home/u/");
    EXPECT_EQ(parent.copies, 1);
}

TEST(NoRttiPath, TakesItsOwnParent)
{
    const HandMadePath name(PC_ROOTED, L"/tmp/dir/");
    const NoRttiResult parent = parentOfNoRttiPathInItself(name);
    EXPECT_EQ(parent.work, L"/tmp/");
    EXPECT_EQ(parent.type, PT_NOT_FOUND);
    EXPECT_EQ(parent.copies, 1);
}

TEST(NoRttiPath, IsFilledWithAUniqueName)
{
    const HandMadePath name(PC_ROOTED, L"/no/such/none.txt");
    const NoRttiResult unique = uniqueNameInNoRttiPath(name);
    EXPECT_EQ(unique.work, L"/no/such/none.txt");
    EXPECT_EQ(unique.copies, 1);
}
