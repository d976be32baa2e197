// SPDX-License-Identifier: MIT
//
// Built in place of PaperPrinter.cpp where Qt's print support is not there.
#include "PaperPrinter.h"

struct PaperPrinter::Printer
{};

PaperPrinter::PaperPrinter(const CSketchView& view) : m_view(view) {}

PaperPrinter::~PaperPrinter() = default;

bool PaperPrinter::isThere()
{
    return false;
}

void PaperPrinter::setUpPage(QWidget*) {}

void PaperPrinter::preview(QWidget*) {}

bool PaperPrinter::print(QWidget*, QString&)
{
    return false;
}

bool PaperPrinter::printToFile(const QString&)
{
    return false;
}
