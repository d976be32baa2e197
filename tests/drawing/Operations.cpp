// SPDX-License-Identifier: MIT
#include "drawing/Operations.h"

#include <cwchar>

namespace drawing {
namespace {

// An operation written once, for both painters.
template<class Calls>
Operation operation(const char* name, When when, Calls calls)
{
    return {name, when, calls, calls};
}

void addState(std::vector<Operation>& all)
{
    const When when = When::InSession;
    all.push_back(operation("setPen(style)", when, [](auto& p, Lot& lot) {
        const int style = lot.below(16) | lot.below(3) << 12;
        const int width = lot.below(9);
        p.setPen(style, width, lot.color());
    }));
    all.push_back(operation("setPen(QPen)", when, [](auto& p, Lot& lot) { p.setPen(lot.pen()); }));
    all.push_back(
        operation("setPenColor", when, [](auto& p, Lot& lot) { p.setPenColor(lot.color()); }));
    all.push_back(
        operation("setBrush(style)", when, [](auto& p, Lot& lot) { p.setBrush(lot.below(15)); }));
    all.push_back(
        operation("setBrush(colour)", when, [](auto& p, Lot& lot) { p.setBrush(lot.color()); }));
    all.push_back(operation("setBrush(QBrush)", when, [](auto& p, Lot& lot) {
        const auto style = static_cast<Qt::BrushStyle>(lot.below(15));
        p.setBrush(QBrush(QColor::fromRgba(lot.color()), style));
    }));
    all.push_back(
        operation("setBkMode", when, [](auto& p, Lot& lot) { p.setBkMode(lot.between(1, 2)); }));
    all.push_back(
        operation("setBackground", when, [](auto& p, Lot& lot) { p.setBackground(lot.color()); }));
    all.push_back(operation("setROP2", when, [](auto& p, Lot& lot) { p.setROP2(lot.below(38)); }));
    all.push_back(operation("setROP2(over)", when, [](auto& p, Lot&) { p.setROP2(0); }));
    all.push_back(operation("setFontIndirect", when, [](auto& p, Lot& lot) {
        const LOGFONTW lf = lot.font();
        p.setFontIndirect(&lf);
    }));
    all.push_back(operation("Rotate", when, [](auto& p, Lot& lot) {
        const double angle = lot.between(-40, 40) * 0.5;
        const int x = lot.between(-6, 6);
        p.Rotate(angle, x, lot.between(-6, 6));
    }));
}

void addClips(std::vector<Operation>& all)
{
    all.push_back(operation("setClipRect", When::InSession, [](auto& p, Lot& lot) {
        const QRect rect = lot.rect();
        p.setClipRect(rect, static_cast<Qt::ClipOperation>(lot.below(3)));
    }));
    all.push_back(operation("setClipRegion", When::Always, [](auto& p, Lot& lot) {
        std::vector<POINT> points = lot.points(12);
        unsigned counts[] = {5, 0, 7};
        counts[1] = static_cast<unsigned>(lot.below(4));
        counts[2] -= counts[1];
        p.setClipRegion(points.data(), counts, 3);
    }));
    all.push_back(operation("setClipRegion(none)", When::Always,
                            [](auto& p, Lot&) { p.setClipRegion(nullptr, nullptr, 0); }));
}

void addPaths(std::vector<Operation>& all)
{
    const When when = When::InSession;
    all.push_back(operation("beginPath", When::Always, [](auto& p, Lot&) { p.beginPath(); }));
    all.push_back(operation("endPath", When::Always, [](auto& p, Lot&) { p.endPath(); }));
    all.push_back(operation("fillPath", when, [](auto& p, Lot&) {
        if (const QPainterPath* path = p.getPainterPath())
            p.fillPath(*path);
    }));
    all.push_back(operation("strokePath", when, [](auto& p, Lot&) {
        if (const QPainterPath* path = p.getPainterPath())
            p.strokePath(*path);
    }));
    all.push_back(operation("strokeAndFillPath", when, [](auto& p, Lot&) {
        if (QPainterPath* path = p.getPainterPath())
            p.strokeAndFillPath(path);
    }));
}

void addShapes(std::vector<Operation>& all)
{
    const When when = When::InSession;
    all.push_back(operation("drawPoint", when, [](auto& p, Lot& lot) {
        const int x = lot.place();
        p.drawPoint(x, lot.place());
    }));
    all.push_back(operation("drawPolyline", when, [](auto& p, Lot& lot) {
        const int count = lot.between(1, 6);
        p.drawPolyline(lot.points(count).data(), count);
    }));
    all.push_back(operation("drawPolygon", when, [](auto& p, Lot& lot) {
        const int count = lot.between(2, 6);
        p.drawPolygon(lot.points(count).data(), count);
    }));
    all.push_back(operation("drawAlphaRect", when, [](auto& p, Lot& lot) {
        const std::vector<POINT> corners = lot.points(2);
        const CRect rc(corners[0].x, corners[0].y, corners[1].x, corners[1].y);
        const unsigned color = lot.color();
        p.drawAlphaRect(rc, color, lot.below(256));
    }));
    all.push_back(operation("fillRect", when, [](auto& p, Lot& lot) {
        const QRect rect = lot.rect();
        p.fillRect(rect, static_cast<Qt::GlobalColor>(lot.between(Qt::black, Qt::darkYellow)));
    }));
}

void addTextAndImages(std::vector<Operation>& all)
{
    const When when = When::InSession;
    all.push_back(operation("drawText", when, [](auto& p, Lot& lot) {
        const int x = lot.place();
        const int y = lot.place();
        p.drawText(x, y, L"Quay \u00E9t\u00E9", lot.between(-1, 8));
    }));
    all.push_back(operation("drawImage(raw)", when, [](auto& p, Lot& lot) {
        std::vector<unsigned char> bits(std::size_t{40} * 40 * 4);
        for (unsigned char& byte : bits)
            byte = static_cast<unsigned char>(lot.below(256) | 0xC0);
        const int x = lot.between(1, 40);
        const int y = lot.between(1, 40);
        p.drawImage(x, y, bits.data(), 1, 2, lot.between(4, 5));
    }));
    all.push_back(operation("drawImage(scaled)", when, [](auto& p, Lot& lot) {
        QImage image(lot.between(1, 20), 9, QImage::Format_RGB32);
        image.fill(lot.color());
        image.setPixel(0, 4, lot.color());
        QRect target = lot.rect();
        p.drawImage(target, image);
    }));
}

} // namespace

std::vector<POINT> Lot::points(int count)
{
    std::vector<POINT> result(static_cast<std::size_t>(count));
    for (POINT& point : result) {
        point.x = place();
        point.y = place();
    }
    return result;
}

QRect Lot::rect()
{
    const QPoint corner(place(), between(-8, 60));
    return QRect(corner, QSize(between(1, 50), between(1, 50)));
}

QPen Lot::pen()
{
    QPen pen(QColor::fromRgba(color()));
    pen.setWidthF(below(60) / 10.0);
    pen.setStyle(static_cast<Qt::PenStyle>(below(6)));
    return pen;
}

LOGFONTW Lot::font()
{
    static const wchar_t* const kFaces[] = {L"DejaVu Sans", L"DejaVu Serif", L"", L"no such face"};
    LOGFONTW lf = {};
    lf.lfHeight = between(-2, 30);
    lf.lfWeight = between(1, 9) * 10;
    lf.lfItalic = static_cast<BYTE>(below(2));
    lf.lfPitchAndFamily = static_cast<BYTE>(below(3));
    std::wcscpy(lf.lfFaceName, kFaces[below(4)]);
    return lf;
}

const std::vector<Operation>& operations()
{
    static const std::vector<Operation> all = [] {
        std::vector<Operation> list;
        addState(list);
        addClips(list);
        addPaths(list);
        addShapes(list);
        addTextAndImages(list);
        return list;
    }();
    return all;
}

} // namespace drawing
