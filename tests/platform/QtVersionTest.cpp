// SPDX-License-Identifier: MIT
#include "platform/QtVersion.h"

#include <gtest/gtest.h>

TEST(SetFontWeight, CountsOnTheScaleOfQt5)
{
    const struct
    {
        int weight;
        QFont::Weight named;
    } rows[] = {{25, QFont::Light}, {50, QFont::Normal}, {63, QFont::DemiBold}, {75, QFont::Bold}};
    for (const auto& row : rows) {
        QFont font;
        ktqtbase::platform::setFontWeight(font, row.weight);
        EXPECT_EQ(font.weight(), row.named) << row.weight;
    }
}
