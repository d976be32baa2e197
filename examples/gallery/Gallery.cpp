// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include <QtGui/QPaintDevice>

namespace {

constexpr int kColumns = 8;
constexpr int kMargin = 12;
constexpr int kStepX = kCellWidth + 16;
constexpr int kStepY = kCellHeight + 36;

struct Family
{
    const wchar_t* name;
    Cells cells;
};

const std::vector<Family>& families()
{
    static const std::vector<Family> all = {
        {L"Pens", penCells()},
        {L"Brushes and backgrounds", brushCells()},
        {L"Text", textCells()},
        {L"Shapes and paths", shapeCells()},
        {L"Clips and states", clipCells()},
        {L"Images and composition modes", imageCells()},
    };
    return all;
}

constexpr int kHeading = 26;

int rowsOf(const Family& family)
{
    return (static_cast<int>(family.cells.size()) + kColumns - 1) / kColumns;
}

void setFont(KtQtPainterWrapper& painter, int pixels, int weight)
{
    LOGFONTW font = {
        heightForPixels(painter, pixels), 0, 0, 0, weight, 0, 0, 0, 0, 0, 0, 0, 0, L"DejaVu Sans"};
    painter.setFontIndirect(&font);
}

void drawHeading(KtQtPainterWrapper& painter, const wchar_t* text, int y)
{
    setFont(painter, 14, FW_BOLD);
    painter.setPen(PS_SOLID, 1, 0x00602000);
    painter.drawText(kMargin, y + 17, text, -1);
    const POINT line[] = {{kMargin, y + 22}, {gallerySize().width() - kMargin, y + 22}};
    painter.drawPolyline(line, 2);
}

void drawFrame(KtQtPainterWrapper& painter)
{
    painter.setPen(PS_SOLID, 1, 0x00D8D8D8);
    painter.setBrush(0x00FFFFFFu);
    const POINT corners[] = {
        {-4, -4}, {kCellWidth + 4, -4}, {kCellWidth + 4, kCellHeight + 4}, {-4, kCellHeight + 4}};
    painter.drawPolygon(corners, 4);
}

// restore does not remove a stored clip, so it is removed here for all cells.
void drawCell(KtQtPainterWrapper& painter, const Cell& cell, int x, int y)
{
    painter.save();
    painter.Rotate(0, x, y);
    drawFrame(painter);
    painter.save();
    painter.setPen(PS_SOLID, 0, 0);
    painter.setBrush(0u);
    cell.draw(painter);
    painter.setClipRegion(nullptr, nullptr, 0);
    painter.restore();
    setFont(painter, 10, FW_NORMAL);
    painter.setPen(PS_SOLID, 1, 0x00404040);
    painter.drawText(-3, kCellHeight + 17, cell.label, -1);
    painter.restore();
}

void drawFamily(KtQtPainterWrapper& painter, const Family& family, int top)
{
    drawHeading(painter, family.name, top);
    int index = 0;
    for (const Cell& cell : family.cells) {
        const int x = kMargin + 8 + index % kColumns * kStepX;
        const int y = top + kHeading + 8 + index / kColumns * kStepY;
        drawCell(painter, cell, x, y);
        ++index;
    }
}

} // namespace

QSize gallerySize()
{
    int height = kMargin;
    for (const Family& family : families())
        height += kHeading + rowsOf(family) * kStepY + 8;
    return QSize(2 * kMargin + kColumns * kStepX, height + kMargin);
}

void drawGallery(KtQtPainterWrapper& painter)
{
    painter.fillRect(QRect(QPoint(0, 0), gallerySize()), Qt::white);
    int top = kMargin;
    for (const Family& family : families()) {
        drawFamily(painter, family, top);
        top += kHeading + rowsOf(family) * kStepY + 8;
    }
}

int heightForPixels(const KtQtPainterWrapper& painter, int pixels)
{
    const int depth = painter.wrappedDevice()->depth();
    return (pixels * 36 + depth - 1) / depth;
}
