// SPDX-License-Identifier: MIT
//
// The picture: labelled cells, each showing one setting or one drawing call of the device context.
#ifndef KTQTBASE_EXAMPLES_GALLERY_H
#define KTQTBASE_EXAMPLES_GALLERY_H

#include <KtQtBase/PainterWrapper.h>

#include <QtCore/QRect>
#include <QtCore/QSize>

#include <vector>

// One cell. It is drawn with its upper left corner as the origin and with the pen and brush of a new
// session; all that it sets is undone. Its label is what it shows and, below, the call to look at.
struct Cell
{
    const wchar_t* shows;
    const wchar_t* call;
    void (*draw)(KtQtPainterWrapper& painter);
};

using Cells = std::vector<Cell>;

constexpr int kCellWidth = 112;
constexpr int kCellHeight = 72;
constexpr int kCellGap = 16;
constexpr int kWideCell = 2 * kCellWidth + kCellGap;

// The cells of each family: those of pen styles are wide ones, four to a row, and all others of
// kCellWidth, eight to a row.
Cells penStyleCells();
Cells penWidthCells();
Cells brushCells();
Cells textCells();
Cells shapeCells();
Cells clipCells();
Cells imageCells();

// The size of the whole picture in pixels.
QSize gallerySize();

// A cell with its place in the picture, without its frame and its label.
struct PlacedCell
{
    const wchar_t* family;
    const Cell* cell;
    QRect place;
};

std::vector<PlacedCell> placedCells();

// Draws the whole picture; the painter has a session already.
void drawGallery(KtQtPainterWrapper& painter);

// The lfHeight of letters of about so many pixels on the painter's device; it depends on the
// device's depth.
int heightForPixels(const KtQtPainterWrapper& painter, int pixels);

#endif
