// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_CANVASAREA_H
#define SKETCHPAD_CANVASAREA_H

#include <QtWidgets/QScrollArea>

#include <functional>

// The part of the window in which the canvas is scrolled.
class CanvasArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit CanvasArea(QWidget* parent);

    // Called for a turn of the wheel with Ctrl: whether it is away from the user.
    std::function<void(bool larger)> zoomTurned;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    int m_turned = 0; // of a wheel that turns in small steps, in eighths of a degree
};

#endif
