// SPDX-License-Identifier: MIT
//
// Everything that differs between Qt 5 and Qt 6. No other file of the library asks which Qt it is
// built with.
#ifndef KTQTBASE_PLATFORM_QTVERSION_H
#define KTQTBASE_PLATFORM_QTVERSION_H

#include <QtGui/QFont>

namespace ktqtbase::platform {

// Sets a font's weight by the scale of Qt 5, on which 50 is normal and 75 is bold.
inline void setFontWeight(QFont& font, int weight)
{
#if QT_VERSION_MAJOR >= 6
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    font.setLegacyWeight(weight);
    QT_WARNING_POP
#else
    font.setWeight(weight);
#endif
}

} // namespace ktqtbase::platform

#endif
