// SPDX-License-Identifier: MIT
#include "support/RunProgram.h"

#include <QtCore/QRegularExpression>

#include <gmock/gmock.h>

namespace {

// What load-host told of its rounds.
struct Rounds
{
    Rounds(const char* how, int count)
        : run(runProgram(LOAD_HOST, {how, QString::number(count), LOAD_WORKER, LIBRARY}))
    {
        const QRegularExpression line("^(\\d+) rounds, (\\w+), (-?\\d+) bytes\n$");
        const auto match = line.match(QString::fromStdString(run.out));
        isWhole = run.status == 0 && match.captured(1).toInt() == count;
        order = match.captured(2).toStdString();
        bytes = match.captured(3).toInt();
    }

    ProgramResult run;
    bool isWhole;
    std::string order;
    int bytes;
};

// What a round may leave without a leak: the heap is not in the same state after each of them. The
// smallest thing that a load could leave each time, a string, is larger.
constexpr int kNothing = 16;

// A painter with what it holds, and an open path.
constexpr int kPainterAndPath = 600;

TEST(Loading, LeavesNothingInAThousandRounds)
{
    const Rounds rounds("plain", 1000);
    EXPECT_TRUE(rounds.isWhole) << rounds.run.out << rounds.run.err;
    EXPECT_EQ(rounds.order, "CDE");
    EXPECT_LT(rounds.bytes, kNothing);
}

TEST(Loading, LeavesOnlyThePainterAndItsOpenPath)
{
    const Rounds rounds("paint", 1000);
    EXPECT_TRUE(rounds.isWhole) << rounds.run.out << rounds.run.err;
    EXPECT_LT(rounds.bytes, kPainterAndPath);
}

TEST(Loading, GoesOnInAProgramThatShowsWindows)
{
    const Rounds rounds("windows", 15);
    EXPECT_TRUE(rounds.isWhole) << rounds.run.out << rounds.run.err;
    EXPECT_EQ(rounds.order, "CDE");
}

TEST(Loading, OutlivesTheApplicationObject)
{
    const Rounds rounds("orphan", 10);
    EXPECT_TRUE(rounds.isWhole) << rounds.run.out << rounds.run.err;
    EXPECT_EQ(rounds.order, "CDE");
}

} // namespace
