// SPDX-License-Identifier: MIT
//
// A document of two pages, printed to PDF, drawn by another program and compared with the screen.
#include "drawing/Twin.h"
#include "support/RunProgram.h"

#include <QtCore/QMarginsF>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPageSize>
#include <QtGui/QPdfWriter>

namespace {

// One unit is a pixel of the screen and a point of the page.
constexpr QSize kPage(200, 150);

// The other program smooths nothing here, but rounds edges by half a pixel and draws glyphs in its
// own way: one pixel in fifty may differ by more than a quarter of the scale.
constexpr support::Tolerance kTolerance = {64, 0.02};

void drawShapes(KtQtPainterWrapper& p)
{
    const POINT corners[] = {{20, 20}, {90, 30}, {70, 90}, {25, 70}};
    POINT clip[] = {{110, 20}, {190, 20}, {150, 90}};
    unsigned int three = 3;
    p.setPen(PS_SOLID, 3, 0x000000C0);
    p.setBrush(0x0080FF80u);
    p.drawPolygon(corners, 4);
    p.save();
    p.setClipRegion(clip, &three, 1);
    p.fillRect(QRect(100, 10, 100, 60), Qt::blue);
    p.restore();
    p.drawAlphaRect(CRect(60, 60, 140, 130), 0x00FF00FF, 90);
}

void drawPathAndText(KtQtPainterWrapper& p)
{
    const POINT corners[] = {{30, 20}, {170, 20}, {100, 70}};
    const LOGFONTW font = {36, 0, 0, 0, 700, 0, 0, 0, 0, 0, 0, 0, 0, L"DejaVu Sans"};
    p.beginPath();
    p.drawPolyline(corners, 3);
    p.setBrush(0x0000C0FFu);
    p.fillPath(*p.getPainterPath());
    p.endPath();
    p.setFontIndirect(&font);
    p.drawText(20, 120, L"Page 2", -1);
    p.setPen(PS_DASH, 2, 0x00FF0000);
    p.drawPolyline(corners, 2);
}

void print(const QString& file)
{
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QSizeF(kPage), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(72);
    KtQtPrinterPainter painter(&writer);
    painter.beginDraw();
    drawShapes(painter);
    painter.endDraw();
    writer.newPage();
    painter.beginDraw();
    drawPathAndText(painter);
    painter.endDraw();
}

QImage onScreen(void (*draw)(KtQtPainterWrapper&))
{
    QImage image(kPage, QImage::Format_RGB32);
    image.fill(Qt::white);
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    draw(painter);
    painter.endDraw();
    return image;
}

class Pdf : public ::testing::Test
{
protected:
    void SetUp() override
    {
        print(folder.filePath(QStringLiteral("document.pdf")));
        const ProgramResult result =
            runProgram("pdftoppm", {"-r", "72", "-aaVector", "no", "-png",
                                    folder.filePath(QStringLiteral("document.pdf")),
                                    folder.filePath(QStringLiteral("page"))});
        ASSERT_EQ(result.status, 0) << "pdftoppm must be installed";
    }

    QImage page(int number)
    {
        return QImage(folder.filePath(QStringLiteral("page-%1.png").arg(number)));
    }

    QTemporaryDir folder;
};

TEST_F(Pdf, FirstPageLooksLikeTheScreen)
{
    EXPECT_TRUE(support::similarPicture(onScreen(drawShapes), page(1), kTolerance));
}

TEST_F(Pdf, SecondPageLooksLikeTheScreen)
{
    EXPECT_TRUE(support::similarPicture(onScreen(drawPathAndText), page(2), kTolerance));
}

TEST_F(Pdf, HasTwoPagesThatDiffer)
{
    EXPECT_TRUE(page(3).isNull());
    EXPECT_FALSE(support::areSimilar(onScreen(drawShapes), page(2), kTolerance));
}

} // namespace
