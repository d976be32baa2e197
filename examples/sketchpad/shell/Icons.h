// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_ICONS_H
#define SKETCHPAD_ICONS_H

#include <QtGui/QIcon>

// The icon of a command: the desktop's own, or one that is drawn where it has none.
//   ink    in: the colour of drawn lines
QIcon iconOf(unsigned int command, const QColor& ink);

#endif
