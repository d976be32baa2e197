// SPDX-License-Identifier: MIT
//
// A program that ends in the middle of a call gives its own status, and the library's globals go as
// at any end.
#include "support/RowName.h"
#include "support/RunProgram.h"

#include <gtest/gtest.h>

namespace {

struct ExitRow
{
    const char* name;
};

class ExitInside : public testing::TestWithParam<ExitRow>
{};

TEST_P(ExitInside, EndsTheProgramAsAnywhereElse)
{
    const ProgramResult result = runProgram(EXIT_HOST, {GetParam().name, LEAVING_MODULE});
    EXPECT_EQ(result.status, 7) << result.err;
    EXPECT_EQ(result.out, "the volume dies\n");
}

const ExitRow kExitRows[] = {
    {"VolCase"},   {"GetLocalName"},  {"IsCaseSensitive"}, {"SendMessage"}, {"PostMessage"},
    {"beginDraw"}, {"AfxMessageBox"}, {"DoModal"},         {"LoadLibrary"},
};

INSTANTIATE_TEST_SUITE_P(Calls, ExitInside, testing::ValuesIn(kExitRows),
                         ktqtbase::test::RowName());

} // namespace
