// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"

#include <cstring>

namespace {

using drawing::drawsLike;

const POINT kStar[] = {{48, 5}, {75, 90}, {5, 35}, {90, 35}, {20, 90}};

QPolygon starPolygon()
{
    return QPolygon({{48, 5}, {75, 90}, {5, 35}, {90, 35}, {20, 90}});
}

TEST(Point, LiesInMemoryAsQPoint)
{
    const POINT points[] = {{1, -2}, {3, 4}};
    QPoint qtPoints[2];
    static_assert(sizeof points == sizeof qtPoints);
    std::memcpy(static_cast<void*>(qtPoints), points, sizeof points);
    EXPECT_EQ(qtPoints[0], QPoint(1, -2));
    EXPECT_EQ(qtPoints[1], QPoint(3, 4));
}

TEST(DrawPoint, PaintsWithThePen)
{
    for (int width : {0, 1, 2, 9})
        EXPECT_TRUE(drawsLike(
            [width](KtQtPainterWrapper& p) {
                p.setPen(PS_SOLID, width, 0x00FF00FF);
                p.drawPoint(30, 40);
            },
            [width](QPainter& p) {
                p.setPen(QPen(Qt::magenta, width));
                p.drawPoint(30, 40);
            }))
            << "width " << width;
}

TEST(DrawPolyline, DrawsOpenSegments)
{
    for (int count = 2; count <= 5; ++count)
        EXPECT_TRUE(drawsLike(
            [count](KtQtPainterWrapper& p) {
                p.setPen(PS_SOLID, 3, 0x00008000);
                p.drawPolyline(kStar, count);
            },
            [count](QPainter& p) {
                p.setPen(QPen(QColor(0, 128, 0), 3));
                p.drawPolyline(starPolygon().mid(0, count));
            }))
            << count << " points";
}

TEST(DrawPolyline, OfFewerThanTwoPointsDrawsNothing)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    for (int count : {1, 0, -1})
        painter.drawPolyline(kStar, count);
    painter.endDraw();
    EXPECT_TRUE(support::samePicture(drawing::ground(), image));
}

TEST(DrawPolygon, FillsWhereAnOddNumberOfEdgesLies)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.setPen(PS_SOLID, 2, 0x000000FF);
            p.setBrush(0x0000FF00u);
            p.drawPolygon(kStar, 5);
        },
        [](QPainter& p) {
            p.setPen(QPen(Qt::red, 2));
            p.setBrush(Qt::green);
            p.drawPolygon(starPolygon(), Qt::OddEvenFill);
        }));
}

TEST(DrawPolygon, LeavesTheMiddleOfAStarEmpty)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.drawPolygon(kStar, 5);
    painter.endDraw();
    EXPECT_EQ(image.pixel(48, 50), drawing::ground().pixel(48, 50));
}

struct TextRow
{
    const char* name;
    const wchar_t* text;
    int length;
    QString expected;
};

const TextRow kTexts[] = {
    {"to the terminator", L"Quartz", -1, QStringLiteral("Quartz")},
    {"any negative length", L"Quartz", -5, QStringLiteral("Quartz")},
    {"a length", L"Quartz", 3, QStringLiteral("Qua")},
    {"a terminator inside", L"ab\0cd", 5, QString::fromUtf8("ab\0cd", 5)},
    {"outside the basic plane", L"a\U0001D49C\U0001F600b", -1,
     QString::fromUtf8("a\U0001D49C\U0001F600b")},
    {"outside the basic plane, by length", L"\U0001D49C\U0001D49Cb", 2,
     QString::fromUtf8("\U0001D49C\U0001D49C")},
    {"right to left", L"\u05D0\u05D1x", -1, QString::fromUtf8("\u05D0\u05D1x")},
    {"beyond the last character, as Qt takes it", L"a\x110000", -1,
     QString::fromUcs4(U"a\x110000")},
};

TEST(DrawText, WritesWithTheBaselineAtThePlace)
{
    for (const TextRow& row : kTexts)
        EXPECT_TRUE(drawsLike(
            [&row](KtQtPainterWrapper& p) {
                p.setPen(PS_SOLID, 1, 0x000000FF);
                p.drawText(3, 60, row.text, row.length);
            },
            [&row](QPainter& p) {
                p.setPen(Qt::red);
                p.drawText(QPointF(3, 60), row.expected);
            }))
            << row.name;
}

TEST(DrawText, OfLengthZeroDrawsNothing)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.drawText(3, 60, L"Quartz", 0);
    painter.endDraw();
    EXPECT_TRUE(support::samePicture(drawing::ground(), image));
}

