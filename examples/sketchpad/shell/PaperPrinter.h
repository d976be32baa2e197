// SPDX-License-Identifier: MIT
//
// Printing on paper, by the dialogs of Qt's print support where that is there.
#ifndef SKETCHPAD_PAPERPRINTER_H
#define SKETCHPAD_PAPERPRINTER_H

#include <QtCore/QString>

#include <memory>

class CSketchView;
class QWidget;

class PaperPrinter
{
public:
    explicit PaperPrinter(const CSketchView& view);
    ~PaperPrinter();

    // Whether this program was built with print support; if not, the others do nothing.
    static bool isThere();

    void setUpPage(QWidget* parent);
    void preview(QWidget* parent);
    // Asks for a printer and prints.
    //   file    out: where a file was chosen in place of a printer, its name, and nothing is printed
    // Result: false if the printer failed.
    bool print(QWidget* parent, QString& file);

    // Prints without a question to a PDF file in place of a printer.
    // Result: false if that failed.
    bool printToFile(const QString& name);

private:
    struct Printer;

    const CSketchView& m_view;
    std::unique_ptr<Printer> m_printer; // made when it is first used
};

#endif
