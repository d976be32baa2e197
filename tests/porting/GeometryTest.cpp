// SPDX-License-Identifier: MIT
//
// Points, sizes and rectangles of the porting headers.
#include <KtQtBase/Porting.h>

#include <gtest/gtest.h>

#include <ostream>

static const POINT kPoint = {1, 2};
static const SIZE kSize = {1, 2};

static std::ostream& operator<<(std::ostream& stream, const RECT& r)
{
    return stream << r.left << "," << r.top << "," << r.right << "," << r.bottom;
}

TEST(PortingCPoint, IsAPOINTMadeOfMFCsArguments)
{
    const POINT point = {3, 4};
    const SIZE size = {5, 6};
    const CPoint packed = static_cast<LPARAM>(0xFFFE0001);
    EXPECT_EQ(sizeof(CPoint), sizeof(POINT));
    EXPECT_TRUE(CPoint() == CPoint(0, 0));
    EXPECT_TRUE(CPoint(point) == point);
    EXPECT_TRUE(CPoint(size) == CPoint(5, 6));
    EXPECT_TRUE(packed == CPoint(1, -2));
    EXPECT_TRUE(CPoint(MAKELPARAM(-3, 7)) == CPoint(-3, 7));
}

TEST(PortingCPoint, ComparesWithAPOINT)
{
    const POINT same = {3, 4};
    EXPECT_TRUE(CPoint(3, 4) == same);
    EXPECT_FALSE(CPoint(3, 4) != same);
    EXPECT_TRUE(CPoint(3, 5) != same);
    EXPECT_TRUE(CPoint(2, 4) != CPoint(3, 4));
}

TEST(PortingCPoint, MovesItself)
{
    CPoint point(1, 2);
    point.Offset(10, 20);
    point.Offset(POINT{100, 200});
    point.Offset(SIZE{1000, 2000});
    EXPECT_TRUE(point == CPoint(1111, 2222));
    point -= SIZE{1000, 2000};
    point -= POINT{100, 200};
    point += CSize(5, 6);
    point += CPoint(1, 1);
    EXPECT_TRUE(point == CPoint(17, 29));
    point.SetPoint(-1, -2);
    EXPECT_TRUE(point == CPoint(-1, -2));
}

TEST(PortingCPoint, GivesPointsSizesAndRectangles)
{
    const CPoint point(10, 20);
    const CRect rect(1, 2, 3, 4);
    EXPECT_TRUE(point + kSize == CPoint(11, 22));
    EXPECT_TRUE(point - kSize == CPoint(9, 18));
    EXPECT_TRUE(point + CPoint(1, 2) == CPoint(11, 22));
    EXPECT_TRUE(point - CPoint(1, 2) == CSize(9, 18));
    EXPECT_TRUE(-point == CPoint(-10, -20));
    EXPECT_EQ(point + &rect, CRect(11, 22, 13, 24));
    EXPECT_EQ(point - &rect, CRect(-9, -18, -7, -16));
}

TEST(PortingCSize, IsASIZEMadeOfMFCsArguments)
{
    const SIZE size = {3, 4};
    EXPECT_EQ(sizeof(CSize), sizeof(SIZE));
    EXPECT_TRUE(CSize() == CSize(0, 0));
    EXPECT_TRUE(CSize(size) == size);
    EXPECT_TRUE(CSize(kPoint) == CSize(1, 2));
    EXPECT_TRUE(CSize(0xFFFE0001U) == CSize(1, -2));
}

TEST(PortingCSize, ComparesWithASIZE)
{
    const SIZE same = {3, 4};
    EXPECT_TRUE(CSize(3, 4) == same);
    EXPECT_FALSE(CSize(3, 4) != same);
    EXPECT_TRUE(CSize(4, 4) != same);
    EXPECT_TRUE(CSize(3, 5) != CSize(3, 4));
}

TEST(PortingCSize, ChangesItself)
{
    CSize size(1, 2);
    size += SIZE{10, 20};
    size -= CSize(1, 1);
    EXPECT_TRUE(size == CSize(10, 21));
    size.SetSize(7, 8);
    EXPECT_TRUE(size == CSize(7, 8));
}

TEST(PortingCSize, GivesSizesPointsAndRectangles)
{
    const CSize size(10, 20);
    const CRect rect(1, 2, 3, 4);
    EXPECT_TRUE(size + kSize == CSize(11, 22));
    EXPECT_TRUE(size - kSize == CSize(9, 18));
    EXPECT_TRUE(-size == CSize(-10, -20));
    EXPECT_TRUE(size + kPoint == CPoint(11, 22));
    EXPECT_TRUE(size - kPoint == CPoint(-9, -18));
    EXPECT_EQ(size + &rect, CRect(11, 22, 13, 24));
    EXPECT_EQ(size - &rect, CRect(-9, -18, -7, -16));
}

TEST(PortingCRect, ComparesWithARECT)
{
    const RECT same = {1, 2, 3, 4};
    EXPECT_TRUE(CRect(1, 2, 3, 4) == same);
    EXPECT_FALSE(CRect(1, 2, 3, 4) != same);
    EXPECT_TRUE(CRect(1, 2, 3, 5) != same);
    EXPECT_TRUE(CRect(0, 2, 3, 4) != CRect(1, 2, 3, 4));
}

