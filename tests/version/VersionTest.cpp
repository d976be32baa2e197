// SPDX-License-Identifier: MIT
#include <KtQtBase/KtQtBase.h>

#include <gtest/gtest.h>

#include <string>

namespace {

// As a host asks.
#if KTQTBASE_VERSION_AT_LEAST(1, 1, 0)
constexpr bool kPreprocessorFindsThisVersion = true;
#else
constexpr bool kPreprocessorFindsThisVersion = false;
#endif

} // namespace

TEST(Version, HasThreePartsAndAText)
{
    const std::string text = std::to_string(KTQTBASE_VERSION_MAJOR) + "." +
                             std::to_string(KTQTBASE_VERSION_MINOR) + "." +
                             std::to_string(KTQTBASE_VERSION_PATCH);
    EXPECT_EQ(KTQTBASE_VERSION_TEXT, text);
}

TEST(Version, IsOneNumberThatGrows)
{
    EXPECT_EQ(KTQTBASE_VERSION_CHECK(1, 2, 3), 0x010203);
    EXPECT_EQ(KTQTBASE_VERSION_CHECK(1, 2, 3), QT_VERSION_CHECK(1, 2, 3));
    EXPECT_LT(KTQTBASE_VERSION_CHECK(1, 255, 255), KTQTBASE_VERSION_CHECK(2, 0, 0));
    EXPECT_EQ(KTQTBASE_VERSION,
              KTQTBASE_VERSION_CHECK(KTQTBASE_VERSION_MAJOR, KTQTBASE_VERSION_MINOR,
                                     KTQTBASE_VERSION_PATCH));
}

TEST(Version, ComparesPartByPart)
{
    constexpr int major = KTQTBASE_VERSION_MAJOR;
    constexpr int minor = KTQTBASE_VERSION_MINOR;
    constexpr int patch = KTQTBASE_VERSION_PATCH;
    const struct
    {
        const char* name;
        bool holds;
        bool expected;
    } rows[] = {
        {"this version", KTQTBASE_VERSION_AT_LEAST(major, minor, patch), true},
        {"the next patch", KTQTBASE_VERSION_AT_LEAST(major, minor, patch + 1), false},
        {"the next minor version", KTQTBASE_VERSION_AT_LEAST(major, minor + 1, 0), false},
        {"the next major version", KTQTBASE_VERSION_AT_LEAST(major + 1, 0, 0), false},
        {"the last of the major version before", KTQTBASE_VERSION_AT_LEAST(major - 1, 255, 255),
         true},
        {"the first", KTQTBASE_VERSION_AT_LEAST(1, 0, 0), true},
        {"in the preprocessor", kPreprocessorFindsThisVersion, true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.holds, row.expected) << row.name;
}
