// SPDX-License-Identifier: MIT
//
// Built where Qt's print support is there.
#include "PaperPrinter.h"

#include "PdfPrinter.h"
#include "app/SketchView.h"

#include <QtPrintSupport/QPageSetupDialog>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrinter>

// Looking for printers takes a while, so there is none before it is used.
struct PaperPrinter::Printer
{
    Printer() : printer(QPrinter::HighResolution)
    {
        printer.setPageOrientation(QPageLayout::Landscape);
    }

    QPrinter printer;
};

PaperPrinter::PaperPrinter(const CSketchView& view) : m_view(view) {}

PaperPrinter::~PaperPrinter() = default;

bool PaperPrinter::isThere()
{
    return true;
}

void PaperPrinter::setUpPage(QWidget* parent)
{
    if (!m_printer)
        m_printer = std::make_unique<Printer>();
    QPageSetupDialog(&m_printer->printer, parent).exec();
}

void PaperPrinter::preview(QWidget* parent)
{
    if (!m_printer)
        m_printer = std::make_unique<Printer>();
    QPrintPreviewDialog dialog(&m_printer->printer, parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested,
                     [this](QPrinter* printer) { drawSheet(m_view, *printer); });
    dialog.exec();
}

bool PaperPrinter::print(QWidget* parent, QString& file)
{
    if (!m_printer)
        m_printer = std::make_unique<Printer>();
    QPrinter& printer = m_printer->printer;
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted)
        return true;
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        file = printer.outputFileName();
        return true;
    }
    drawSheet(m_view, printer);
    return printer.printerState() != QPrinter::Error;
}

bool PaperPrinter::printToFile(const QString& name)
{
    Printer file;
    file.printer.setOutputFormat(QPrinter::PdfFormat);
    file.printer.setOutputFileName(name);
    drawSheet(m_view, file.printer);
    return file.printer.printerState() != QPrinter::Error;
}
