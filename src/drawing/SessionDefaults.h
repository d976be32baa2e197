// SPDX-License-Identifier: MIT
//
// The pen and brush with which every drawing session starts, on screens and printers alike.
#ifndef KTQTBASE_DRAWING_SESSIONDEFAULTS_H
#define KTQTBASE_DRAWING_SESSIONDEFAULTS_H

class QPainter;

namespace ktqtbase {

void saveAndSetDefaults(QPainter& painter);

} // namespace ktqtbase

#endif
