// SPDX-License-Identifier: MIT
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::WorkingFolder;

// Without a locale of the user's, in a folder whose name has letters beyond ASCII.
TEST(FirstSteps, FindFilesInAFolderBeyondAsciiWithoutALocale)
{
    const TemporaryFolder scratch;
    const std::filesystem::path folder =
        std::filesystem::canonical(scratch.path()) / u8"Zeichnen é 日本";
    std::filesystem::create_directories(folder / "plugins");
    std::filesystem::copy(FIRSTSTEPS, folder / "firststeps");
    std::filesystem::copy(TEXTS_MODULE,
                          folder / "plugins" / std::filesystem::path(TEXTS_MODULE).filename());

    const WorkingFolder there(folder);
    const ProgramResult result =
        runProgram("/usr/bin/env", {"-u", "LANG", "-u", "LC_CTYPE", "LC_ALL=C", "./firststeps"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, folder.string() + "/docs/Quarterly Report.docx\nthe texts are loaded\n");
}
