// SPDX-License-Identifier: MIT
//
// Windows colours as Qt has them.
#ifndef KTQTBASE_DRAWING_COLORREF_H
#define KTQTBASE_DRAWING_COLORREF_H

#include <QtGui/QColor>

namespace ktqtbase {

// An opaque colour from red in bits 0-7, green in 8-15 and blue in 16-23.
inline QColor colorFromRef(unsigned int color)
{
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                  static_cast<int>(color >> 16 & 0xFF));
}

} // namespace ktqtbase

#endif
