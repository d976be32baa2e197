// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include <QtGui/QPaintDevice>

namespace {

constexpr int kMargin = 12;
constexpr int kHeading = 26;
constexpr int kRowWidth = 8 * (kCellWidth + kCellGap);
constexpr int kStepY = kCellHeight + 50;

struct Family
{
    const wchar_t* name;
    int cellWidth;
    Cells cells;

    int columns() const { return kRowWidth / (cellWidth + kCellGap); }
    int rows() const { return (static_cast<int>(cells.size()) + columns() - 1) / columns(); }
    int height() const { return kHeading + rows() * kStepY + 8; }
};

const std::vector<Family>& families()
{
    static const std::vector<Family> all = {
        {L"Pen styles", kWideCell, penStyleCells()},
        {L"Pen widths", kCellWidth, penWidthCells()},
        {L"Brushes and backgrounds", kCellWidth, brushCells()},
        {L"Text", kCellWidth, textCells()},
        {L"Shapes and paths", kCellWidth, shapeCells()},
        {L"Clips and states", kCellWidth, clipCells()},
        {L"Images and composition modes", kCellWidth, imageCells()},
    };
    return all;
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

void drawFrame(KtQtPainterWrapper& painter, const QSize& cell)
{
    const int right = cell.width() + 4;
    const int bottom = cell.height() + 4;
    painter.setPen(PS_SOLID, 1, 0x00D8D8D8);
    painter.setBrush(0x00FFFFFFu);
    const POINT corners[] = {{-4, -4}, {right, -4}, {right, bottom}, {-4, bottom}};
    painter.drawPolygon(corners, 4);
}

void drawLabel(KtQtPainterWrapper& painter, const Cell& cell)
{
    setFont(painter, 10, FW_NORMAL);
    painter.setPen(PS_SOLID, 1, 0x00404040);
    painter.drawText(-3, kCellHeight + 17, cell.shows, -1);
    painter.setPenColor(0x00903000);
    painter.drawText(-3, kCellHeight + 30, cell.call, -1);
}

// restore does not remove a stored clip, so it is removed here for all cells.
void drawCell(KtQtPainterWrapper& painter, const PlacedCell& placed)
{
    painter.save();
    painter.Rotate(0, placed.place.x(), placed.place.y());
    drawFrame(painter, placed.place.size());
    painter.save();
    painter.setPen(PS_SOLID, 0, 0);
    painter.setBrush(0u);
    placed.cell->draw(painter);
    painter.setClipRegion(nullptr, nullptr, 0);
    painter.restore();
    drawLabel(painter, *placed.cell);
    painter.restore();
}

void placeFamily(std::vector<PlacedCell>& placed, const Family& family, int top)
{
    int index = 0;
    for (const Cell& cell : family.cells) {
        const int x = kMargin + 8 + index % family.columns() * (family.cellWidth + kCellGap);
        const int y = top + kHeading + 8 + index / family.columns() * kStepY;
        placed.push_back({family.name, &cell, QRect(x, y, family.cellWidth, kCellHeight)});
        ++index;
    }
}

} // namespace

QSize gallerySize()
{
    int height = 2 * kMargin;
    for (const Family& family : families())
        height += family.height();
    return QSize(2 * kMargin + kRowWidth, height);
}

std::vector<PlacedCell> placedCells()
{
    std::vector<PlacedCell> placed;
    int top = kMargin;
    for (const Family& family : families()) {
        placeFamily(placed, family, top);
        top += family.height();
    }
    return placed;
}

void drawGallery(KtQtPainterWrapper& painter)
{
    painter.fillRect(QRect(QPoint(0, 0), gallerySize()), Qt::white);
    int top = kMargin;
    for (const Family& family : families()) {
        drawHeading(painter, family.name, top);
        top += family.height();
    }
    for (const PlacedCell& placed : placedCells())
        drawCell(painter, placed);
}

int heightForPixels(const KtQtPainterWrapper& painter, int pixels)
{
    const int depth = painter.wrappedDevice()->depth();
    return (pixels * 36 + depth - 1) / depth;
}
