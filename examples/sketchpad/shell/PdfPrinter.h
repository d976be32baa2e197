// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_PDFPRINTER_H
#define SKETCHPAD_PDFPRINTER_H

#include <string>

class CSketchView;
class QPaintDevice;

// Prints the drawing on one sheet of A4, lengthwise.
// Result: the bytes of the file.
std::string pdfOf(const CSketchView& view);

// Draws the one sheet of a document; the drawing is as large as on the screen, or as fits.
void drawSheet(const CSketchView& view, QPaintDevice& device);

#endif
