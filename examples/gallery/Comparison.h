// SPDX-License-Identifier: MIT
//
// Two sheets compared pixel by pixel, such as those of two platforms.
#ifndef KTQTBASE_EXAMPLES_GALLERY_COMPARISON_H
#define KTQTBASE_EXAMPLES_GALLERY_COMPARISON_H

#include <QtCore/QStringList>
#include <QtGui/QImage>

struct Comparison
{
    int pixels = 0;    // all that differ
    QStringList parts; // a line for each part of the sheet with such pixels
    QImage picture;    // the first sheet, pale, with those pixels in red
};

// Both are of the size that a sheet has at the ratio.
Comparison compareSheets(const QImage& one, const QImage& other, double ratio);

#endif
