// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_PDFPRINTER_H
#define SKETCHPAD_PDFPRINTER_H

#include <string>

class CSketchView;

// Prints the drawing on one sheet of A4, lengthwise.
// Result: false if the file cannot be written.
bool printToPdf(const CSketchView& view, const std::wstring& path);

#endif
