// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

struct Ending
{
    std::string output;
    int status;
};

Ending run(const std::string& program, const std::string& arguments)
{
    Ending ending;
    FILE* host = popen(("\"" + program + "\" " + arguments + " 2>&1").c_str(), "r");
    if (!host)
        return {"no host", -1};
    char part[256];
    while (std::fgets(part, sizeof(part), host))
        ending.output += part;
    ending.status = pclose(host);
    return ending;
}

Ending runHost(const std::string& arguments)
{
    return run(UNLOAD_HOST, arguments);
}

TEST(Unload, DeletesEachVolumeOnceInOrder)
{
    const Ending ending = runHost("C: D: E:");
    EXPECT_EQ(ending.output, "main ends with 3\nC: of 3\nD: of 3\nE: of 3\n");
    EXPECT_EQ(ending.status, 0);
}

TEST(Unload, PassesOverNullEntries)
{
    const Ending ending = runHost("- E: - D: C: -");
    EXPECT_EQ(ending.output, "main ends with 6\nE: of 6\nD: of 6\nC: of 6\n");
    EXPECT_EQ(ending.status, 0);
}

TEST(Unload, OfAnEmptyListDoesNothing)
{
    const Ending ending = runHost("");
    EXPECT_EQ(ending.output, "main ends with 0\n");
    EXPECT_EQ(ending.status, 0);
}

TEST(Unload, DestroysThePrefixOfRelativeNamesLast)
{
    const Ending ending = run(UNLOAD_ORDER_HOST, "");
    EXPECT_EQ(ending.output, "volume\nprefix, list gone\n");
    EXPECT_EQ(ending.status, 0);
}

} // namespace
