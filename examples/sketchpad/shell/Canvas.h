// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_CANVAS_H
#define SKETCHPAD_CANVAS_H

#include <KtQtBase/PainterWrapper.h>

#include <QtWidgets/QWidget>

class CSketchView;

// The view's window: passes messages, mouse and keys to the view, and shows what it paints.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    Canvas(CSketchView& view, QWidget* parent);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    CSketchView& m_view;
    KtGrQtDoubleBufferImage m_image;
};

#endif
