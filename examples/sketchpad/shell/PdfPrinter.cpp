// SPDX-License-Identifier: MIT
#include "PdfPrinter.h"

#include "app/SketchView.h"

#include <KtQtBase/PainterWrapper.h>

#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

namespace {

constexpr int kPixelsPerInch = 80; // so that a paper of the usual size fills the sheet

} // namespace

bool printToPdf(const CSketchView& view, const std::wstring& path)
{
    QPdfWriter writer(QString::fromStdWString(path));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setResolution(kPixelsPerInch);
    KtQtPrinterPainter painter(&writer);
    // beginDraw gives true even for a file that cannot be written.
    const bool ready = painter.wrappedPainter()->isActive() && painter.beginDraw();
    if (ready) {
        view.OnPrint(painter);
        painter.endDraw();
    }
    return ready;
}
