// SPDX-License-Identifier: MIT
#include "drawing/SessionDefaults.h"

#include <QtGui/QPainter>

void ktqtbase::saveAndSetDefaults(QPainter& painter)
{
    painter.save();
    painter.setPen(QPen(QBrush(QColor(0, 0, 0)), 0, Qt::SolidLine));
    painter.setBrush(QBrush(QColor(0, 0, 0), Qt::SolidPattern));
}
