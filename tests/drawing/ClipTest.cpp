// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"
#include "drawing/Warnings.h"

namespace {

using drawing::drawsLike;
using drawing::removeClip;

POINT kSquares[] = {{10, 10}, {50, 10}, {50, 50}, {10, 50}, {30, 30}, {70, 30}, {70, 70}, {30, 70}};
unsigned int kFourEach[] = {4, 4};

const QRect kAll(0, 0, 96, 96);

// The two squares without what both cover, put together from rectangles.
QRegion squaresWithoutOverlap()
{
    return QRegion(10, 10, 40, 40).xored(QRegion(30, 30, 40, 40));
}

// Under a clip, so that the pen and the brush keep a reference to it.
void drawWithPenAndBrush(QPainter& painter)
{
    painter.setPen(QPen(Qt::red, 3));
    painter.setBrush(Qt::blue);
    painter.drawRect(20, 20, 60, 60);
}

void drawAgain(QPainter& painter)
{
    painter.drawRect(4, 4, 30, 30);
    painter.drawLine(0, 95, 95, 0);
    painter.drawText(50, 90, QStringLiteral("Again"));
}

TEST(SetClipRegion, ClipsToAnOddNumberOfPolygons)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.setClipRegion(kSquares, kFourEach, 2);
            p.fillRect(kAll, Qt::green);
        },
        [](QPainter& p) {
            for (const QRect& rect : squaresWithoutOverlap())
                p.fillRect(rect, Qt::green);
        }));
}

TEST(SetClipRegion, LeavesTheOverlapOfTwoSquaresOutside)
{
    KtQtPainterWrapper painter;
    painter.setClipRegion(kSquares, kFourEach, 2);
    EXPECT_TRUE(painter.m_rClipRegion.contains(QPoint(20, 20)));
    EXPECT_FALSE(painter.m_rClipRegion.contains(QPoint(40, 40)));
    EXPECT_TRUE(painter.m_rClipRegion.contains(QPoint(60, 60)));
}

TEST(SetClipRegion, KeepsTheHoleOfANestedPolygon)
{
    POINT points[] = {{10, 10}, {80, 10}, {80, 80}, {10, 80},
                      {30, 30}, {30, 60}, {60, 60}, {60, 30}};
    EXPECT_TRUE(drawsLike(
        [&points](KtQtPainterWrapper& p) {
            p.setClipRegion(points, kFourEach, 2);
            p.fillRect(kAll, Qt::red);
        },
        [](QPainter& p) {
            p.setClipRegion(QRegion(10, 10, 70, 70).subtracted(QRegion(30, 30, 30, 30)));
            p.fillRect(kAll, Qt::red);
        }));
}

TEST(SetClipRegion, TakesPolygonsOfDifferentCountsInOrder)
{
    POINT points[] = {{5, 5}, {45, 5}, {25, 40}, {50, 50}, {90, 50}, {90, 90}, {50, 90}};
    unsigned int counts[] = {3, 0, 4};
    QPainterPath path;
    path.addPolygon(QPolygonF({{5, 5}, {45, 5}, {25, 40}}));
    path.addPolygon(QPolygonF({{50, 50}, {90, 50}, {90, 90}, {50, 90}}));
    EXPECT_TRUE(drawsLike(
        [&](KtQtPainterWrapper& p) {
            p.setClipRegion(points, counts, 3);
            p.fillRect(kAll, Qt::red);
        },
        [&path](QPainter& p) {
            p.setClipRegion(QRegion(path.toFillPolygon().toPolygon(), Qt::OddEvenFill));
            p.fillRect(kAll, Qt::red);
        }));
}

TEST(SetClipRegion, OfNothingStoresAnEmptyRegion)
{
    KtQtPainterWrapper painter;
    for (POINT* points : {static_cast<POINT*>(nullptr), kSquares}) {
        painter.setClipRegion(kSquares, kFourEach, 2);
        ASSERT_FALSE(painter.m_rClipRegion.isEmpty());
        painter.setClipRegion(points, kFourEach, points ? 0 : 3);
        EXPECT_TRUE(painter.m_rClipRegion.isEmpty());
    }
}