TEST(DrawText, StandsOnItsBaseline)
{
    QImage image(80, 40, drawing::kScreen);
    image.fill(Qt::white);
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.drawText(2, 20, L"HHH", -1);
    painter.endDraw();
    QImage below = image.copy(0, 20, 80, 20);
    QImage white(80, 20, drawing::kScreen);
    white.fill(Qt::white);
    EXPECT_TRUE(support::samePicture(white, below));
    EXPECT_NE(image.copy(0, 0, 80, 20), white);
}

struct CornerRow
{
    const char* name;
    CRect rc;
    QRect qt;
};

const CornerRow kCorners[] = {
    {"left top to right bottom", CRect(10, 10, 20, 20), QRect(QPoint(10, 10), QPoint(20, 20))},
    {"right top to left bottom", CRect(20, 10, 10, 20), QRect(QPoint(10, 20), QPoint(20, 10))},
    {"left bottom to right top", CRect(10, 20, 20, 10), QRect(QPoint(10, 20), QPoint(20, 10))},
    {"right bottom to left top", CRect(20, 20, 10, 10), QRect(QPoint(10, 10), QPoint(20, 20))},
    {"one column", CRect(15, 10, 15, 20), QRect(QPoint(15, 20), QPoint(15, 10))},
    {"one pixel", CRect(15, 15, 15, 15), QRect(QPoint(15, 15), QPoint(15, 15))},
};

TEST(DrawAlphaRect, OrdersCornersByTheirColumnsOnly)
{
    for (const CornerRow& row : kCorners)
        EXPECT_TRUE(drawsLike(
            [&row](KtQtPainterWrapper& p) {
                p.setPen(PS_SOLID, 1, 0x00FF0000);
                p.drawAlphaRect(row.rc, 0x000000FF, 128);
            },
            [&row](QPainter& p) {
                p.setPen(Qt::blue);
                p.setBrush(QColor(255, 0, 0, 128));
                p.drawRect(row.qt);
            }))
            << row.name;
}

TEST(DrawAlphaRect, PaintsElevenPixelsFromTenToTwenty)
{
    QImage image(40, 40, drawing::kScreen);
    image.fill(Qt::white);
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setPen(PS_NULL, 0, 0);
    painter.drawAlphaRect(CRect(10, 10, 20, 20), 0x000000FF, 255);
    painter.endDraw();
    QImage expected(40, 40, drawing::kScreen);
    expected.fill(Qt::white);
    QPainter(&expected).fillRect(10, 10, 11, 11, Qt::red);
    EXPECT_TRUE(support::samePicture(expected, image));
}

TEST(DrawAlphaRect, LeavesItsBrushSet)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.drawAlphaRect(CRect(10, 10, 20, 20), 0xFF0000FF, 128);
    EXPECT_EQ(painter.getBrush(), QBrush(QColor(255, 0, 0, 128), Qt::SolidPattern));
    painter.endDraw();
}

TEST(DrawAlphaRect, TakesEveryAlpha)
{
    for (int alpha : {0, 1, 127, 254, 255})
        EXPECT_TRUE(drawsLike(
            [alpha](KtQtPainterWrapper& p) {
                p.drawAlphaRect(CRect(5, 5, 80, 60), 0x123456, alpha);
            },
            [alpha](QPainter& p) {
                p.setBrush(QColor(0x56, 0x34, 0x12, alpha));
                p.drawRect(5, 5, 76, 56);
            }))
            << "alpha " << alpha;
}

TEST(FillRect, PaintsEveryGlobalColourAndNoOutline)
{
    for (int color = Qt::black; color <= Qt::darkYellow; ++color)
        EXPECT_TRUE(drawsLike(
            [color](KtQtPainterWrapper& p) {
                p.setPen(PS_SOLID, 7, 0x000000FF);
                p.fillRect(QRect(10, 20, 30, 40), static_cast<Qt::GlobalColor>(color));
            },
            [color](QPainter& p) {
                p.fillRect(10, 20, 30, 40, QBrush(static_cast<Qt::GlobalColor>(color)));
            }))
            << "colour " << color;
}

TEST(FillRect, LeavesPenAndBrush)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setPen(PS_SOLID, 7, 0x000000FF);
    painter.setBrush(0x0000FF00u);
    painter.fillRect(QRect(10, 20, 30, 40), Qt::cyan);
    EXPECT_EQ(painter.getPen(), QPen(QBrush(Qt::red), 7));
    EXPECT_EQ(painter.getBrush(), QBrush(Qt::green));
    painter.endDraw();
}

} // namespace
