// SPDX-License-Identifier: MIT
#include "Comparison.h"

#include "Gallery.h"

namespace {

constexpr QRgb kMark = 0xFFE00000;

QRgb pale(QRgb color)
{
    const int value = 255 - (255 - qGray(color)) / 4;
    return qRgb(value, value, value);
}

QImage markedPicture(const QImage& one, const QImage& other)
{
    QImage picture = one.convertToFormat(QImage::Format_RGB32);
    const QImage second = other.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y);
            picture.setPixel(x, y, color == second.pixel(x, y) ? pale(color) : kMark);
        }
    return picture;
}

int countMarks(const QImage& picture, const QRect& part)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += picture.pixel(x, y) == kMark;
    return count;
}

QString partLine(int pixels, const QString& name)
{
    return QStringLiteral("%1  %2").arg(pixels, 8).arg(name);
}

QString nameOf(const PlacedCell& placed)
{
    return QStringLiteral("%1: %2, %3")
        .arg(QString::fromWCharArray(placed.family), QString::fromWCharArray(placed.cell->shows),
             QString::fromWCharArray(placed.cell->call));
}

// The frame is a part of its cell.
QRect pixelsOf(const PlacedCell& placed, double ratio)
{
    const QRect frame = placed.place.adjusted(-4, -4, 5, 5);
    return QRect(frame.topLeft() * ratio, frame.size() * ratio);
}

} // namespace

Comparison compareSheets(const QImage& one, const QImage& other, double ratio)
{
    Comparison result;
    result.picture = markedPicture(one, other);
    result.pixels = countMarks(result.picture, result.picture.rect());
    int elsewhere = result.pixels;
    for (const PlacedCell& placed : placedCells()) {
        const int pixels = countMarks(result.picture, pixelsOf(placed, ratio));
        elsewhere -= pixels;
        if (pixels > 0)
            result.parts.append(partLine(pixels, nameOf(placed)));
    }
    if (elsewhere > 0)
        result.parts.append(partLine(elsewhere, QStringLiteral("labels and headings")));
    return result;
}
