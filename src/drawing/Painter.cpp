// SPDX-License-Identifier: MIT
//
// The device context: its device, its sessions and its saved states.
#include <KtQtBase/drawing/Painter.h>

#include "drawing/PainterClip.h"
#include "drawing/SessionDefaults.h"

#include <QtGui/QPainter>

KtQtPainterWrapper::KtQtPainterWrapper() : KtQtPainterWrapper(nullptr) {}

KtQtPainterWrapper::KtQtPainterWrapper(QPaintDevice* device)
    : m_pWrappedDevice(device), m_pPainter(new QPainter)
{}

KtQtPainterWrapper::~KtQtPainterWrapper()
{
    m_pWrappedDevice = nullptr;
}

void KtQtPainterWrapper::setWrappedDevice(QPaintDevice* device)
{
    m_pWrappedDevice = device;
}

QPaintDevice* KtQtPainterWrapper::wrappedDevice() const
{
    return m_pWrappedDevice;
}

QPainter* KtQtPainterWrapper::wrappedPainter() const
{
    return m_pPainter;
}

bool KtQtPainterWrapper::beginDraw()
{
    if (!m_pWrappedDevice)
        return false;
    m_pPainter->begin(m_pWrappedDevice);
    ktqtbase::saveAndSetDefaults(*m_pPainter);
    ktqtbase::replaceClip(*m_pPainter, m_rClipRegion);
    return true;
}

bool KtQtPainterWrapper::endDraw()
{
    if (!m_pWrappedDevice)
        return false;
    m_pPainter->restore();
    return m_pPainter->end();
}

void KtQtPainterWrapper::save()
{
    m_pPainter->save();
}

void KtQtPainterWrapper::restore()
{
    m_pPainter->restore();
}
