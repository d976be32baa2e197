// SPDX-License-Identifier: MIT
#include <KtQtBase/drawing/PrinterPainter.h>

#include "drawing/SessionDefaults.h"

#include <QtGui/QPainter>

KtQtPrinterPainter::KtQtPrinterPainter(QPaintDevice* device) : KtQtPainterWrapper(device)
{
    if (device)
        m_pPainter->begin(device);
}

KtQtPrinterPainter::~KtQtPrinterPainter()
{
    m_pPainter->end();
}

bool KtQtPrinterPainter::beginDraw()
{
    if (!m_pWrappedDevice)
        return false;
    ktqtbase::saveAndSetDefaults(*m_pPainter);
    return true;
}

bool KtQtPrinterPainter::endDraw()
{
    if (!m_pWrappedDevice)
        return false;
    m_pPainter->restore();
    return true;
}
