// SPDX-License-Identifier: MIT
//
// The gallery as a picture, at a ratio of pixels to units of drawing.
#ifndef KTQTBASE_EXAMPLES_GALLERY_SHEET_H
#define KTQTBASE_EXAMPLES_GALLERY_SHEET_H

#include <QtGui/QImage>

// At these ratios every cell begins and ends at a whole pixel.
constexpr double kRatios[] = {1, 1.5, 2, 3};

QSize sheetSize(double ratio);

// The sheet's size on paper is the same at each ratio.
QImage drawSheet(double ratio);

#endif
