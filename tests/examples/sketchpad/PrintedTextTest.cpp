// SPDX-License-Identifier: MIT
#include "Host.h"
#include "shell/PaperPrinter.h"
#include "support/RunProgram.h"

#include <gtest/gtest.h>

namespace {

void expectTextOn(const char* command)
{
    Host host;
    const SessionResult result =
        host.play(std::string("tool text\ndrag 60,60\ntype On paper\nsave a\n") + command + '\n');
    ASSERT_EQ(result.status, 0) << result.err;
    const ProgramResult text =
        runProgram(PDFTOTEXT, {QString::fromStdString((host.work() / "a.pdf").string()), "-"});
    EXPECT_EQ(QString::fromStdString(text.out).trimmed(), "On paper");
}

} // namespace

TEST(SketchpadPrint, WritesOneSheetWithTheDrawingsText)
{
    expectTextOn("print a");
}

TEST(SketchpadPrint, PrintsOnPaperWhereThereIsPrintSupport)
{
    if (PaperPrinter::isThere())
        expectTextOn("paper a.pdf");
    else
        EXPECT_NE(Host().play("paper a.pdf\n").status, 0);
}
