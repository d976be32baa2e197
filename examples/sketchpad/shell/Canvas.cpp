// SPDX-License-Identifier: MIT
#include "Canvas.h"

#include "app/SketchView.h"

#include <KtQtBase/Messages.h>

#include <QtGui/QFontMetrics>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

#include <cmath>
#include <map>

namespace {

constexpr double kAlmost = 1e-6;
constexpr int kLargeStep = 10; // points that an arrow key moves with Shift

LPARAM placeOf(const QMouseEvent* event)
{
    return MAKELPARAM(event->pos().x(), event->pos().y());
}

// Result: 0 for a key without a meaning.
WPARAM virtualKey(int key)
{
    static const std::map<int, WPARAM> keys = {
        {Qt::Key_Delete, VK_DELETE}, {Qt::Key_Escape, VK_ESCAPE}, {Qt::Key_Left, VK_LEFT},
        {Qt::Key_Right, VK_RIGHT},   {Qt::Key_Up, VK_UP},         {Qt::Key_Down, VK_DOWN},
        {Qt::Key_Home, kKeyHome},    {Qt::Key_End, kKeyEnd}};
    const auto found = keys.find(key);
    return found == keys.end() ? 0 : found->second;
}

// By the key, since the text of such keys differs between systems.
WPARAM controlCharacter(int key)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return VK_RETURN;
    return key == Qt::Key_Backspace ? VK_BACK : 0;
}

QFont textFont()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    KtQtPainterWrapper painter(&image);
    const LOGFONTW font = CSketchView::GetTextFont(1);
    painter.beginDraw();
    painter.setFontIndirect(&font);
    const QFont result = painter.wrappedPainter()->font();
    painter.endDraw();
    return result;
}

int textWidth(const std::wstring& text)
{
    static const QFontMetrics metrics(textFont());
    return metrics.horizontalAdvance(QString::fromStdWString(text));
}

} // namespace

Canvas::Canvas(CSketchView& view, QWidget* parent) : QWidget(parent), m_view(view), m_image(this)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_view.OnCreate(reinterpret_cast<HWND>(winId()), textWidth);
    takeDeskColor();
    adjustToZoom();
}

QSize Canvas::sizeHint() const
{
    const SIZE extent = m_view.GetExtent();
    return QSize(extent.cx, extent.cy);
}

void Canvas::adjustToZoom()
{
    resize(Canvas::sizeHint() * m_view.GetZoom() / 100);
    update();
}

bool Canvas::event(QEvent* event)
{
    if (event->type() == QKtMsgEvent::eventType()) {
        const auto* message = static_cast<QKtMsgEvent*>(event);
        return m_view.WindowProc(message->message(), message->wParam(), message->lParam());
    }
    return QWidget::event(event);
}

void Canvas::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        takeDeskColor();
    QWidget::changeEvent(event);
}

void Canvas::takeDeskColor()
{
    const QColor desk = palette().color(QPalette::Window).darker(112);
    const auto part = [](int value) { return static_cast<BYTE>(value); };
    m_view.SetDeskColor(RGB(part(desk.red()), part(desk.green()), part(desk.blue())));
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_view.WindowProc(WM_LBUTTONDOWN, MK_LBUTTON, placeOf(event));
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    const WPARAM flags = event->buttons() & Qt::LeftButton ? MK_LBUTTON : 0;
    m_view.WindowProc(WM_MOUSEMOVE, flags, placeOf(event));
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_view.WindowProc(WM_LBUTTONUP, 0, placeOf(event));
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    if (const WPARAM key = virtualKey(event->key())) {
        const int repeat = event->modifiers() & Qt::ShiftModifier ? kLargeStep : 1;
        m_view.WindowProc(WM_KEYDOWN, key, repeat);
        return;
    }
    if (const WPARAM character = controlCharacter(event->key())) {
        m_view.WindowProc(WM_CHAR, character, 0);
        return;
    }
    for (uint character : event->text().toUcs4())
        m_view.WindowProc(WM_CHAR, character, 0);
}

// createImages alone would compare with the size of the widget, of which only a part is shown.
void Canvas::makeImages(const QSize& size)
{
    if (size == m_imageSize)
        return;
    m_image.destroyImages();
    m_image.createImages(size.width(), size.height(), 4);
    m_imageSize = size;
}

// The view paints a whole number of times as large, which is then made smaller, never larger.
void Canvas::paintView(const QPointF& corner)
{
    KtQtPainterWrapper& painter = *m_image.memPainter();
    if (!painter.beginDraw())
        return;
    const double factor = devicePixelRatioF() * m_view.GetZoom() / 100;
    const int scale = static_cast<int>(std::ceil(factor - kAlmost));
    painter.wrappedPainter()->translate(-corner * devicePixelRatioF());
    painter.wrappedPainter()->scale(factor / scale, factor / scale);
    m_view.OnDraw(painter, scale);
    painter.endDraw();
}

void Canvas::paintEvent(QPaintEvent*)
{
    const QRect visible = visibleRegion().boundingRect();
    const double ratio = devicePixelRatioF();
    const QSizeF pixels = QSizeF(visible.size()) * ratio;
    makeImages(QSize(static_cast<int>(std::ceil(pixels.width())),
                     static_cast<int>(std::ceil(pixels.height()))));
    if (m_imageSize.isEmpty())
        return;
    paintView(visible.topLeft());
    m_image.repairFrontBuffer();
    if (!m_image.frontImage())
        return; // so large that there is no memory for it
    m_image.frontImage()->setDevicePixelRatio(ratio);
    QPainter(this).drawImage(visible.topLeft(), *m_image.frontImage());
    m_image.frontImage()->setDevicePixelRatio(1);
}

QImage Canvas::selectionPicture()
{
    const CRect bounds = m_view.GetSelectionBounds();
    QImage picture(bounds.right - bounds.left + 1, bounds.bottom - bounds.top + 1,
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    m_picturePainter.setWrappedDevice(&picture);
    m_picturePainter.beginDraw();
    m_picturePainter.wrappedPainter()->translate(-bounds.left, -bounds.top);
    m_view.OnDrawSelection(m_picturePainter);
    m_picturePainter.endDraw();
    m_picturePainter.setWrappedDevice(nullptr);
    return picture;
}
