// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <vector>

namespace {

constexpr QImage::Format kFormat = QImage::Format_ARGB32_Premultiplied;

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
    KtGrQtDoubleBufferImage buffer(nullptr);
    buffer.createImages(kCellWidth, kCellHeight, 4);
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
    QImage image(kCellWidth, kCellHeight, kFormat);
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
        {L"drawImage(bits)", drawRaw},
        {L"drawImage, larger", drawScaled<4, 4, 104, 64>},
        {L"drawImage, stretched", drawScaled<4, 24, 104, 20>},
        {L"double buffer", drawDoubleBuffer},
        {L"SourceOver", drawComposition<QPainter::CompositionMode_SourceOver>},
        {L"DestinationOver", drawComposition<QPainter::CompositionMode_DestinationOver>},
        {L"SourceAtop", drawComposition<QPainter::CompositionMode_SourceAtop>},
        {L"Xor", drawComposition<QPainter::CompositionMode_Xor>},
        {L"Plus", drawComposition<QPainter::CompositionMode_Plus>},
        {L"Multiply", drawComposition<QPainter::CompositionMode_Multiply>},
        {L"Screen", drawComposition<QPainter::CompositionMode_Screen>},
        {L"Darken", drawComposition<QPainter::CompositionMode_Darken>},
        {L"Difference", drawComposition<QPainter::CompositionMode_Difference>},
        {L"Exclusion", drawComposition<QPainter::CompositionMode_Exclusion>},
        {L"SourceXorDestination", drawComposition<QPainter::RasterOp_SourceXorDestination>},
        {L"NotSource", drawComposition<QPainter::RasterOp_NotSource>},
    };
}
