// SPDX-License-Identifier: MIT
//
// A call on the wrapper allocates what its QPainter calls allocate, and no more.
#include "drawing/Twin.h"
#include "support/AllocationCounter.h"

namespace {

using support::AllocationCounter;

const POINT kCorners[] = {{5, 5}, {90, 20}, {40, 80}, {10, 60}};
const QPoint kQtCorners[] = {{5, 5}, {90, 20}, {40, 80}, {10, 60}};
const QBrush kGreen(Qt::green);
const QPen kRed(QBrush(Qt::red), 3);

// The last of a few equal calls, for which every cache is filled.
template<class Calls>
long allocationsOf(Calls calls)
{
    for (int i = 0; i < 3; ++i)
        calls();
    const AllocationCounter counter;
    calls();
    return counter.count();
}

class Cost : public ::testing::Test
{
protected:
    void SetUp() override
    {
        wrapper.beginDraw();
        drawing::beginPlain(plain, second);
    }
    void TearDown() override
    {
        wrapper.endDraw();
        plain.end();
    }

    QImage image = drawing::ground();
    QImage second = drawing::ground();
    KtQtPainterWrapper wrapper{&image};
    QPainter plain;
};

TEST(AllocationCounter, SeesWhatQtAllocates)
{
    const AllocationCounter counter;
    const QByteArray bytes(1000, 'x');
    EXPECT_EQ(counter.count(), 1);
}

TEST_F(Cost, OfAPolylineIsQtsOwn)
{
    EXPECT_EQ(allocationsOf([this] { wrapper.drawPolyline(kCorners, 4); }),
              allocationsOf([this] { plain.drawPolyline(kQtCorners, 4); }));
}

TEST_F(Cost, OfAPolygonIsQtsOwn)
{
    EXPECT_EQ(allocationsOf([this] { wrapper.drawPolygon(kCorners, 4); }),
              allocationsOf([this] { plain.drawPolygon(kQtCorners, 4); }));
}

TEST_F(Cost, OfPointsAndRectanglesIsQtsOwn)
{
    EXPECT_EQ(allocationsOf([this] { wrapper.drawPoint(4, 4); }),
              allocationsOf([this] { plain.drawPoint(4, 4); }));
    EXPECT_EQ(allocationsOf([this] { wrapper.fillRect(QRect(1, 1, 9, 9), Qt::red); }),
              allocationsOf([this] { plain.fillRect(QRect(1, 1, 9, 9), QColor(Qt::red)); }));
    EXPECT_EQ(allocationsOf([this] { wrapper.drawAlphaRect(CRect(1, 1, 9, 9), 0xFF, 9); }),
              allocationsOf([this] {
                  plain.setBrush(QColor(255, 0, 0, 9));
                  plain.drawRect(1, 1, 9, 9);
              }));
}

TEST_F(Cost, OfATextIsQtsOwn)
{
    EXPECT_EQ(allocationsOf([this] { wrapper.drawText(4, 40, L"Quartz", -1); }),
              allocationsOf(
                  [this] { plain.drawText(QPointF(4, 40), QString::fromWCharArray(L"Quartz")); }));
}

TEST_F(Cost, OfARawImageIsQtsOwn)
{
    unsigned char bits[16 * 16 * 4] = {};
    EXPECT_EQ(allocationsOf([&] { wrapper.drawImage(16, 16, bits, 0, 0, 4); }), allocationsOf([&] {
                  plain.drawImage(16, 16, QImage(bits, 16, 16, QImage::Format_RGB32));
              }));
}

TEST_F(Cost, OfAScaledImageIsQtsOwn)
{
    QImage source = drawing::ground(drawing::kScreen, QSize(9, 9));
    QRect target(10, 10, 40, 40);
    EXPECT_EQ(allocationsOf([&] { wrapper.drawImage(target, source); }),
              allocationsOf([&] { plain.drawImage(target, source); }));
}

TEST_F(Cost, OfAPathIsQtsOwn)
{
    QPainterPath path(QPointF(5, 5));
    path.lineTo(90, 10);
    path.lineTo(40, 80);
    EXPECT_EQ(allocationsOf([&] { wrapper.fillPath(path); }),
              allocationsOf([&] { plain.fillPath(path, plain.brush()); }));
    EXPECT_EQ(allocationsOf([&] { wrapper.strokePath(path); }),
              allocationsOf([&] { plain.strokePath(path, plain.pen()); }));
    EXPECT_EQ(allocationsOf([&] { wrapper.strokeAndFillPath(&path); }),
              allocationsOf([&] { plain.drawPath(path); }));
}

TEST_F(Cost, OfStateIsQtsOwn)
{
    EXPECT_EQ(allocationsOf([&] { wrapper.setPen(kRed); }),
              allocationsOf([&] { plain.setPen(kRed); }));
    EXPECT_EQ(allocationsOf([&] { wrapper.setBrush(kGreen); }),
              allocationsOf([&] { plain.setBrush(kGreen); }));
    EXPECT_EQ(allocationsOf([&] { wrapper.setBrush(int(Qt::CrossPattern)); }),
              allocationsOf([&] { plain.setBrush(Qt::CrossPattern); }));
    EXPECT_EQ(allocationsOf([&] { wrapper.setClipRect(QRect(1, 1, 9, 9), Qt::ReplaceClip); }),
              allocationsOf([&] { plain.setClipRegion(QRect(1, 1, 9, 9)); }));
}

TEST_F(Cost, OfReadingStateIsNothing)
{
    EXPECT_EQ(allocationsOf([this] {
                  wrapper.getPen();
                  wrapper.getBrush();
                  wrapper.getBkColor();
                  wrapper.getBkMode();
                  wrapper.getROP2();
                  wrapper.getPainterPath();
              }),
              0);
}

} // namespace
