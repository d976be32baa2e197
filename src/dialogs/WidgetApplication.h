// SPDX-License-Identifier: MIT
//
// Whether a window can be made at all.
#ifndef KTQTBASE_DIALOGS_WIDGETAPPLICATION_H
#define KTQTBASE_DIALOGS_WIDGETAPPLICATION_H

#include <QtWidgets/QApplication>

namespace ktqtbase {

// Qt ends the process that makes a widget without a QApplication.
inline bool hasWidgetApplication()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance());
}

} // namespace ktqtbase

#endif
