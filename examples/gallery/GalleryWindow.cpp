// SPDX-License-Identifier: MIT
#include "GalleryWindow.h"

#include "Gallery.h"

GalleryWindow::GalleryWindow() : m_buffer(this), m_painter(this)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFixedSize(gallerySize());
}

void GalleryWindow::paintEvent(QPaintEvent*)
{
    QRect whole = rect();
    m_painter.beginDraw();
    m_painter.drawImage(whole, *m_buffer.frontImage());
    m_painter.endDraw();
}

// The widget already has its new size, so the old images must go before new ones are made. They have
// as many pixels as the widget has on its screen.
void GalleryWindow::resizeEvent(QResizeEvent*)
{
    const double ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    m_buffer.destroyImages();
    m_buffer.createImages(pixels.width(), pixels.height(), 4);
    m_buffer.memImage()->setDevicePixelRatio(ratio);
    m_buffer.frontImage()->setDevicePixelRatio(ratio);
    m_buffer.memPainter()->beginDraw();
    drawGallery(*m_buffer.memPainter());
    m_buffer.memPainter()->endDraw();
    m_buffer.repairFrontBuffer();
}
