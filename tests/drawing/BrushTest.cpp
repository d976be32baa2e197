// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"

namespace {

using drawing::drawsLike;

class Brush : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(painter.beginDraw()); }
    void TearDown() override { painter.endDraw(); }

    QImage image = drawing::ground();
    KtQtPainterWrapper painter{&image};
};

TEST_F(Brush, OfAnIntIsThePatternOfThatNumber)
{
    for (int style = Qt::NoBrush; style <= Qt::DiagCrossPattern; ++style)
        EXPECT_TRUE(drawsLike(
            [style](KtQtPainterWrapper& p) {
                p.setBrush(style);
                p.wrappedPainter()->drawRect(10, 10, 60, 60);
            },
            [style](QPainter& p) {
                p.setBrush(static_cast<Qt::BrushStyle>(style));
                p.drawRect(10, 10, 60, 60);
            }))
            << "style " << style;
}

TEST_F(Brush, OfAnIntGoesBackToBlack)
{
    painter.setBrush(0x000000FFu);
    painter.setBrush(int(Qt::Dense4Pattern));
    EXPECT_EQ(painter.getBrush(), QBrush(Qt::black, Qt::Dense4Pattern));
}

TEST_F(Brush, OfAnUnsignedNumberIsSolidInThatColour)
{
    painter.setBrush(0xFF563412u);
    EXPECT_EQ(painter.getBrush(), QBrush(QColor(0x12, 0x34, 0x56), Qt::SolidPattern));
}

TEST_F(Brush, OfAColourFillsLikeThePlainBrush)
{
    for (unsigned color : {0x0u, 0x0000FFu, 0x00FF00u, 0xFF0000u, 0x12345678u, 0xFFFFFFFFu})
        EXPECT_TRUE(drawsLike(
            [color](KtQtPainterWrapper& p) {
                p.setBrush(color);
                p.wrappedPainter()->drawEllipse(10, 10, 60, 40);
            },
            [color](QPainter& p) {
                p.setBrush(QColor(color & 255, color / 256 & 255, color / 65536 & 255));
                p.drawEllipse(10, 10, 60, 40);
            }))
            << "colour " << std::hex << color;
}

TEST_F(Brush, IsSetAndReadAsQtHasIt)
{
    const QBrush brush(QLinearGradient(0, 0, 50, 50));
    painter.setBrush(brush);
    EXPECT_EQ(painter.getBrush(), brush);
    EXPECT_EQ(painter.wrappedPainter()->brush(), brush);
}

// Hosts take pointers to the function, so its argument is a value and not a reference.
TEST_F(Brush, IsSetThroughAPointerToTheFunction)
{
    void (KtQtPainterWrapper::*const set)(QBrush) = &KtQtPainterWrapper::setBrush;
    const QBrush brush(Qt::green, Qt::Dense4Pattern);
    (painter.*set)(brush);
    EXPECT_EQ(painter.getBrush(), brush);
}

TEST_F(Brush, ReadOutIsACopy)
{
    painter.setBrush(0x000000FFu);
    painter.getBrush().setColor(Qt::green);
    EXPECT_EQ(painter.getBrush().color(), QColor(Qt::red));
}

} // namespace
