// SPDX-License-Identifier: MIT
#include "Sheet.h"

#include "Gallery.h"

#include <cmath>

namespace {

constexpr double kDotsPerMeter = 96 / 0.0254;

} // namespace

QSize sheetSize(double ratio)
{
    return gallerySize() * ratio;
}

QImage drawSheet(double ratio)
{
    QImage image(sheetSize(ratio), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.setDotsPerMeterX(int(std::lround(kDotsPerMeter * ratio)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    drawGallery(painter);
    painter.endDraw();
    return image;
}
