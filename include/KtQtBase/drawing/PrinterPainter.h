// SPDX-License-Identifier: MIT
//
// The device context of a document: one painting that spans all pages.
//
//     QPdfWriter writer(fileName);
//     {
//         KtQtPrinterPainter painter(&writer);
//         painter.beginDraw();
//         drawFirstPage(painter);
//         painter.endDraw();
//         writer.newPage();
//         painter.beginDraw();
//         drawSecondPage(painter);
//         painter.endDraw();
//     } // here the document is finished
#ifndef KTQTBASE_DRAWING_PRINTERPAINTER_H
#define KTQTBASE_DRAWING_PRINTERPAINTER_H

#include <KtQtBase/Export.h>
#include <KtQtBase/drawing/Painter.h>

// Draws as KtQtPainterWrapper does; only the session differs. Its beginDraw and endDraw hide those
// of the base and are not virtual: call them on this class.
class KTQTBASE_EXPORT KtQtPrinterPainter : public KtQtPainterWrapper
{
public:
    // Starts painting on a device at once, until the object dies.
    //   device    in: a printer or another device, which outlives this object; with null nothing is
    //             painted
    // If the device refuses, the painter is inactive, and Qt ignores what is drawn.
    explicit KtQtPrinterPainter(QPaintDevice* device);

    // Ends painting, which finishes the document, also where another device has been set since. An
    // exception that Qt throws here ends the process.
    ~KtQtPrinterPainter();

    // Saves the painter's state and sets a solid black pen of width 0 and a solid black brush.
    // Result: false without a device, else true.
    // Kept: the stored clip is not applied here. setClipRegion applies it at once, since painting
    // began with the constructor. What is set between beginDraw and endDraw ends with endDraw: a
    // host sets the clip again for each page.
    bool beginDraw();

    // Restores the state from before beginDraw. Painting goes on.
    // Result: false without a device, else true.
    bool endDraw();
};

#endif
