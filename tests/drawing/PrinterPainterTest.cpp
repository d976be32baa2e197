// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"
#include "drawing/Warnings.h"

#include <QtCore/QBuffer>
#include <QtGui/QPdfWriter>

#include <type_traits>

namespace {

TEST(PrinterPainter, AddsNoFieldAndNoVirtualTable)
{
    EXPECT_EQ(sizeof(KtQtPrinterPainter), sizeof(KtQtPainterWrapper));
    EXPECT_FALSE(std::is_polymorphic<KtQtPrinterPainter>::value);
    EXPECT_TRUE((std::is_base_of<KtQtPainterWrapper, KtQtPrinterPainter>::value));
}

TEST(PrinterPainter, PaintsFromItsBirthToItsDeath)
{
    QImage image = drawing::ground();
    {
        KtQtPrinterPainter painter(&image);
        EXPECT_EQ(painter.wrappedDevice(), &image);
        EXPECT_TRUE(painter.wrappedPainter()->isActive());
        EXPECT_TRUE(painter.beginDraw());
        EXPECT_TRUE(painter.endDraw());
        EXPECT_TRUE(painter.wrappedPainter()->isActive());
        EXPECT_TRUE(image.paintingActive());
    }
    EXPECT_FALSE(image.paintingActive());
}

TEST(PrinterPainter, EndsPaintingAlsoWhereItsDeviceWasReplaced)
{
    QImage image = drawing::ground();
    QImage other = drawing::ground();
    for (QPaintDevice* const device : {static_cast<QPaintDevice*>(&other), {}}) {
        {
            KtQtPrinterPainter painter(&image);
            painter.setWrappedDevice(device);
            EXPECT_TRUE(image.paintingActive());
        }
        EXPECT_FALSE(image.paintingActive());
    }
}

TEST(PrinterPainter, EndsWhatTheHostBegan)
{
    QImage image = drawing::ground();
    {
        KtQtPrinterPainter painter(nullptr);
        painter.wrappedPainter()->begin(&image);
    }
    EXPECT_FALSE(image.paintingActive());
}

TEST(PrinterPainter, DoesNotBeginInASessionWhatTheHostEnded)
{
    QImage image = drawing::ground();
    KtQtPrinterPainter painter(&image);
    painter.wrappedPainter()->end();
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    EXPECT_TRUE(painter.endDraw());
}

// Qt warns of a second begin, of a state that is left behind and of one that was never saved.
TEST(PrinterPainter, BeginsAndEndsOnceAndRestoresAsOftenAsItSaved)
{
    QImage image = drawing::ground();
    const drawing::Warnings warnings;
    {
        KtQtPrinterPainter painter(&image);
        for (int i = 0; i < 2; ++i) {
            painter.beginDraw();
            painter.endDraw();
        }
    }
    EXPECT_EQ(warnings.texts(), std::vector<std::string>());
}

TEST(PrinterPainter, TakesTheClipOfASessionBack)
{
    QImage image = drawing::ground();
    KtQtPrinterPainter painter(&image);
    painter.beginDraw();
    painter.setClipRect(QRect(0, 0, 5, 5), Qt::ReplaceClip);
    EXPECT_TRUE(painter.wrappedPainter()->hasClipping());
    painter.endDraw();
    EXPECT_FALSE(painter.wrappedPainter()->hasClipping());
}

TEST(PrinterPainter, WithoutADeviceNeverPaints)
{
    KtQtPrinterPainter painter(nullptr);
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    EXPECT_FALSE(painter.beginDraw());
    EXPECT_FALSE(painter.endDraw());
}

TEST(PrinterPainter, OnARefusingDeviceDrawsNothingButAnswersTrue)
{
    QImage image;
    KtQtPrinterPainter painter(&image);
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_TRUE(painter.endDraw());
}

TEST(PrinterPainter, SetsTheDefaultsAndTakesThemBack)
{
    QImage image = drawing::ground();
    KtQtPrinterPainter painter(&image);
    painter.setPen(PS_SOLID, 4, 0x000000FF);
    painter.setBrush(0x0000FF00u);
    painter.beginDraw();
    EXPECT_EQ(painter.getPen(), QPen(QBrush(Qt::black), 0, Qt::SolidLine));
    EXPECT_EQ(painter.getBrush(), QBrush(Qt::black, Qt::SolidPattern));
    painter.endDraw();
    EXPECT_EQ(painter.getPen().color(), QColor(Qt::red));
    EXPECT_EQ(painter.getBrush(), QBrush(Qt::green));
}

TEST(PrinterPainter, DoesNotApplyTheStoredClip)
{
    QImage image = drawing::ground();
    KtQtPrinterPainter painter(&image);
    painter.setClipRegion(drawing::kSquare, &drawing::kFour, 1);
    EXPECT_TRUE(painter.wrappedPainter()->hasClipping());
    painter.setClipRect(QRect(), Qt::NoClip);
    painter.beginDraw();
    EXPECT_FALSE(painter.wrappedPainter()->hasClipping());
    EXPECT_FALSE(painter.m_rClipRegion.isEmpty());
    painter.endDraw();
}

TEST(PrinterPainter, SessionsMayLieInEachOther)
{
    QImage image = drawing::ground();
    KtQtPrinterPainter painter(&image);
    painter.beginDraw();
    painter.setPenColor(0x000000FF);
    painter.beginDraw();
    painter.setPenColor(0x0000FF00);
    painter.endDraw();
    EXPECT_EQ(painter.getPen().color(), QColor(Qt::red));
    painter.endDraw();
}

TEST(PrinterPainter, DrawsThePlainPicture)
{
    QImage actual = drawing::ground();
    {
        KtQtPrinterPainter painter(&actual);
        painter.beginDraw();
        painter.setBrush(0x000000FFu);
        painter.drawPolygon(drawing::kSquare, 4);
        painter.endDraw();
    }
    QImage expected = drawing::ground();
    QPainter plain(&expected);
    plain.setPen(QPen(Qt::black, 0));
    plain.setBrush(Qt::red);
    plain.drawPolygon(QPolygon({{10, 10}, {50, 10}, {50, 50}, {10, 50}}));
    plain.end();
    EXPECT_TRUE(support::samePicture(expected, actual));
}

TEST(PrinterPainter, FinishesTheDocumentWhenItDies)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    {
        KtQtPrinterPainter painter(&writer);
        painter.beginDraw();
        painter.endDraw();
        EXPECT_FALSE(buffer.data().contains("%%EOF"));
    }
    EXPECT_TRUE(buffer.data().contains("%%EOF"));
}

} // namespace
