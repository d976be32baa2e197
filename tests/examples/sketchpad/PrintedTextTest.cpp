// SPDX-License-Identifier: MIT
#include "Host.h"
#include "support/RunProgram.h"

#include <gtest/gtest.h>

TEST(SketchpadPrint, WritesOneSheetWithTheDrawingsText)
{
    Host host;
    ASSERT_EQ(host.play("tool text\ndrag 60,60\ntype On paper\nsave a\nprint a\n").status, 0);
    const ProgramResult text =
        runProgram(PDFTOTEXT, {QString::fromStdString((host.work() / "a.pdf").string()), "-"});
    EXPECT_EQ(QString::fromStdString(text.out).trimmed(), "On paper");
}
