// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

TEST(Exists, LooksTheTypeUpAgain)
{
    const ScratchFolder folder;
    folder.addFile("file", 0644);
    folder.addFile("shared", 0664);
    struct
    {
        const char* file;
        bool exists;
        path_type after;
    } const rows[] = {
        {"file", true, PT_FILE}, {"shared", true, PT_DIRECTORY}, {"none", false, PT_NOT_FOUND}};
    for (const auto& row : rows) {
        for (path_type before : {PT_NOT_FOUND, PT_FILE, PT_DIRECTORY}) {
            SCOPED_TRACE(testing::Message() << row.file << " as " << before);
            HandMadePath name(PC_ROOTED, folder.widePath(row.file), before);
            EXPECT_EQ(name.Exists(), row.exists);
            EXPECT_EQ(name.m_type, row.after);
        }
    }
}

TEST(Exists, LooksInThePrefix)
{
    const ScratchFolder folder;
    folder.addFile("file");
    HandMadePath name(PC_RELATIVE, L"file", PT_NOT_FOUND);
    name.setPrefix(folder.widePath());
    EXPECT_TRUE(name.Exists());
    EXPECT_EQ(name.m_type, PT_FILE);
}

TEST(Exists, AnswersOtherTypesWithoutALook)
{
    for (path_type type : {PT_NONE, PT_WILDCARD, kUnknownType, kTypeOfHost}) {
        SCOPED_TRACE(type);
        HandMadePath name(PC_ROOTED, type == kTypeOfHost ? L"/no/such/name" : L"/", type);
        EXPECT_EQ(name.Exists(), type == kTypeOfHost);
        EXPECT_EQ(name.m_type, type);
    }
}

TEST(Exists, TakesAWildcardThatAnEditMadeForOne)
{
    HandMadePath name(PC_ROOTED, L"/no/such/");
    name.Append(L"*.txt");
    EXPECT_TRUE(name.Exists());
    EXPECT_EQ(name.m_type, PT_WILDCARD);
    EXPECT_FALSE(name.Exists());
}
