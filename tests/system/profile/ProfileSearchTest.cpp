// SPDX-License-Identifier: MIT
//
// The search looks at many places of the text at once; whatever lies where, it finds the key.
#include "support/ScratchProfile.h"

#include <gtest/gtest.h>

#include <string>

TEST(ProfileSearch, FindsAKeyAtEveryPlace)
{
    for (std::size_t length = 0; length < 300; ++length) {
        ScratchProfile profile("[S]\n" + std::string(length, 'x') + "\nkey=5");
        EXPECT_EQ(profile.read({"S", "key", "none", 64}).text, "5") << length;
        EXPECT_EQ(profile.read({"S", "ke", "none", 64}).text, "none") << length;
    }
}

TEST(ProfileSearch, PassesOverKeysThatOnlyBeginOrEndAlike)
{
    std::string text = "[S]\n";
    for (int i = 0; i < 100; ++i)
        text += "key" + std::to_string(i) + "=a\nmy key=b\nvalue=key\nk=key =c\n[key=d\n";
    ScratchProfile profile(text + "\tkey \v = 5\n");
    EXPECT_EQ(profile.read({"S", "key", "none", 64}).text, "5");
    EXPECT_EQ(profile.read({"S", "key10", "none", 64}).text, "a");
    EXPECT_EQ(profile.read({"S", "[key", "none", 64}).text, "d");
    EXPECT_EQ(profile.read({"S", "ey", "none", 64}).text, "none");
}

TEST(ProfileSearch, FindsNoKeyWithoutAnEqualsSign)
{
    ScratchProfile profile("[S]\nkey\nkey \nkey");
    EXPECT_EQ(profile.read({"S", "key", "none", 64}).text, "none");
}

TEST(ProfileSearch, FindsKeysOfOneAndOfManyBytes)
{
    const std::string longKey(700, 'k');
    ScratchProfile profile("[S]\na=1\n" + longKey + "=2\n\xe9=3\n");
    EXPECT_EQ(profile.read({"S", "a", "none", 64}).text, "1");
    EXPECT_EQ(profile.read({"S", longKey.c_str(), "none", 64}).text, "2");
    EXPECT_EQ(profile.read({"S", "\xe9", "none", 64}).text, "3");
    EXPECT_EQ(profile.read({"S", longKey + longKey, "none", 64}).text, "none");
}