TEST(SetClipRegion, OfAPolygonWithoutAreaRemovesTheClip)
{
    POINT line[] = {{10, 10}, {60, 10}, {10, 10}};
    unsigned int three = 3;
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setClipRegion(kSquares, kFourEach, 2);
    EXPECT_TRUE(painter.wrappedPainter()->hasClipping());
    painter.setClipRegion(line, &three, 1);
    EXPECT_TRUE(painter.m_rClipRegion.isEmpty());
    EXPECT_FALSE(painter.wrappedPainter()->hasClipping());
    painter.endDraw();
}

TEST(SetClipRegion, WaitsForTheNextSessionWhereNoneIsOpen)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.setClipRegion(kSquares, kFourEach, 2);
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    painter.beginDraw();
    EXPECT_EQ(painter.wrappedPainter()->clipRegion(), squaresWithoutOverlap());
    painter.endDraw();
}

TEST(SetClipRegion, HoldsInEverySessionUntilItIsRemoved)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.setClipRegion(kSquares, kFourEach, 2);
    for (bool clipped : {true, true, false}) {
        if (!clipped)
            painter.setClipRegion(nullptr, kFourEach, 3);
        painter.beginDraw();
        EXPECT_EQ(painter.wrappedPainter()->hasClipping(), clipped);
        painter.endDraw();
    }
}

TEST(SetClipRegion, ReplacesTheClipThereIs)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.setClipRect(QRect(0, 0, 20, 20), Qt::ReplaceClip);
            p.setClipRegion(kSquares, kFourEach, 1);
            p.fillRect(kAll, Qt::red);
        },
        [](QPainter& p) { p.fillRect(QRect(10, 10, 40, 40), Qt::red); }));
}

TEST(SetClipRegion, RemovedLetsPenAndBrushPaintEverywhereAgain)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.setClipRegion(kSquares, kFourEach, 2);
            drawWithPenAndBrush(*p.wrappedPainter());
            p.setClipRegion(nullptr, nullptr, 0);
            drawAgain(*p.wrappedPainter());
        },
        [](QPainter& p) {
            p.setClipRegion(squaresWithoutOverlap());
            drawWithPenAndBrush(p);
            removeClip(p);
            drawAgain(p);
        }));
}

// The same picture as with a pen and a brush that were never used under the clip.
TEST(SetClipRegion, RemovedPaintsLikeFreshPenAndBrush)
{
    QImage actual = drawing::ground();
    KtQtPainterWrapper wrapper(&actual);
    wrapper.beginDraw();
    wrapper.setClipRegion(kSquares, kFourEach, 2);
    drawWithPenAndBrush(*wrapper.wrappedPainter());
    wrapper.setClipRegion(nullptr, nullptr, 0);
    drawAgain(*wrapper.wrappedPainter());
    wrapper.endDraw();

    QImage expected = drawing::ground();
    QPainter clipped(&expected);
    clipped.setClipRegion(squaresWithoutOverlap());
    drawWithPenAndBrush(clipped);
    clipped.end();
    QPainter fresh(&expected);
    fresh.setPen(QPen(Qt::red, 3));
    fresh.setBrush(Qt::blue);
    drawAgain(fresh);
    fresh.end();
    EXPECT_TRUE(support::samePicture(expected, actual));
}

TEST(SetClipRegion, RemovedAfterSaveComesBackWithRestore)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.setClipRect(QRect(30, 30, 20, 20), Qt::ReplaceClip);
            drawWithPenAndBrush(*p.wrappedPainter());
            p.save();
            p.setClipRegion(nullptr, nullptr, 0);
            p.fillRect(QRect(80, 80, 9, 9), Qt::red);
            p.restore();
            drawAgain(*p.wrappedPainter());
        },
        [](QPainter& p) {
            p.fillRect(QRect(80, 80, 9, 9), Qt::red);
            p.setClipRegion(QRegion(30, 30, 20, 20));
            drawWithPenAndBrush(p);
            drawAgain(p);
        }));
}

