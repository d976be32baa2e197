// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"

using ::testing::AssertionFailure;

QImage drawing::ground(QImage::Format format, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(255 - x * 2 % 256, y * 2 % 256, 128, 255 - (x + y) % 64));
    return image.convertToFormat(format);
}

::testing::AssertionResult drawing::drawsLike(const WrapperCalls& calls,
                                              const PlainCalls& plainCalls, QImage::Format format)
{
    QImage actual = ground(format);
    KtQtPainterWrapper wrapper(&actual);
    wrapper.beginDraw();
    calls(wrapper);
    wrapper.endDraw();

    QImage expected = ground(format);
    QPainter painter;
    beginPlain(painter, expected);
    plainCalls(painter);
    painter.end();
    if (expected == ground(format))
        return AssertionFailure() << "nothing was drawn";
    return support::samePicture(expected, actual);
}
