// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"

#include <memory>

namespace {

using drawing::drawsLike;

const POINT kTriangle[] = {{10, 10}, {80, 20}, {40, 70}};

QPainterPath trianglePath()
{
    QPainterPath path(QPointF(10, 10));
    path.lineTo(80, 20);
    path.lineTo(40, 70);
    path.closeSubpath();
    return path;
}

QPainterPath curvedPath()
{
    QPainterPath path(QPointF(5, 50));
    path.cubicTo(20, 0, 60, 90, 90, 40);
    path.addEllipse(20, 20, 50, 30);
    return path;
}

void setColours(KtQtPainterWrapper& painter)
{
    painter.setPen(PS_SOLID, 5, 0x000000FF);
    painter.setBrush(0x00FF0000u);
}

void setColours(QPainter& painter)
{
    painter.setPen(QPen(Qt::red, 5));
    painter.setBrush(Qt::blue);
}

class Path : public ::testing::Test
{
protected:
    void TearDown() override { painter.endPath(); }

    QImage image = drawing::ground();
    KtQtPainterWrapper painter{&image};
};

TEST(PathBracket, NeedsADevice)
{
    KtQtPainterWrapper painter;
    EXPECT_FALSE(painter.beginPath());
    EXPECT_FALSE(painter.endPath());
    EXPECT_EQ(painter.getPainterPath(), nullptr);
}

TEST_F(Path, OpensEmptyAndNeedsNoSession)
{
    EXPECT_TRUE(painter.beginPath());
    ASSERT_NE(painter.getPainterPath(), nullptr);
    EXPECT_TRUE(painter.getPainterPath()->isEmpty());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
}

TEST_F(Path, StaysAsItIsWhenOpenedAgain)
{
    painter.beginPath();
    QPainterPath* const path = painter.getPainterPath();
    path->addRect(1, 2, 3, 4);
    EXPECT_TRUE(painter.beginPath());
    EXPECT_EQ(painter.getPainterPath(), path);
    EXPECT_EQ(path->boundingRect(), QRectF(1, 2, 3, 4));
}

TEST_F(Path, IsGoneAfterItsEnd)
{
    painter.beginPath();
    EXPECT_TRUE(painter.endPath());
    EXPECT_EQ(painter.getPainterPath(), nullptr);
    EXPECT_TRUE(painter.endPath());
}

TEST_F(Path, StaysOpenWhereTheDeviceIsGone)
{
    painter.beginPath();
    QPainterPath* const path = painter.getPainterPath();
    painter.setWrappedDevice(nullptr);
    EXPECT_FALSE(painter.endPath());
    EXPECT_EQ(painter.getPainterPath(), path);
    painter.setWrappedDevice(&image);
}

TEST_F(Path, OutlivesASession)
{
    painter.beginPath();
    painter.beginDraw();
    painter.drawPolyline(kTriangle, 3);
    painter.endDraw();
    EXPECT_EQ(*painter.getPainterPath(), trianglePath());
}

TEST_F(Path, CanBeReplacedAndTheOldOneIsTheCallersAgain)
{
    painter.beginPath();
    const std::unique_ptr<QPainterPath> before(painter.getPainterPath());
    auto* const mine = new QPainterPath;
    painter.setPainterPath(mine);
    EXPECT_EQ(painter.getPainterPath(), mine);
    EXPECT_TRUE(before->isEmpty());
    painter.drawPolyline(kTriangle, 3);
    EXPECT_EQ(*mine, trianglePath());
}

TEST_F(Path, RecordsAPolylineAsAClosedFigureAndPaintsNothing)
{
    painter.beginDraw();
    painter.beginPath();
    painter.drawPolyline(kTriangle, 3);
    painter.drawPolyline(kTriangle + 1, 2);
    painter.endDraw();
    QPainterPath expected = trianglePath();
    expected.moveTo(80, 20);
    expected.lineTo(40, 70);
    expected.closeSubpath();
    EXPECT_EQ(*painter.getPainterPath(), expected);
    EXPECT_TRUE(support::samePicture(drawing::ground(), image));
}

TEST_F(Path, RecordsTheFirstPointWhateverTheCount)
{
    for (int count : {1, 0, -1}) {
        painter.beginPath();
        painter.drawPolyline(kTriangle, count);
        QPainterPath expected;
        expected.moveTo(10, 10);
        expected.closeSubpath();
        EXPECT_EQ(*painter.getPainterPath(), expected) << count;
        painter.endPath();
    }
}

TEST_F(Path, RecordsNoLineToWhereTheFigureAlreadyIs)
{
    static const POINT standing[] = {{5, 5}, {5, 5}, {9, 5}, {9, 5}};
    painter.beginPath();
    painter.drawPolyline(standing, 4);
    QPainterPath expected;
    expected.moveTo(5, 5);
    expected.lineTo(9, 5);
    expected.closeSubpath();
    EXPECT_EQ(*painter.getPainterPath(), expected);
}

TEST_F(Path, IsLeftAloneByAPolygonThatPaintsAtOnce)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.beginPath();
            p.drawPolygon(kTriangle, 3);
            EXPECT_TRUE(p.getPainterPath()->isEmpty());
            p.endPath();
        },
        [](QPainter& p) {
            p.drawPolygon(QPolygon({{10, 10}, {80, 20}, {40, 70}}));
        }));
}