struct OperationRow
{
    const char* name;
    Qt::ClipOperation operation;
};

const OperationRow kOperations[] = {
    {"no clip", Qt::NoClip},
    {"replace", Qt::ReplaceClip},
    {"intersect", Qt::IntersectClip},
};

TEST(SetClipRect, JoinsTheClipThereIsByItsOperation)
{
    for (const OperationRow& row : kOperations)
        EXPECT_TRUE(drawsLike(
            [&row](KtQtPainterWrapper& p) {
                p.setClipRegion(kSquares, kFourEach, 2);
                p.setClipRect(QRect(0, 0, 45, 60), row.operation);
                drawWithPenAndBrush(*p.wrappedPainter());
            },
            [&row](QPainter& p) {
                p.setClipRegion(squaresWithoutOverlap());
                if (row.operation == Qt::NoClip)
                    removeClip(p);
                else
                    p.setClipRegion(QRegion(0, 0, 45, 60), row.operation);
                drawWithPenAndBrush(p);
            }))
            << row.name;
}

TEST(SetClipRect, OfNoClipLetsPenAndBrushPaintEverywhereAgain)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.setClipRect(QRect(30, 30, 20, 20), Qt::ReplaceClip);
            drawWithPenAndBrush(*p.wrappedPainter());
            p.setClipRect(QRect(), Qt::NoClip);
            drawAgain(*p.wrappedPainter());
        },
        [](QPainter& p) {
            p.fillRect(QRect(30, 30, 20, 20), Qt::blue);
            p.setPen(QPen(Qt::red, 3));
            p.setBrush(Qt::blue);
            drawAgain(p);
        }));
}

std::vector<std::string> warningsOf(const std::function<void()>& calls)
{
    const drawing::Warnings warnings;
    calls();
    return warnings.texts();
}

TEST(SetClipRect, WithoutASessionWarnsOnceAsQtDoes)
{
    for (const OperationRow& row : kOperations) {
        KtQtPainterWrapper wrapper;
        QPainter plain;
        const QRect rect(0, 0, 45, 60);
        const auto expected = warningsOf([&] { plain.setClipRegion(rect, row.operation); });
        EXPECT_EQ(expected.size(), 1u) << row.name;
        EXPECT_EQ(warningsOf([&] { wrapper.setClipRect(rect, row.operation); }), expected)
            << row.name;
    }
}

TEST(SetClipRect, LeavesTheStoredRegionForTheNextSession)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.setClipRegion(kSquares, kFourEach, 2);
    painter.beginDraw();
    painter.setClipRect(QRect(0, 0, 5, 5), Qt::ReplaceClip);
    EXPECT_EQ(painter.wrappedPainter()->clipRegion(), QRegion(0, 0, 5, 5));
    EXPECT_EQ(painter.m_rClipRegion, squaresWithoutOverlap());
    painter.endDraw();
    painter.beginDraw();
    EXPECT_EQ(painter.wrappedPainter()->clipRegion(), squaresWithoutOverlap());
    painter.endDraw();
}

TEST(SetClipRect, OfAnEmptyRectangleShutsEverythingOut)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setClipRect(QRect(), Qt::ReplaceClip);
    painter.fillRect(kAll, Qt::red);
    painter.endDraw();
    EXPECT_TRUE(support::samePicture(drawing::ground(), image));
}

TEST(SetClipRect, IsTurnedWithThePainter)
{
    EXPECT_TRUE(drawsLike(
        [](KtQtPainterWrapper& p) {
            p.Rotate(30, 40, 20);
            p.setClipRect(QRect(0, 0, 40, 30), Qt::ReplaceClip);
            drawWithPenAndBrush(*p.wrappedPainter());
            p.setClipRect(QRect(), Qt::NoClip);
            drawAgain(*p.wrappedPainter());
        },
        [](QPainter& p) {
            p.translate(40, 20);
            p.rotate(30);
            p.setClipRegion(QRegion(0, 0, 40, 30));
            drawWithPenAndBrush(p);
            removeClip(p);
            drawAgain(p);
        }));
}

} // namespace
