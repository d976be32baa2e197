// SPDX-License-Identifier: MIT
//
// Pen, brush, background, composition and rotation.
#include <KtQtBase/drawing/Painter.h>

#include "drawing/ColorRef.h"

#include <QtGui/QPainter>

namespace {

using ktqtbase::colorFromRef;

Qt::PenStyle penStyleOf(int windowsStyle)
{
    switch (windowsStyle) {
    case PS_SOLID:
        return Qt::SolidLine;
    case PS_DASH:
        return Qt::DashLine;
    case PS_DOT:
        return Qt::DotLine;
    case PS_DASHDOT:
        return Qt::DashDotLine;
    case PS_DASHDOTDOT:
        return Qt::DashDotDotLine;
    case PS_NULL:
        return Qt::NoPen;
    case PS_USERSTYLE:
        return Qt::CustomDashLine;
    default:
        return static_cast<Qt::PenStyle>(windowsStyle);
    }
}

QBrush solidBrush(unsigned int color)
{
    return QBrush(colorFromRef(color), Qt::SolidPattern);
}

} // namespace

void KtQtPainterWrapper::setPen(int style, int width, unsigned int color)
{
    QPen pen(penStyleOf(style & PS_STYLE_MASK));
    if (pen.style() == Qt::DashLine || pen.style() == Qt::CustomDashLine)
        pen.setDashPattern({12.0, 4.0});
    pen.setWidth(width);
    pen.setColor(colorFromRef(color));
    m_pPainter->setPen(pen);
}

void KtQtPainterWrapper::setPen(QPen pen)
{
    m_pPainter->setPen(pen);
}

QPen KtQtPainterWrapper::getPen() const
{
    return m_pPainter->pen();
}

void KtQtPainterWrapper::setPenColor(unsigned int color)
{
    QPen pen = getPen();
    pen.setColor(colorFromRef(color));
    m_pPainter->setPen(pen);
}

void KtQtPainterWrapper::setBrush(int style)
{
    m_pPainter->setBrush(static_cast<Qt::BrushStyle>(style));
}

void KtQtPainterWrapper::setBrush(unsigned int color)
{
    m_pPainter->setBrush(solidBrush(color));
}

void KtQtPainterWrapper::setBrush(QBrush brush)
{
    m_pPainter->setBrush(brush);
}

QBrush KtQtPainterWrapper::getBrush() const
{
    return m_pPainter->brush();
}

void KtQtPainterWrapper::setBkMode(int mode)
{
    m_pPainter->setBackgroundMode(static_cast<Qt::BGMode>(mode - 1));
}

int KtQtPainterWrapper::getBkMode() const
{
    return m_pPainter->backgroundMode();
}

void KtQtPainterWrapper::setBackground(unsigned int color)
{
    m_pPainter->setBackground(solidBrush(color));
}

QColor KtQtPainterWrapper::getBkColor() const
{
    return m_pPainter->background().color();
}

void KtQtPainterWrapper::setROP2(int mode)
{
    m_pPainter->setCompositionMode(static_cast<QPainter::CompositionMode>(mode));
}

int KtQtPainterWrapper::getROP2() const
{
    return m_pPainter->compositionMode();
}

void KtQtPainterWrapper::Rotate(double angle, int x, int y)
{
    m_pPainter->translate(QPointF(x, y));
    m_pPainter->rotate(angle);
}
