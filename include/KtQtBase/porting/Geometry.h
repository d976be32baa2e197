// SPDX-License-Identifier: MIT
//
// Points, sizes and rectangles: MFC's CPoint and CSize, the operators of CRect, and the rectangle
// functions of Windows.
//
//     CPoint corner(10, 20);
//     CRect area(0, 0, 640, 480);
//     if (PtInRect(&area, corner))
//         area += CSize(5, 5);
//
// CRect itself stays as it is: a class's own functions cannot be added from outside. Its operators
// + - & | == != += -= &= |= are functions here. It has no Width, Height, Size, TopLeft, CenterPoint
// and the like, no conversion to a pointer, and nothing assigns a RECT to it: take the edges, &rect
// and CopyRect. For OffsetRect, InflateRect, PtInRect, IntersectRect, UnionRect, IsRectEmpty,
// EqualRect, SetRect, SetRectEmpty and CopyRect there are the functions below.
//
// CPoint and CSize make one another, so each switch leaves out both, and a host that has one of the
// two declares the other one as well. KTQTBASE_PORTING_NO_CRECT_OPERATORS leaves out the operators.
#ifndef KTQTBASE_PORTING_GEOMETRY_H
#define KTQTBASE_PORTING_GEOMETRY_H

#include <KtQtBase/windows/Records.h>

#include <KtQtBase/porting/HostMacros.h> // sets the host's macros aside

// The analyser does not see what the constructors of CRect, CPoint and CSize write to their bases.
// NOLINTBEGIN(clang-analyzer-core.UndefinedBinaryOperatorResult,clang-analyzer-core.CallAndMessage)

// ---- The functions of Windows ------------------------------------------------------------------

// Pointers must not be null; a destination may be a source, too. A rectangle is empty if its width
// or its height is 0 or less. Results are 1 and 0.
namespace KtPorting {

// Sets the four edges. Result: 1.
inline int SetRect(RECT* rect, int left, int top, int right, int bottom)
{
    *rect = RECT{left, top, right, bottom};
    return 1;
}

// Sets all edges to 0. Result: 1.
inline int SetRectEmpty(RECT* rect)
{
    return SetRect(rect, 0, 0, 0, 0);
}

// Copies a rectangle. Result: 1.
inline int CopyRect(RECT* destination, const RECT* source)
{
    *destination = *source;
    return 1;
}

// Whether a rectangle is empty.
inline int IsRectEmpty(const RECT* rect)
{
    return rect->left >= rect->right || rect->top >= rect->bottom ? 1 : 0;
}

// Whether all edges are the same.
inline int EqualRect(const RECT* a, const RECT* b)
{
    const bool equal =
        a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom;
    return equal ? 1 : 0;
}

// Whether a point is inside; the right and the bottom edge are outside.
inline int PtInRect(const RECT* rect, POINT point)
{
    const bool inside = point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
                        point.y < rect->bottom;
    return inside ? 1 : 0;
}

// Moves a rectangle. Result: 1.
inline int OffsetRect(RECT* rect, int x, int y)
{
    return SetRect(rect, rect->left + x, rect->top + y, rect->right + x, rect->bottom + y);
}

// Moves each edge outwards; negative numbers move it inwards. Result: 1.
inline int InflateRect(RECT* rect, int x, int y)
{
    return SetRect(rect, rect->left - x, rect->top - y, rect->right + x, rect->bottom + y);
}

// What two rectangles have in common; all edges are 0 if they have nothing. Result: whether they
// have.
inline int IntersectRect(RECT* destination, const RECT* a, const RECT* b)
{
    const RECT both = {a->left > b->left ? a->left : b->left, a->top > b->top ? a->top : b->top,
                       a->right < b->right ? a->right : b->right,
                       a->bottom < b->bottom ? a->bottom : b->bottom};
    if (IsRectEmpty(a) || IsRectEmpty(b) || IsRectEmpty(&both))
        return 1 - SetRectEmpty(destination);
    return CopyRect(destination, &both);
}

// The smallest rectangle around two; an empty one does not count, and all edges are 0 if both are.
// Result: whether one of them is not empty.
inline int UnionRect(RECT* destination, const RECT* a, const RECT* b)
{
    if (IsRectEmpty(a) && IsRectEmpty(b))
        return 1 - SetRectEmpty(destination);
    if (IsRectEmpty(a) || IsRectEmpty(b))
        return CopyRect(destination, IsRectEmpty(a) ? b : a);
    return SetRect(destination, a->left < b->left ? a->left : b->left,
                   a->top < b->top ? a->top : b->top, a->right > b->right ? a->right : b->right,
                   a->bottom > b->bottom ? a->bottom : b->bottom);
}

} // namespace KtPorting

