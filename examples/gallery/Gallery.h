// SPDX-License-Identifier: MIT
//
// The picture: labelled cells, each showing one setting or one drawing call of the device context.
#ifndef KTQTBASE_EXAMPLES_GALLERY_H
#define KTQTBASE_EXAMPLES_GALLERY_H

#include <KtQtBase/PainterWrapper.h>

#include <QtCore/QSize>

#include <vector>

// One cell of kCellWidth by kCellHeight. It is drawn with its upper left corner as the origin and
// with the pen and brush of a new session; all that it sets is undone.
struct Cell
{
    const wchar_t* label;
    void (*draw)(KtQtPainterWrapper& painter);
};

using Cells = std::vector<Cell>;

constexpr int kCellWidth = 112;
constexpr int kCellHeight = 72;

// The cells of each family, eight to a row.
Cells penCells();
Cells brushCells();
Cells textCells();
Cells shapeCells();
Cells clipCells();
Cells imageCells();

// The size of the whole picture in pixels.
QSize gallerySize();

// Draws the whole picture; the painter has a session already.
void drawGallery(KtQtPainterWrapper& painter);

// The lfHeight of letters of about so many pixels on the painter's device; it depends on the
// device's depth.
int heightForPixels(const KtQtPainterWrapper& painter, int pixels);

#endif
