// SPDX-License-Identifier: MIT
//
// What the port adds: a widget in place of the window class, which turns Qt's events into messages.
#ifndef FIRSTWINDOW_PANEL_H
#define FIRSTWINDOW_PANEL_H

#include "Dots.h"

#include <QtWidgets/QWidget>

class Panel : public QWidget
{
public:
    explicit Panel(Dots& dots) : m_dots(dots) { resize(320, 240); }

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void send(UINT message, WPARAM wParam, LPARAM lParam);

    Dots& m_dots;
};

#endif