KTQTBASE_PORTING_USING(KtPorting, SetRect);
KTQTBASE_PORTING_USING(KtPorting, SetRectEmpty);
KTQTBASE_PORTING_USING(KtPorting, CopyRect);
KTQTBASE_PORTING_USING(KtPorting, IsRectEmpty);
KTQTBASE_PORTING_USING(KtPorting, EqualRect);
KTQTBASE_PORTING_USING(KtPorting, PtInRect);
KTQTBASE_PORTING_USING(KtPorting, OffsetRect);
KTQTBASE_PORTING_USING(KtPorting, InflateRect);
KTQTBASE_PORTING_USING(KtPorting, IntersectRect);
KTQTBASE_PORTING_USING(KtPorting, UnionRect);

// ---- CPoint and CSize --------------------------------------------------------------------------

#if !defined(KTQTBASE_PORTING_NO_CPoint) && !defined(KTQTBASE_PORTING_NO_CSize)

class CPoint;

// A SIZE with MFC's operations. A number of 32 bits holds cx in its lower word and cy in the upper
// one, each with its sign.
class CSize : public SIZE
{
public:
    constexpr CSize() : SIZE{0, 0} {}
    constexpr CSize(int initialX, int initialY) : SIZE{initialX, initialY} {}
    constexpr CSize(SIZE size) : SIZE(size) {}
    constexpr CSize(POINT point) : SIZE{point.x, point.y} {}
    constexpr CSize(DWORD words)
        : SIZE{static_cast<short>(words & 0xFFFF), static_cast<short>(words >> 16)}
    {}

    void SetSize(int x, int y) { *this = CSize(x, y); }
    void operator+=(SIZE size) { SetSize(cx + size.cx, cy + size.cy); }
    void operator-=(SIZE size) { SetSize(cx - size.cx, cy - size.cy); }

    constexpr CSize operator+(SIZE size) const { return {cx + size.cx, cy + size.cy}; }
    constexpr CSize operator-(SIZE size) const { return {cx - size.cx, cy - size.cy}; }
    constexpr CSize operator-() const { return {-cx, -cy}; }

    // The point, or the rectangle, moved by this size, or back by it.
    CPoint operator+(POINT point) const;
    CPoint operator-(POINT point) const;
    CRect operator+(const RECT* rect) const;
    CRect operator-(const RECT* rect) const;
};

// A POINT with MFC's operations. A number holds x in its lower word and y in the next one, each
// with its sign, as the lParam of a mouse message does.
class CPoint : public POINT
{
public:
    constexpr CPoint() : POINT{0, 0} {}
    constexpr CPoint(int initialX, int initialY) : POINT{initialX, initialY} {}
    constexpr CPoint(POINT point) : POINT(point) {}
    constexpr CPoint(SIZE size) : POINT{size.cx, size.cy} {}
    constexpr CPoint(LPARAM words)
        : POINT{static_cast<short>(words & 0xFFFF), static_cast<short>(words >> 16 & 0xFFFF)}
    {}

    void SetPoint(int newX, int newY) { *this = CPoint(newX, newY); }
    void Offset(int offsetX, int offsetY) { SetPoint(x + offsetX, y + offsetY); }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }
    void operator+=(SIZE size) { Offset(size); }
    void operator-=(SIZE size) { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) { Offset(point); }
    void operator-=(POINT point) { Offset(-point.x, -point.y); }

    constexpr CPoint operator+(SIZE size) const { return {x + size.cx, y + size.cy}; }
    constexpr CPoint operator-(SIZE size) const { return {x - size.cx, y - size.cy}; }
    constexpr CPoint operator+(POINT point) const { return {x + point.x, y + point.y}; }
    constexpr CPoint operator-() const { return {-x, -y}; }

    // The distance between two points is a size.
    constexpr CSize operator-(POINT point) const { return {x - point.x, y - point.y}; }

    // The rectangle, moved by this point, or back by it.
    CRect operator+(const RECT* rect) const { return CSize(x, y) + rect; }
    CRect operator-(const RECT* rect) const { return CSize(x, y) - rect; }
};

