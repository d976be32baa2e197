// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_CANVAS_H
#define SKETCHPAD_CANVAS_H

#include <KtQtBase/PainterWrapper.h>

#include <QtWidgets/QWidget>

class CSketchView;

// The view's window: passes messages, mouse and keys to the view, and shows what it paints, as
// sharp as the screen is.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    Canvas(CSketchView& view, QWidget* parent);

    QSize sizeHint() const override;

    // Takes the size that the view's zoom asks for.
    void adjustToZoom();

    // What is selected, as a picture.
    QImage selectionPicture();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeDeskColor();
    void makeImages(const QSize& size);
    void paintView(const QPointF& corner);

    CSketchView& m_view;
    KtGrQtDoubleBufferImage m_image;
    QSize m_imageSize;
    KtQtPainterWrapper m_picturePainter; // kept, since a wrapper never frees its QPainter
};

#endif
