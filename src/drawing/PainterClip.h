// SPDX-License-Identifier: MIT
//
// Sets and removes Qt's clips safely.
#ifndef KTQTBASE_DRAWING_PAINTERCLIP_H
#define KTQTBASE_DRAWING_PAINTERCLIP_H

#include <QtCore/qnamespace.h>

class QPainter;
class QRegion;

namespace ktqtbase {

// Sets the painter's clip. Qt::NoClip removes it, and the pen and brush that were used under the
// old clip stay usable.
void applyClip(QPainter& painter, const QRegion& region, Qt::ClipOperation operation);

// Makes a region the painter's clip, or removes clipping if the region is empty.
void replaceClip(QPainter& painter, const QRegion& region);

} // namespace ktqtbase

#endif