TEST_F(Path, IsLeftAloneByEveryOtherCall)
{
    unsigned char bits[16] = {};
    QImage source = drawing::ground(drawing::kScreen, QSize(4, 4));
    QRect target(1, 1, 5, 5);
    painter.beginDraw();
    painter.beginPath();
    painter.drawPoint(3, 3);
    painter.drawText(3, 30, L"text", -1);
    painter.drawAlphaRect(CRect(1, 2, 3, 4), 0, 9);
    painter.drawImage(2, 2, bits, 0, 0, QImage::Format_RGB32);
    painter.drawImage(target, source);
    painter.fillRect(target, Qt::red);
    painter.endDraw();
    EXPECT_TRUE(painter.getPainterPath()->isEmpty());
}

TEST(RecordedPolyline, FillsATriangle)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            setColours(p);
            p.beginPath();
            p.drawPolyline(kTriangle, 3);
            p.fillPath(*p.getPainterPath());
            p.endPath();
        },
        [](QPainter& p) { p.fillPath(trianglePath(), Qt::blue); }));
}

TEST(FillPath, FillsWithTheBrushAndDrawsNoOutline)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            setColours(p);
            p.fillPath(curvedPath());
        },
        [](QPainter& p) {
            p.setPen(Qt::NoPen);
            p.setBrush(Qt::blue);
            p.drawPath(curvedPath());
        }));
}

struct RuleRow
{
    const char* name;
    Qt::FillRule rule;
    QRegion inside;
};

const QRegion kFirstSquare(10, 10, 40, 40);
const QRegion kSecondSquare(30, 30, 40, 40);

const RuleRow kRules[] = {
    {"odd-even", Qt::OddEvenFill, kFirstSquare.xored(kSecondSquare)},
    {"winding", Qt::WindingFill, kFirstSquare.united(kSecondSquare)},
};

TEST(FillPath, FollowsThePathsOwnRule)
{
    for (const RuleRow& row : kRules) {
        QPainterPath path;
        path.addRect(10, 10, 40, 40);
        path.addRect(30, 30, 40, 40);
        path.setFillRule(row.rule);
        EXPECT_TRUE(drawsLike(
            [&path](KtQtPainterWrapper& p) {
                setColours(p);
                p.fillPath(path);
            },
            [&row](QPainter& p) {
                for (const QRect& rect : row.inside)
                    p.fillRect(rect, Qt::blue);
            }))
            << row.name;
    }
}

TEST(StrokePath, DrawsTheOutlineAndFillsNothing)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            setColours(p);
            p.strokePath(curvedPath());
        },
        [](QPainter& p) {
            p.setPen(QPen(Qt::red, 5));
            p.setBrush(Qt::NoBrush);
            p.drawPath(curvedPath());
        }));
}

TEST(StrokeAndFillPath, DoesBoth)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            QPainterPath path = curvedPath();
            setColours(p);
            p.strokeAndFillPath(&path);
        },
        [](QPainter& p) {
            setColours(p);
            p.drawPath(curvedPath());
        }));
}

TEST(PaintingAPath, LeavesPenAndBrush)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    setColours(painter);
    QPainterPath path = curvedPath();
    painter.fillPath(path);
    painter.strokePath(path);
    painter.strokeAndFillPath(&path);
    EXPECT_EQ(painter.getPen(), QPen(QBrush(Qt::red), 5));
    EXPECT_EQ(painter.getBrush(), QBrush(Qt::blue));
    EXPECT_EQ(path, curvedPath());
    painter.endDraw();
}

} // namespace
