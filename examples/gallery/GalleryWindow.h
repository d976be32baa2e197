// SPDX-License-Identifier: MIT
//
// The gallery in a window that scrolls, painted from a double buffer.
#ifndef KTQTBASE_EXAMPLES_GALLERYWINDOW_H
#define KTQTBASE_EXAMPLES_GALLERYWINDOW_H

#include <KtQtBase/PainterWrapper.h>

#include <QtWidgets/QWidget>

class GalleryWindow : public QWidget
{
public:
    GalleryWindow();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    KtGrQtDoubleBufferImage m_buffer;
    KtQtPainterWrapper m_painter;
};

#endif
