// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <vector>

namespace {

constexpr QImage::Format kFormat = QImage::Format_ARGB32_Premultiplied;

// An image of a cell has as many pixels as the cell has there, or it would be blurred.
double ratioOf(const KtQtPainterWrapper& painter)
{
    return painter.wrappedDevice()->devicePixelRatioF();
}

// Rows of opaque 0xAARRGGBB pixels.
std::vector<unsigned int> rainbow(int width, int height)
{
    std::vector<unsigned int> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(QColor::fromHsv(x * 359 / width, 255 - y * 180 / height, 255).rgb());
    return pixels;
}

void drawRaw(KtQtPainterWrapper& painter)
{
    std::vector<unsigned int> pixels = rainbow(50, 35);
    auto* const bits = reinterpret_cast<unsigned char*>(pixels.data());
    painter.drawImage(50, 35, bits, 0, 0, kFormat);
}

template<int left, int top, int width, int height>
void drawScaled(KtQtPainterWrapper& painter)
{
    std::vector<unsigned int> pixels = rainbow(24, 16);
    QImage image(reinterpret_cast<uchar*>(pixels.data()), 24, 16, kFormat);
    QRect target(left, top, width, height);
    painter.drawImage(target, image);
}

void drawDoubleBuffer(KtQtPainterWrapper& painter)
{
    const double ratio = ratioOf(painter);
    KtGrQtDoubleBufferImage buffer(nullptr);
    buffer.createImages(int(kCellWidth * ratio), int(kCellHeight * ratio), 4);
    buffer.memImage()->setDevicePixelRatio(ratio);
    buffer.frontImage()->setDevicePixelRatio(ratio);
    buffer.memPainter()->beginDraw();
    buffer.memPainter()->drawAlphaRect(CRect(8, 8, 70, 46), 0x000080FF, 255);
    buffer.memPainter()->drawAlphaRect(CRect(40, 24, 104, 64), 0x00808000, 255);
    buffer.memPainter()->endDraw();
    buffer.repairFrontBuffer();
    QRect target(0, 0, kCellWidth, kCellHeight);
    painter.drawImage(target, *buffer.frontImage());
}

// Two discs that overlap, on an image of their own, since a PDF has no composition modes. Raster
// operations work with opaque colours only.
template<int mode>
void drawComposition(KtQtPainterWrapper& painter)
{
    const double ratio = ratioOf(painter);
    QImage image(QSize(kCellWidth, kCellHeight) * ratio, kFormat);
    image.setDevicePixelRatio(ratio);
    image.fill(mode < QPainter::RasterOp_SourceOrDestination ? Qt::transparent : Qt::white);
    QPainterPath left;
    left.addEllipse(8, 4, 62, 62);
    QPainterPath right;
    right.addEllipse(42, 4, 62, 62);
    KtQtPainterWrapper inner(&image);
    inner.beginDraw();
    inner.setBrush(0x0030A0F0u);
    inner.fillPath(left);
    inner.setROP2(mode);
    inner.setBrush(0x00A05020u);
    inner.fillPath(right);
    inner.endDraw();
    QRect target(0, 0, kCellWidth, kCellHeight);
    painter.drawImage(target, image);
}

} // namespace

Cells imageCells()
{
    return {
        {L"pixels in place", L"drawImage(bits)", drawRaw},
        {L"larger", L"drawImage(rect, image)", drawScaled<4, 4, 104, 64>},
        {L"stretched", L"drawImage(rect, image)", drawScaled<4, 24, 104, 20>},
        {L"double buffer", L"repairFrontBuffer()", drawDoubleBuffer},
        {L"SourceOver", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_SourceOver>},
        {L"DestinationOver", L"setROP2(mode)",
         drawComposition<QPainter::CompositionMode_DestinationOver>},
        {L"SourceAtop", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_SourceAtop>},
        {L"Xor", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_Xor>},
        {L"Plus", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_Plus>},
        {L"Multiply", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_Multiply>},
        {L"Screen", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_Screen>},
        {L"Darken", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_Darken>},
        {L"Difference", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_Difference>},
        {L"Exclusion", L"setROP2(mode)", drawComposition<QPainter::CompositionMode_Exclusion>},
        {L"SourceXorDestination", L"setROP2(mode)",
         drawComposition<QPainter::RasterOp_SourceXorDestination>},
        {L"NotSource", L"setROP2(mode)", drawComposition<QPainter::RasterOp_NotSource>},
    };
}
