// SPDX-License-Identifier: MIT
//
// A real window that paints itself from a double buffer, seen on the screen: with a window system
// by a screenshot, offscreen by asking the widget.
#include "drawing/Twin.h"

#include <QtCore/QDeadlineTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {

void drawScene(KtQtPainterWrapper& painter, QSize size)
{
    const POINT corners[] = {
        {0, 0}, {size.width() - 1, size.height() / 2}, {20, size.height() - 1}};
    painter.beginDraw();
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    painter.setPen(PS_SOLID, 3, 0x000000FF);
    painter.setBrush(0x0000C000u);
    painter.drawPolygon(corners, 3);
    painter.drawAlphaRect(CRect(10, 10, size.width() - 30, 60), 0x00FF0000, 100);
    painter.endDraw();
}

class BufferedWidget : public QWidget
{
public:
    BufferedWidget() { setAttribute(Qt::WA_OpaquePaintEvent); }

    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override
    {
        ++paints;
        QPainter(this).drawImage(0, 0, *m_buffer.frontImage());
    }

    void resizeEvent(QResizeEvent*) override
    {
        m_buffer.destroyImages();
        m_buffer.createImages(width(), height(), 4);
        drawScene(*m_buffer.memPainter(), size());
        m_buffer.repairFrontBuffer();
    }

private:
    KtGrQtDoubleBufferImage m_buffer{this};
};

QImage sceneOf(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    KtQtPainterWrapper painter(&image);
    drawScene(painter, size);
    return image;
}

bool hasWindowSystem()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

QImage screenshot(QWidget& widget)
{
    const QPixmap picture =
        hasWindowSystem() ? widget.screen()->grabWindow(widget.winId()) : widget.grab();
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

// The screen shows a window some time after it was painted, so look until the picture is there.
::testing::AssertionResult showsScene(QWidget& widget, QSize size)
{
    ::testing::AssertionResult result = ::testing::AssertionFailure();
    for (QDeadlineTimer deadline(20000); !result && !deadline.hasExpired();) {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        result = support::samePicture(sceneOf(size), screenshot(widget));
    }
    return result;
}

TEST(DoubleBufferWidget, ShowsItsFrontImage)
{
    BufferedWidget widget;
    widget.resize(160, 120);
    widget.show();
    EXPECT_TRUE(showsScene(widget, QSize(160, 120)));
    EXPECT_GE(widget.paints, 1);
}

TEST(DoubleBufferWidget, ShowsTheNewFrontImageAfterEveryResize)
{
    BufferedWidget widget;
    widget.resize(160, 120);
    widget.show();
    EXPECT_TRUE(showsScene(widget, QSize(160, 120)));
    for (const QSize size : {QSize(220, 170), QSize(130, 90), QSize(131, 90)}) {
        const int before = widget.paints;
        widget.resize(size);
        EXPECT_TRUE(showsScene(widget, size));
        EXPECT_GT(widget.paints, before);
    }
}

TEST(DoubleBufferWidget, ShowsTheSameFrontImageWhenItIsRepainted)
{
    BufferedWidget widget;
    widget.resize(160, 120);
    widget.show();
    EXPECT_TRUE(showsScene(widget, QSize(160, 120)));
    const int before = widget.paints;
    widget.repaint();
    EXPECT_GT(widget.paints, before);
    EXPECT_TRUE(showsScene(widget, QSize(160, 120)));
}

} // namespace
