// SPDX-License-Identifier: MIT
//
// Clipping with Qt, and its removal without harm.
#ifndef KTQTBASE_DRAWING_PAINTERCLIP_H
#define KTQTBASE_DRAWING_PAINTERCLIP_H

#include <QtCore/qnamespace.h>

class QPainter;
class QRegion;

namespace ktqtbase {

// Sets the painter's clip. Qt::NoClip takes clipping away, and what was drawn with under the old
// clip can be drawn with again.
void applyClip(QPainter& painter, const QRegion& region, Qt::ClipOperation operation);

// Makes a region the painter's clip, or takes clipping away where the region is empty.
void replaceClip(QPainter& painter, const QRegion& region);

} // namespace ktqtbase

#endif
