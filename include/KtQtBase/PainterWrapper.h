// SPDX-License-Identifier: MIT
//
// Drawing in the Windows manner on any Qt paint device: a widget, an image, a printer.
//
//     QImage image(200, 100, QImage::Format_ARGB32_Premultiplied);
//     KtQtPainterWrapper painter(&image);
//     if (painter.beginDraw()) {
//         painter.setPen(PS_SOLID, 3, 0x000000FF); // red
//         const POINT corners[] = {{10, 10}, {90, 10}, {50, 80}};
//         painter.drawPolygon(corners, 3);
//         painter.endDraw();
//     }
//
// KtQtPainterWrapper is the device context, KtQtPrinterPainter the one for a document of pages, and
// KtGrQtDoubleBufferImage a pair of images from which a widget paints itself.
//
// Everything here belongs to the GUI thread. A wrapper never deletes its QPainter. If the host does
// not do so either, a leak checker reports it: suppress the constructor by name.
#ifndef KTQTBASE_PAINTERWRAPPER_H
#define KTQTBASE_PAINTERWRAPPER_H

#include <KtQtBase/drawing/DoubleBufferImage.h>
#include <KtQtBase/drawing/Painter.h>
#include <KtQtBase/drawing/PrinterPainter.h>

#endif
