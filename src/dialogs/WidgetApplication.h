// SPDX-License-Identifier: MIT
//
// Whether a window can be made at all.
#ifndef KTQTBASE_DIALOGS_WIDGETAPPLICATION_H
#define KTQTBASE_DIALOGS_WIDGETAPPLICATION_H

#include <QtWidgets/QApplication>

namespace ktqtbase {

// Without a QApplication Qt ends a process that makes a widget.
inline bool hasWidgetApplication()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance());
}

} // namespace ktqtbase

#endif
