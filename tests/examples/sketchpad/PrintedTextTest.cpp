// SPDX-License-Identifier: MIT
#include "Host.h"

#include <gtest/gtest.h>

TEST(SketchpadPrint, WritesOneSheetWithTheDrawingsText)
{
    Host host;
    ASSERT_EQ(host.play("tool text\ndrag 60,60\ntype On paper\nsave a\nprint a\n").status, 0);
    QProcess reader;
    reader.start(PDFTOTEXT, {QString::fromStdString((host.work() / "a.pdf").string()), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    EXPECT_EQ(reader.readAllStandardOutput().trimmed(), "On paper");
}
