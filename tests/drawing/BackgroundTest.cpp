// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"

namespace {

using drawing::drawsLike;

class Background : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(painter.beginDraw()); }
    void TearDown() override { painter.endDraw(); }

    QImage image = drawing::ground();
    KtQtPainterWrapper painter{&image};
};

void drawGaps(QPainter& painter)
{
    painter.setPen(QPen(Qt::darkBlue, 3, Qt::DotLine));
    painter.setBrush(Qt::CrossPattern);
    painter.drawRect(10, 10, 60, 60);
    painter.drawText(15, 90, QStringLiteral("gaps"));
}

TEST_F(Background, ModeIsReadAsOneLessThanItWasSet)
{
    painter.setBkMode(OPAQUE);
    EXPECT_EQ(painter.getBkMode(), 1);
    painter.setBkMode(TRANSPARENT);
    EXPECT_EQ(painter.getBkMode(), 0);
}

TEST_F(Background, IsASolidBrushThatReadsBackAsAColour)
{
    painter.setBackground(0xEE332211);
    EXPECT_EQ(painter.getBkColor(), QColor(0x11, 0x22, 0x33));
    EXPECT_EQ(painter.wrappedPainter()->background(), QBrush(QColor(0x11, 0x22, 0x33)));
}

TEST_F(Background, FillsGapsOnlyWhereItIsOpaque)
{
    for (int mode : {TRANSPARENT, OPAQUE})
        EXPECT_TRUE(drawsLike(
            [mode](KtQtPainterWrapper& p) {
                p.setBackground(0x0000FFFF);
                p.setBkMode(mode);
                drawGaps(*p.wrappedPainter());
            },
            [mode](QPainter& p) {
                p.setBackground(QBrush(Qt::yellow));
                p.setBackgroundMode(mode == OPAQUE ? Qt::OpaqueMode : Qt::TransparentMode);
                drawGaps(p);
            }))
            << "mode " << mode;
}

TEST(CompositionMode, IsPassedOnAndReadBackUnchanged)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    for (int mode = 0; mode <= QPainter::RasterOp_SourceOrNotDestination; ++mode) {
        painter.setROP2(mode);
        EXPECT_EQ(painter.getROP2(), mode);
        EXPECT_EQ(painter.wrappedPainter()->compositionMode(), mode);
    }
    painter.endDraw();
}

TEST(CompositionMode, PaintsLikeThePlainMode)
{
    for (int mode = 0; mode <= QPainter::RasterOp_SourceOrNotDestination; ++mode)
        EXPECT_TRUE(drawsLike(
            [mode](KtQtPainterWrapper& p) {
                p.fillRect(QRect(60, 60, 9, 9), Qt::white);
                p.setROP2(mode);
                p.drawAlphaRect(CRect(10, 10, 50, 40), 0x00806040, 100);
            },
            [mode](QPainter& p) {
                p.fillRect(QRect(60, 60, 9, 9), Qt::white);
                p.setCompositionMode(static_cast<QPainter::CompositionMode>(mode));
                p.setBrush(QColor(0x40, 0x60, 0x80, 100));
                p.drawRect(10, 10, 41, 31);
            }))
            << "mode " << mode;
}

TEST(Rotate, TurnsAroundThePlaceAndLeavesTheOriginThere)
{
    for (double angle : {0.0, 30.0, 90.0, -45.5, 720.25})
        EXPECT_TRUE(drawsLike(
            [angle](KtQtPainterWrapper& p) {
                p.Rotate(angle, 40, 30);
                p.wrappedPainter()->drawRect(2, 3, 30, 20);
                p.drawPoint(-5, -5);
            },
            [angle](QPainter& p) {
                p.setTransform(QTransform().translate(40, 30).rotate(angle));
                p.drawRect(2, 3, 30, 20);
                p.drawPoint(-5, -5);
            }))
            << "angle " << angle;
}

TEST(Rotate, AddsToTheRotationThereIs)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.Rotate(20, 30, 10);
            p.Rotate(15, 10, 5);
            p.wrappedPainter()->drawRect(0, 0, 40, 20);
        },
        [](QPainter& p) {
            p.translate(30, 10);
            p.rotate(20);
            p.translate(10, 5);
            p.rotate(15);
            p.drawRect(0, 0, 40, 20);
        }));
}

} // namespace
