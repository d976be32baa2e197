// SPDX-License-Identifier: MIT
#include "PdfPrinter.h"

#include "app/SketchView.h"

#include <KtQtBase/PainterWrapper.h>

#include <QtCore/QBuffer>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

constexpr int kResolution = 1200;
constexpr double kPointsPerInch = 80; // so that a paper of the usual size fills the sheet

} // namespace

// In whole points of the device, so that curves and the places of texts are as fine as it is.
void drawSheet(const CSketchView& view, QPaintDevice& device)
{
    const double wanted = device.logicalDpiX() / kPointsPerInch;
    const int scale = std::max(1, static_cast<int>(std::lround(wanted)));
    const SIZE extent = view.GetExtent();
    const double fit = std::min({wanted / scale, double(device.width()) / (extent.cx * scale),
                                 double(device.height()) / (extent.cy * scale)});
    std::unique_ptr<QPainter> owned; // a wrapper never frees its QPainter
    KtQtPrinterPainter painter(&device);
    owned.reset(painter.wrappedPainter());
    painter.beginDraw();
    painter.wrappedPainter()->scale(fit, fit);
    view.OnPrint(painter, scale);
    painter.endDraw();
}

// In memory first: whether a file was written to its end, the painter would not tell.
std::string pdfOf(const CSketchView& view)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageOrientation(QPageLayout::Landscape);
        writer.setResolution(kResolution);
        drawSheet(view, writer);
    }
    return buffer.data().toStdString();
}