TEST(PortingCRect, MovesByPointsAndSizes)
{
    CRect rect(1, 2, 3, 4);
    rect += CPoint(10, 20);
    rect += SIZE{1, 1};
    EXPECT_EQ(rect, CRect(12, 23, 14, 25));
    rect -= POINT{10, 20};
    rect -= CSize(1, 1);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_EQ(rect + CPoint(1, 2), CRect(2, 4, 4, 6));
    EXPECT_EQ(rect - CPoint(1, 2), CRect(0, 0, 2, 2));
    EXPECT_EQ(rect + kSize, CRect(2, 4, 4, 6));
    EXPECT_EQ(rect - kSize, CRect(0, 0, 2, 2));
}

TEST(PortingCRect, GrowsAndShrinksByRectangles)
{
    const CRect by(1, 2, 3, 4);
    const CRect rect(10, 10, 20, 20);
    EXPECT_EQ(rect + &by, CRect(9, 8, 23, 24));
    EXPECT_EQ(rect - &by, CRect(11, 12, 17, 16));
    CRect changed = rect;
    changed += &by;
    changed -= &by;
    EXPECT_EQ(changed, rect);
}

struct RectRow
{
    const char* name;
    RECT a;
    RECT b;
    CRect both;
    CRect around;
};

static const RectRow kPairs[] = {
    {"overlapping", {0, 0, 10, 10}, {5, 6, 20, 30}, {5, 6, 10, 10}, {0, 0, 20, 30}},
    {"inside", {0, 0, 10, 10}, {2, 3, 4, 5}, {2, 3, 4, 5}, {0, 0, 10, 10}},
    {"touching", {0, 0, 10, 10}, {10, 0, 20, 10}, {}, {0, 0, 20, 10}},
    {"apart", {0, 0, 1, 1}, {5, 5, 6, 6}, {}, {0, 0, 6, 6}},
    {"one empty", {0, 0, 10, 10}, {50, 5, 50, 8}, {}, {0, 0, 10, 10}},
    {"the other empty", {9, 9, 3, 30}, {1, 2, 3, 4}, {}, {1, 2, 3, 4}},
    {"both empty", {9, 9, 3, 3}, {1, 2, 1, 4}, {}, {}}};

TEST(PortingCRect, IntersectsAndUnites)
{
    for (const RectRow& row : kPairs) {
        CRect rect(row.a.left, row.a.top, row.a.right, row.a.bottom);
        EXPECT_EQ(rect & row.b, row.both) << row.name;
        EXPECT_EQ(rect | row.b, row.around) << row.name;
        CRect other = rect;
        other &= row.b;
        rect |= row.b;
        EXPECT_EQ(other, row.both) << row.name;
        EXPECT_EQ(rect, row.around) << row.name;
    }
}

TEST(PortingRectangles, IntersectAndUniteAndTellWhetherAnythingIsLeft)
{
    for (const RectRow& row : kPairs) {
        CRect both(7, 7, 7, 7);
        CRect around(7, 7, 7, 7);
        EXPECT_EQ(IntersectRect(&both, &row.a, &row.b), row.both != CRect()) << row.name;
        EXPECT_EQ(UnionRect(&around, &row.a, &row.b), row.around != CRect()) << row.name;
        EXPECT_EQ(both, row.both) << row.name;
        EXPECT_EQ(around, row.around) << row.name;
    }
}

TEST(PortingRectangles, AreSetAndCopied)
{
    CRect rect;
    RECT copy = {};
    EXPECT_EQ(SetRect(&rect, 1, 2, 3, 4), 1);
    EXPECT_EQ(CopyRect(&copy, &rect), 1);
    EXPECT_EQ(EqualRect(&copy, &rect), 1);
    EXPECT_EQ(SetRectEmpty(&rect), 1);
    EXPECT_EQ(rect, CRect());
    EXPECT_EQ(EqualRect(&copy, &rect), 0);
}

TEST(PortingRectangles, MoveAndGrow)
{
    CRect rect(1, 2, 3, 4);
    EXPECT_EQ(OffsetRect(&rect, 10, -10), 1);
    EXPECT_EQ(rect, CRect(11, -8, 13, -6));
    EXPECT_EQ(InflateRect(&rect, 2, 3), 1);
    EXPECT_EQ(rect, CRect(9, -11, 15, -3));
    EXPECT_EQ(InflateRect(&rect, -2, -3), 1);
    EXPECT_EQ(rect, CRect(11, -8, 13, -6));
}

TEST(PortingRectangles, AreEmptyWithoutWidthOrHeight)
{
    const RECT rects[] = {{0, 0, 1, 1}, {0, 0, 0, 1}, {0, 0, 1, 0}, {5, 0, 1, 1}, {0, 5, 1, 1}};
    for (const RECT& rect : rects)
        EXPECT_EQ(IsRectEmpty(&rect), &rect != rects) << rect;
}

TEST(PortingRectangles, HoldTheirLeftAndTopEdge)
{
    const RECT rect = {10, 20, 30, 40};
    EXPECT_EQ(PtInRect(&rect, CPoint(10, 20)), 1);
    EXPECT_EQ(PtInRect(&rect, CPoint(29, 39)), 1);
    EXPECT_EQ(PtInRect(&rect, CPoint(30, 20)), 0);
    EXPECT_EQ(PtInRect(&rect, CPoint(10, 40)), 0);
    EXPECT_EQ(PtInRect(&rect, CPoint(9, 20)), 0);
    EXPECT_EQ(PtInRect(&rect, CPoint(10, 19)), 0);
}