inline CPoint CSize::operator+(POINT point) const
{
    return {point.x + cx, point.y + cy};
}

inline CPoint CSize::operator-(POINT point) const
{
    return {point.x - cx, point.y - cy};
}

inline CRect CSize::operator+(const RECT* rect) const
{
    return {rect->left + cx, rect->top + cy, rect->right + cx, rect->bottom + cy};
}

inline CRect CSize::operator-(const RECT* rect) const
{
    return -*this + rect;
}

// Equal members. In each pair the first form keeps C++20 from finding two ways to compare.
constexpr bool operator==(const CPoint& a, const CPoint& b)
{
    return a.x == b.x && a.y == b.y;
}

constexpr bool operator==(const CPoint& a, const POINT& b)
{
    return a == CPoint(b);
}

constexpr bool operator!=(const CPoint& a, const CPoint& b)
{
    return !(a == b);
}

constexpr bool operator!=(const CPoint& a, const POINT& b)
{
    return !(a == b);
}

constexpr bool operator==(const CSize& a, const CSize& b)
{
    return a.cx == b.cx && a.cy == b.cy;
}

constexpr bool operator==(const CSize& a, const SIZE& b)
{
    return a == CSize(b);
}

constexpr bool operator!=(const CSize& a, const CSize& b)
{
    return !(a == b);
}

constexpr bool operator!=(const CSize& a, const SIZE& b)
{
    return !(a == b);
}

#endif

// ---- The operators of CRect --------------------------------------------------------------------

#ifndef KTQTBASE_PORTING_NO_CRECT_OPERATORS

inline bool operator==(const CRect& a, const CRect& b)
{
    return KtPorting::EqualRect(&a, &b) != 0;
}

inline bool operator==(const CRect& a, const RECT& b)
{
    return KtPorting::EqualRect(&a, &b) != 0;
}

inline bool operator!=(const CRect& a, const CRect& b)
{
    return !(a == b);
}

inline bool operator!=(const CRect& a, const RECT& b)
{
    return !(a == b);
}

// By a point or a size the rectangle moves.
inline void operator+=(CRect& rect, POINT point)
{
    KtPorting::OffsetRect(&rect, point.x, point.y);
}

inline void operator+=(CRect& rect, SIZE size)
{
    KtPorting::OffsetRect(&rect, size.cx, size.cy);
}

inline void operator-=(CRect& rect, POINT point)
{
    KtPorting::OffsetRect(&rect, -point.x, -point.y);
}

inline void operator-=(CRect& rect, SIZE size)
{
    KtPorting::OffsetRect(&rect, -size.cx, -size.cy);
}

// By a rectangle each edge moves by that edge's number, outwards for + and inwards for -.
inline void operator+=(CRect& rect, const RECT* by)
{
    rect = CRect(rect.left - by->left, rect.top - by->top, rect.right + by->right,
                 rect.bottom + by->bottom);
}

inline void operator-=(CRect& rect, const RECT* by)
{
    rect = CRect(rect.left + by->left, rect.top + by->top, rect.right - by->right,
                 rect.bottom - by->bottom);
}

// What two rectangles have in common, and the smallest one around both.
inline void operator&=(CRect& rect, const RECT& other)
{
    KtPorting::IntersectRect(&rect, &rect, &other);
}

inline void operator|=(CRect& rect, const RECT& other)
{
    KtPorting::UnionRect(&rect, &rect, &other);
}

// The same into a new rectangle.
inline CRect operator+(CRect rect, POINT point)
{
    rect += point;
    return rect;
}

inline CRect operator+(CRect rect, SIZE size)
{
    rect += size;
    return rect;
}

inline CRect operator+(CRect rect, const RECT* by)
{
    rect += by;
    return rect;
}

inline CRect operator-(CRect rect, POINT point)
{
    rect -= point;
    return rect;
}

inline CRect operator-(CRect rect, SIZE size)
{
    rect -= size;
    return rect;
}

inline CRect operator-(CRect rect, const RECT* by)
{
    rect -= by;
    return rect;
}

inline CRect operator&(CRect rect, const RECT& other)
{
    rect &= other;
    return rect;
}

inline CRect operator|(CRect rect, const RECT& other)
{
    rect |= other;
    return rect;
}

#endif
// NOLINTEND(clang-analyzer-core.UndefinedBinaryOperatorResult,clang-analyzer-core.CallAndMessage)

#include <KtQtBase/porting/HostMacros.h> // gives them back

#endif
