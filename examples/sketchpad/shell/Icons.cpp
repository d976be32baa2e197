// SPDX-License-Identifier: MIT
#include "Icons.h"

#include "app/Commands.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <cmath>
#include <map>

namespace {

constexpr int kSize = 20; // of all that is drawn here
constexpr QStyle::StandardPixmap kNone = QStyle::SP_CustomBase;

// The path is drawn where the desktop has no icon of this name.
struct Named
{
    const char* theme;
    QStyle::StandardPixmap fallback = kNone;
    QPainterPath (*path)() = nullptr;
};

QPainterPath print()
{
    QPainterPath path;
    path.addRect(2.5, 7.5, 15, 7);
    path.addRect(5.5, 2.5, 9, 5);
    path.addRect(5.5, 12.5, 9, 5);
    return path;
}

QPainterPath magnifier()
{
    QPainterPath path;
    path.addEllipse(QRectF(2, 2, 11, 11));
    path.moveTo(11.5, 11.5);
    path.lineTo(18, 18);
    return path;
}

QPainterPath preview()
{
    QPainterPath path = magnifier();
    path.addRect(5.5, 4.5, 4, 6);
    return path;
}

QPainterPath zoomOut()
{
    QPainterPath path = magnifier();
    path.moveTo(5, 7.5);
    path.lineTo(10, 7.5);
    return path;
}

QPainterPath zoomIn()
{
    QPainterPath path = zoomOut();
    path.moveTo(7.5, 5);
    path.lineTo(7.5, 10);
    return path;
}

QPainterPath fullSize()
{
    QPainterPath path = magnifier();
    path.moveTo(6, 6);
    path.lineTo(8, 5);
    path.lineTo(8, 10);
    return path;
}

QPainterPath fitWindow()
{
    QPainterPath path;
    path.addRect(2.5, 3.5, 15, 13);
    path.addRect(5.5, 6.5, 9, 7);
    return path;
}

QPainterPath cut()
{
    QPainterPath path(QPointF(5, 2));
    path.lineTo(13, 14);
    path.moveTo(15, 2);
    path.lineTo(7, 14);
    path.addEllipse(QRectF(3, 13, 5, 5));
    path.addEllipse(QRectF(12, 13, 5, 5));
    return path;
}

QPainterPath copy()
{
    QPainterPath path(QPointF(6, 13));
    path.lineTo(2.5, 13);
    path.lineTo(2.5, 2.5);
    path.lineTo(12, 2.5);
    path.lineTo(12, 6);
    path.addRect(6.5, 6.5, 10, 11);
    return path;
}

QPainterPath paste()
{
    QPainterPath path;
    path.addRect(3.5, 3.5, 13, 14);
    path.addRect(7.5, 1.5, 5, 4);
    path.moveTo(6.5, 10);
    path.lineTo(13.5, 10);
    path.moveTo(6.5, 14);
    path.lineTo(13.5, 14);
    return path;
}

QPainterPath selectAll()
{
    QPainterPath path;
    path.addRect(6.5, 6.5, 7, 7);
    for (const double at : {2.5, 17.5}) {
        for (const double from : {2.5, 8.5, 14.5}) {
            path.moveTo(from, at);
            path.lineTo(from + 3, at);
            path.moveTo(at, from);
            path.lineTo(at, from + 3);
        }
    }
    return path;
}

const std::map<unsigned int, Named>& named()
{
    static const std::map<unsigned int, Named> all = {
        {ID_FILE_NEW, {"document-new", QStyle::SP_FileIcon}},
        {ID_FILE_OPEN, {"document-open", QStyle::SP_DialogOpenButton}},
        {ID_FILE_SAVE, {"document-save", QStyle::SP_DialogSaveButton}},
        {ID_FILE_SAVE_AS, {"document-save-as", QStyle::SP_DialogSaveButton}},
        {ID_FILE_PRINT, {"document-print", kNone, print}},
        {ID_FILE_PRINT_PREVIEW, {"document-print-preview", kNone, preview}},
        {ID_APP_EXIT, {"application-exit", QStyle::SP_DialogCloseButton}},
        {ID_EDIT_UNDO, {"edit-undo", QStyle::SP_ArrowBack}},
        {ID_EDIT_REDO, {"edit-redo", QStyle::SP_ArrowForward}},
        {ID_EDIT_CUT, {"edit-cut", kNone, cut}},
        {ID_EDIT_COPY, {"edit-copy", kNone, copy}},
        {ID_EDIT_PASTE, {"edit-paste", kNone, paste}},
        {ID_EDIT_CLEAR, {"edit-delete", QStyle::SP_TrashIcon}},
        {ID_EDIT_SELECT_ALL, {"edit-select-all", kNone, selectAll}},
        {ID_VIEW_ZOOM_IN, {"zoom-in", kNone, zoomIn}},
        {ID_VIEW_ZOOM_OUT, {"zoom-out", kNone, zoomOut}},
        {ID_VIEW_ZOOM_FULL, {"zoom-original", kNone, fullSize}},
        {ID_VIEW_ZOOM_FIT, {"zoom-fit-best", kNone, fitWindow}},
        {ID_APP_ABOUT, {"help-about", QStyle::SP_MessageBoxInformation}}};
    return all;
}

QPainterPath star()
{
    QPainterPath path(QPointF(10, 1));
    for (int i = 1; i < 10; ++i) {
        const double angle = std::acos(-1.0) * (i / 5.0 - 0.5);
        const double radius = i % 2 == 0 ? 9.0 : 3.8;
        path.lineTo(10 + radius * std::cos(angle), 10 + radius * std::sin(angle));
    }
    path.closeSubpath();
    return path;
}

QPainterPath arrow()
{
    QPainterPath path(QPointF(5, 2));
    for (const QPointF& point : {QPointF(5, 16), QPointF(8.5, 13), QPointF(11, 18), QPointF(13, 17),
                                 QPointF(10.5, 12), QPointF(15, 12)})
        path.lineTo(point);
    path.closeSubpath();
    return path;
}

QPainterPath letter()
{
    QPainterPath path(QPointF(4, 4));
    path.lineTo(16, 4);
    path.moveTo(10, 4);
    path.lineTo(10, 17);
    return path;
}

QPainterPath toolPath(unsigned int tool)
{
    QPainterPath path;
    if (tool == TOOL_FREEHAND) {
        path.moveTo(2, 14);
        path.cubicTo(7, -6, 11, 26, 18, 5);
    } else if (tool == TOOL_LINE) {
        path.moveTo(3, 17);
        path.lineTo(17, 3);
    } else if (tool == TOOL_RECTANGLE) {
        path.addRect(2.5, 4.5, 15, 11);
    } else if (tool == TOOL_ELLIPSE) {
        path.addEllipse(QRectF(2, 4, 16, 12));
    }
    return path;
}

QPainterPath pathOf(unsigned int tool)
{
    switch (tool) {
    case TOOL_SELECT:
        return arrow();
    case TOOL_TEXT:
        return letter();
    case TOOL_PLUGIN:
        return star();
    default:
        return toolPath(tool);
    }
}

// For each density that a screen may have.
template<class Draw>
QIcon drawn(const Draw& draw)
{
    QIcon icon;
    for (int ratio : {1, 2, 3}) {
        QPixmap pixmap(QSize(kSize, kSize) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon pathIcon(const QPainterPath& path, double width, const QColor& ink)
{
    return drawn([&path, width, &ink](QPainter& painter) {
        painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path);
    });
}

QIcon colorIcon(COLORREF color, const QColor& ink)
{
    return drawn([color, &ink](QPainter& painter) {
        painter.setPen(QPen(ink, 1));
        painter.setBrush(QColor(GetRValue(color), GetGValue(color), GetBValue(color)));
        painter.drawRect(QRectF(2.5, 2.5, 15, 15));
    });
}

QIcon desktopIcon(const Named& name, const QColor& ink)
{
    QIcon icon = QIcon::fromTheme(name.theme);
    if (!icon.isNull())
        return icon;
    if (name.path)
        return pathIcon(name.path(), 1.2, ink);
    return QApplication::style()->standardIcon(name.fallback);
}

} // namespace

QIcon iconOf(unsigned int command, const QColor& ink)
{
    const auto known = named().find(command);
    if (known != named().end())
        return desktopIcon(known->second, ink);
    if (command >= ID_TOOL_FIRST && command <= ID_TOOL_LAST)
        return pathIcon(pathOf(command - ID_TOOL_FIRST), 1.6, ink);
    if (command >= ID_PEN_COLOR_FIRST && command <= ID_PEN_COLOR_LAST)
        return colorIcon(kColors[command - ID_PEN_COLOR_FIRST], ink);
    if (command >= ID_FILL_COLOR_FIRST && command <= ID_FILL_COLOR_LAST)
        return colorIcon(kColors[command - ID_FILL_COLOR_FIRST], ink);
    return QIcon();
}
