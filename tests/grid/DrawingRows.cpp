// SPDX-License-Identifier: MIT
//
// Points, texts, pixels and images of so many.
#include "grid/Grid.h"

#include <KtQtBase/drawing/DoubleBufferImage.h>
#include <KtQtBase/drawing/Painter.h>

#include <QtCore/QVector>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <iterator>

namespace ktqtbase::test {

namespace {

constexpr int kSide = 80;

QImage paper()
{
    QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

// What the library draws, and what Qt draws with the same pen and brush.
template<class Draw>
QImage drawn(const Draw& draw)
{
    QImage image = paper();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    draw(painter);
    painter.endDraw();
    delete painter.wrappedPainter();
    return image;
}

template<class Draw>
QImage drawnByQt(const Draw& draw)
{
    QImage image = paper();
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 0));
    painter.setBrush(Qt::black);
    draw(painter);
    return image;
}

// ---- Points ------------------------------------------------------------------------------------

// A zigzag that never leaves the image.
std::vector<POINT> zigzag(std::size_t count)
{
    std::vector<POINT> points(count);
    for (std::size_t at = 0; at < count; ++at) {
        points[at].x = static_cast<int>(at * 7 % kSide);
        points[at].y = static_cast<int>(at * 31 % kSide);
    }
    return points;
}

QVector<QPoint> qtPoints(const std::vector<POINT>& points)
{
    QVector<QPoint> result;
    for (const POINT& point : points)
        result.append(QPoint(point.x, point.y));
    return result;
}

void drawLines(const Cell& cell)
{
    const std::vector<POINT> points = zigzag(cell.size);
    const Input<POINT> guarded(cell, points.data(), points.size());
    const auto count = static_cast<int>(cell.size);
    const QImage image =
        drawn([&](KtQtPainterWrapper& painter) { painter.drawPolyline(guarded.data(), count); });
    EXPECT_TRUE(image == drawnByQt([&](QPainter& painter) {
                    if (count >= 2)
                        painter.drawPolyline(QPolygon(qtPoints(points)));
                }));
}

void drawCorners(const Cell& cell)
{
    const std::vector<POINT> points = zigzag(cell.size);
    const Input<POINT> guarded(cell, points.data(), points.size());
    const auto count = static_cast<int>(cell.size);
    const QImage image =
        drawn([&](KtQtPainterWrapper& painter) { painter.drawPolygon(guarded.data(), count); });
    EXPECT_TRUE(image == drawnByQt([&](QPainter& painter) {
                    if (count >= 2)
                        painter.drawPolygon(QPolygon(qtPoints(points)), Qt::OddEvenFill);
                }));
}

// ---- A clip of squares that do not meet --------------------------------------------------------

std::vector<POINT> cornersOfSquare(int left)
{
    std::vector<POINT> corners(4);
    corners[0].x = corners[3].x = left;
    corners[1].x = corners[2].x = left + 2;
    corners[2].y = corners[3].y = 2;
    return corners;
}

void clipToSquares(const Cell& cell)
{
    std::vector<POINT> points;
    QRegion region;
    for (std::size_t at = 0; at < cell.size; ++at) {
        const int left = static_cast<int>(at) * 5;
        const std::vector<POINT> corners = cornersOfSquare(left);
        points.insert(points.end(), corners.begin(), corners.end());
        region += QRect(left, 0, 2, 2);
    }
    const std::vector<unsigned int> counts(cell.size, 4);
    const Input<POINT> guarded(cell, points.data(), points.size());
    const Input<unsigned int> guardedCounts(cell, counts.data(), counts.size());
    KtQtPainterWrapper painter;
    painter.m_rClipRegion = QRegion(1, 2, 3, 4);
    painter.setClipRegion(cell.isNull() ? nullptr : guarded.data(), guardedCounts.data(),
                          static_cast<unsigned int>(cell.size));
    EXPECT_EQ(painter.m_rClipRegion, cell.isNull() ? QRegion() : region);
    delete painter.wrappedPainter();
}

// ---- Texts -------------------------------------------------------------------------------------

std::u32string letters(std::size_t count)
{
    std::u32string text(count, U'I');
    for (std::size_t at = 1; at < count; at += 3)
        text[at] = U'\u00e9';
    return text;
}

void drawLetters(const Cell& cell)
{
    const std::u32string text = letters(cell.size);
    const Input<wchar_t> guarded(cell, std::wstring(text.begin(), text.end()));
    const QImage image = drawn([&](KtQtPainterWrapper& painter) {
        painter.drawText(2, 40, guarded.data(), static_cast<int>(cell.size));
    });
    EXPECT_TRUE(image == drawnByQt([&](QPainter& painter) {
                    painter.drawText(2, 40, QString::fromStdU32String(text));
                }));
}

// A negative length asks for the text up to its NUL.
void drawTerminatedLetters(const Cell& cell)
{
    const std::u32string text = letters(6);
    const Input<wchar_t> guarded(cell, std::wstring(text.begin(), text.end()) + L'\0');
    const auto length = -1 - static_cast<int>(cell.size);
    const QImage image = drawn(
        [&](KtQtPainterWrapper& painter) { painter.drawText(2, 40, guarded.data(), length); });
    EXPECT_TRUE(image == drawnByQt([&](QPainter& painter) {
                    painter.drawText(2, 40, QString::fromStdU32String(text));
                }));
}

// ---- Fonts ---------------------------------------------------------------------------------------

// A family's name that fills its 32 characters has no NUL behind it.
void setFamily(const Cell& cell)
{
    LOGFONTW record = {};
    std::fill(std::begin(record.lfFaceName), std::end(record.lfFaceName), L'\0');
    std::fill_n(record.lfFaceName, cell.size, L'\u00e9');
    record.lfHeight = 18;
    const Input<LOGFONTW> guarded(cell, &record, 1);
    drawn([&](KtQtPainterWrapper& painter) {
        painter.setFontIndirect(guarded.data());
        EXPECT_EQ(painter.wrappedPainter()->font().family(),
                  QString(static_cast<int>(cell.size), QChar(0xE9)));
    });
}

// ---- Pixels ------------------------------------------------------------------------------------

// Three bytes a pixel, each row padded to four.
std::basic_string<unsigned char> pixels(std::size_t width, std::size_t height)
{
    std::basic_string<unsigned char> bytes((width * 3 + 3) / 4 * 4 * height, 0);
    for (std::size_t at = 0; at < bytes.size(); ++at)
        bytes[at] = static_cast<unsigned char>(at * 37);
    return bytes;
}

void drawPixels(const Cell& cell)
{
    constexpr int kHeight = 3;
    const auto width = static_cast<int>(cell.size);
    const std::basic_string<unsigned char> bytes = pixels(cell.size, kHeight);
    const Input<unsigned char> guarded(cell, bytes);
    const QImage image = drawn([&](KtQtPainterWrapper& painter) {
        painter.drawImage(width, kHeight, guarded.data(), 0, 0, QImage::Format_RGB888);
    });
    EXPECT_TRUE(image == drawnByQt([&](QPainter& painter) {
                    const QImage source(bytes.data(), width, kHeight, (width * 3 + 3) / 4 * 4,
                                        QImage::Format_RGB888);
                    painter.drawImage(width, kHeight, source);
                }));
}

// ---- Back and front images ---------------------------------------------------------------------

// Rows of eight pixels; 2^31 - 1 of them are more than 2^31 - 1 bytes, and there is no image.
void makeImages(const Cell& cell)
{
    KtGrQtDoubleBufferImage buffer(nullptr);
    buffer.createImages(8, static_cast<int>(cell.size), 4);
    ASSERT_EQ(buffer.memImage() != nullptr, cell.column != Column::Greatest);
    if (!buffer.memImage())
        return;
    const QImage& image = *buffer.memImage();
    EXPECT_EQ(image.isNull(), cell.size == 0);
    EXPECT_EQ(buffer.frontImage()->isNull(), cell.size == 0);
    EXPECT_EQ(image.height(), static_cast<int>(cell.size));
    const std::string bytes(cell.size * 8 * 4, '\x55');
    std::memcpy(buffer.memBits(), bytes.data(), bytes.size());
    EXPECT_EQ(QByteArray(bytes.data(), static_cast<int>(bytes.size())),
              QByteArray(reinterpret_cast<const char*>(image.constBits()),
                         static_cast<int>(bytes.size())));
}

GridRow ofPainter(const char* function, const char* variant, std::vector<Column> columns,
                  std::function<void(const Cell&)> call)
{
    return {function,   variant,      Locales::One,   std::move(columns),
            always(10), kGreatestInt, std::move(call)};
}

} // namespace

// Null is not tested for there, and nobody has as many points as the greatest size.
std::vector<GridRow> drawingRows()
{
    std::vector<Column> sizesAndNull = kTrueSizes;
    sizesAndNull.push_back(Column::Null);
    return {ofPainter("KtQtPainterWrapper::drawPolyline", "", kTrueSizes, drawLines),
            ofPainter("KtQtPainterWrapper::drawPolygon", "", kTrueSizes, drawCorners),
            ofPainter("KtQtPainterWrapper::setClipRegion", "", sizesAndNull, clipToSquares),
            ofPainter("KtQtPainterWrapper::drawText", "", kTrueSizes, drawLetters),
            ofPainter("KtQtPainterWrapper::drawText", "Terminated", kSizes, drawTerminatedLetters),
            {"KtQtPainterWrapper::setFontIndirect",
             "",
             Locales::One,
             {Column::Zero, Column::One, Column::ExactMinusOne, Column::Exact},
             always(LF_FACESIZE),
             0,
             setFamily},
            ofPainter("KtQtPainterWrapper::drawImage", "", kTrueSizes, drawPixels),
            ofPainter("KtGrQtDoubleBufferImage::createImages", "", kSizes, makeImages)};
}

} // namespace ktqtbase::test
