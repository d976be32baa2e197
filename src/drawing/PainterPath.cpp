// SPDX-License-Identifier: MIT
//
// Opening, closing and painting paths.
#include <KtQtBase/drawing/Painter.h>

#include <QtGui/QPainter>

#include <utility>

bool KtQtPainterWrapper::beginPath()
{
    if (!m_pWrappedDevice)
        return false;
    if (!m_pPath)
        m_pPath = new QPainterPath;
    return true;
}

bool KtQtPainterWrapper::endPath()
{
    if (!m_pWrappedDevice)
        return false;
    delete std::exchange(m_pPath, nullptr);
    return true;
}

QPainterPath* KtQtPainterWrapper::getPainterPath() const
{
    return m_pPath;
}

void KtQtPainterWrapper::setPainterPath(QPainterPath* path)
{
    m_pPath = path;
}

void KtQtPainterWrapper::fillPath(QPainterPath path)
{
    m_pPainter->fillPath(path, getBrush());
}

void KtQtPainterWrapper::strokePath(QPainterPath path)
{
    m_pPainter->strokePath(path, getPen());
}

void KtQtPainterWrapper::strokeAndFillPath(QPainterPath* path)
{
    m_pPainter->drawPath(*path);
}
