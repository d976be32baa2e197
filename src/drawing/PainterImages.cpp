// SPDX-License-Identifier: MIT
//
// Images: raw pixels in place, and whole images to scale.
#include <KtQtBase/drawing/Painter.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>

void KtQtPainterWrapper::drawImage(int x, int y, unsigned char* bits, int, int, int format)
{
    const QImage image(bits, x, y, static_cast<QImage::Format>(format));
    m_pPainter->drawImage(QPointF(x, y), image);
}

void KtQtPainterWrapper::drawImage(QRect& target, QImage& image)
{
    const QRectF source(0, 0, image.width(), image.height());
    m_pPainter->drawImage(QRectF(target), image, source, Qt::AutoColor);
}
