// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <climits>
#include <cstring>
#include <type_traits>

namespace {

QImage transparent(int width, int height)
{
    QImage image(width, height, drawing::kScreen);
    image.fill(Qt::transparent);
    return image;
}

class DoubleBuffer : public ::testing::Test
{
protected:
    void SetUp() override { widget.resize(100, 50); }

    void expectNoImages()
    {
        EXPECT_FALSE(buffer.m_bCreated);
        EXPECT_EQ(buffer.memImage(), nullptr);
        EXPECT_EQ(buffer.frontImage(), nullptr);
        EXPECT_EQ(buffer.memBits(), nullptr);
        EXPECT_EQ(buffer.memPainter()->wrappedDevice(), nullptr);
        EXPECT_EQ(buffer.frontPainter()->wrappedDevice(), nullptr);
    }

    QWidget widget;
    KtGrQtDoubleBufferImage buffer{&widget};
};

TEST_F(DoubleBuffer, StartsWithWrappersAPaletteAndNoImages)
{
    expectNoImages();
    ASSERT_NE(buffer.memPainter(), nullptr);
    ASSERT_NE(buffer.frontPainter(), nullptr);
    EXPECT_NE(buffer.memPainter(), buffer.frontPainter());
    EXPECT_EQ(*buffer.getHPalette(), QPalette());
    EXPECT_EQ(buffer.backupBits(), nullptr);
    EXPECT_EQ(buffer.destinationWidget(), &widget);
}

// Hosts are compiled against these places.
TEST_F(DoubleBuffer, HasItsFieldsAtTheirPlacesAndNoVirtualTable)
{
    const auto place = [this](const void* field) {
        return static_cast<const char*>(field) - reinterpret_cast<const char*>(&buffer);
    };
    EXPECT_EQ(place(&buffer.m_pMemBits), 0);
    EXPECT_EQ(place(&buffer.m_pMemPainter), 8);
    EXPECT_EQ(place(&buffer.m_pMemImage), 16);
    EXPECT_EQ(place(&buffer.m_pFrontPainter), 24);
    EXPECT_EQ(place(&buffer.m_pFrontImage), 32);
    EXPECT_EQ(place(&buffer.m_pBackupBits), 40);
    EXPECT_EQ(place(&buffer.m_pDestWidget), 48);
    EXPECT_EQ(place(&buffer.m_pPalette), 56);
    EXPECT_EQ(place(&buffer.m_bCreated), 64);
    EXPECT_EQ(sizeof(KtGrQtDoubleBufferImage), 72u);
    EXPECT_FALSE(std::is_polymorphic<KtGrQtDoubleBufferImage>::value);
}

TEST_F(DoubleBuffer, HasFieldsOfTheirTypes)
{
    using Buffer = KtGrQtDoubleBufferImage;
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pMemBits), unsigned char*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pMemPainter), KtQtPainterWrapper*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pMemImage), QImage*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pFrontPainter), KtQtPainterWrapper*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pFrontImage), QImage*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pBackupBits), unsigned char*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pDestWidget), QWidget*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_pPalette), QPalette*>));
    EXPECT_TRUE((std::is_same_v<decltype(Buffer::m_bCreated), bool>));
}

QColor windowColour(const KtGrQtDoubleBufferImage& buffer)
{
    return buffer.getHPalette()->color(QPalette::Window);
}

// A palette has the colours that the application has when it is made.
TEST_F(DoubleBuffer, MakesItsPaletteOnceWhenItIsBorn)
{
    const QPalette before = QApplication::palette();
    const QPalette* const palette = buffer.m_pPalette;
    QPalette red = before;
    red.setColor(QPalette::Window, Qt::darkRed);
    QApplication::setPalette(red);
    const KtGrQtDoubleBufferImage later(&widget);
    EXPECT_EQ(windowColour(later), QColor(Qt::darkRed));
    buffer.createImages(100, 50, 4);
    EXPECT_EQ(buffer.getHPalette(), palette);
    EXPECT_EQ(windowColour(buffer), before.color(QPalette::Window));
    QApplication::setPalette(before);
}

TEST_F(DoubleBuffer, AnswersTrueToSessionsAtAllTimes)
{
    EXPECT_TRUE(buffer.beginDraw());
    EXPECT_TRUE(buffer.endDraw());
    buffer.createImages(100, 50, 4);
    EXPECT_TRUE(buffer.beginDraw());
    EXPECT_TRUE(buffer.endDraw());
    EXPECT_FALSE(buffer.memPainter()->wrappedPainter()->isActive());
}

TEST_F(DoubleBuffer, TakesSizeAndDepthFromTheWidget)
{
    QWidget other;
    other.resize(33, 44);
    buffer.createImages(100, 50, 4);
    EXPECT_EQ(buffer.width(), 100);
    EXPECT_EQ(buffer.height(), 50);
    EXPECT_EQ(buffer.depth(), widget.depth());
    buffer.setDestinationWidget(&other);
    EXPECT_EQ(buffer.destinationWidget(), &other);
    EXPECT_EQ(buffer.width(), 33);
    EXPECT_EQ(buffer.height(), 44);
    EXPECT_EQ(buffer.memImage()->size(), QSize(100, 50));
}

TEST_F(DoubleBuffer, CreatesABackImageOverItsBits)
{
    buffer.createImages(100, 50, 4);
    ASSERT_NE(buffer.memImage(), nullptr);
    EXPECT_EQ(buffer.memImage()->constBits(), buffer.memBits());
    EXPECT_EQ(buffer.memImage()->bytesPerLine(), 400);
    EXPECT_EQ(std::count(buffer.memBits(), buffer.memBits() + 20000, 0), 20000);
    EXPECT_TRUE(support::samePicture(transparent(100, 50), *buffer.memImage()));
    EXPECT_EQ(buffer.memPainter()->wrappedDevice(), buffer.memImage());
}

TEST_F(DoubleBuffer, CreatesATransparentFrontImage)
{
    buffer.createImages(100, 50, 4);
    EXPECT_TRUE(buffer.m_bCreated);
    EXPECT_TRUE(support::samePicture(transparent(100, 50), *buffer.frontImage()));
    EXPECT_EQ(buffer.frontPainter()->wrappedDevice(), buffer.frontImage());
    EXPECT_EQ(buffer.backupBits(), nullptr);
}

TEST_F(DoubleBuffer, KeepsTheImagesAtTheWidgetsSize)
{
    buffer.createImages(100, 50, 4);
    const QImage* const mem = buffer.memImage();
    buffer.memBits()[0] = 77;
    buffer.createImages(100, 50, 4);
    EXPECT_EQ(buffer.memImage(), mem);
    EXPECT_EQ(buffer.memBits()[0], 77);
}

TEST_F(DoubleBuffer, KeepsImagesOfAnotherSizeWhereTheWidgetHasTheOneAskedFor)
{
    buffer.createImages(30, 20, 4);
    const QImage* const mem = buffer.memImage();
    buffer.createImages(100, 50, 4);
    EXPECT_EQ(buffer.memImage(), mem);
    EXPECT_EQ(mem->size(), QSize(30, 20));
}

TEST_F(DoubleBuffer, MakesTheImagesAnewWhereTheWidgetHasAnotherSize)
{
    buffer.createImages(100, 50, 4);
    buffer.memBits()[0] = 77;
    widget.resize(120, 50);
    buffer.createImages(100, 50, 4);
    EXPECT_EQ(buffer.memBits()[0], 0);
    EXPECT_EQ(buffer.memImage()->size(), QSize(100, 50));
    widget.resize(120, 60);
    buffer.createImages(120, 50, 4);
    EXPECT_EQ(buffer.memImage()->size(), QSize(120, 50));
}

TEST_F(DoubleBuffer, MakesATransparentFrontImageAnewEveryTime)
{
    buffer.createImages(100, 50, 4);
    buffer.frontImage()->fill(Qt::green);
    widget.resize(120, 50);
    buffer.createImages(100, 50, 4);
    EXPECT_TRUE(support::samePicture(transparent(100, 50), *buffer.frontImage()));
}

TEST_F(DoubleBuffer, MakesNoFrontImageWhenItIsRepaired)
{
    buffer.createImages(100, 50, 4);
    const QImage* const front = buffer.frontImage();
    buffer.repairFrontBuffer();
    EXPECT_EQ(buffer.frontImage(), front);
    EXPECT_EQ(buffer.frontPainter()->wrappedDevice(), front);
}

TEST_F(DoubleBuffer, DestroysItsImagesOnceAndKeepsItsWrappers)
{
    KtQtPainterWrapper* const mem = buffer.memPainter();
    buffer.createImages(100, 50, 4);
    for (int i = 0; i < 2; ++i) {
        buffer.destroyImages();
        expectNoImages();
    }
    EXPECT_EQ(buffer.memPainter(), mem);
    buffer.createImages(10, 10, 4);
    EXPECT_EQ(mem->wrappedDevice(), buffer.memImage());
}

TEST_F(DoubleBuffer, LeavesBackupBitsOfTheHostAlone)
{
    unsigned char bits[1] = {5};
    buffer.m_pBackupBits = bits;
    buffer.createImages(100, 50, 4);
    buffer.destroyImages();
    EXPECT_EQ(buffer.backupBits(), bits);
}

struct SizeRow
{
    const char* name;
    int width;
    int height;
    int bytesPerPixel;
};

const SizeRow kRefused[] = {
    {"negative width", -1, 50, 4},
    {"negative height", 100, -1, 4},
    {"negative bytes", 100, 50, -4},
    {"negative width times 0", -1, 50, 0},
    {"negative height times 0", 100, -1, 0},
    {"two negatives", -100, -50, 4},
    {"lowest numbers", INT_MIN, INT_MIN, INT_MIN},
    {"2^31 bytes", 1 << 15, 1 << 14, 4},
    {"2^32 bytes, which wraps to 0", 1 << 15, 1 << 15, 4},
    {"the largest numbers", INT_MAX, INT_MAX, INT_MAX},
};

TEST_F(DoubleBuffer, IsNotCreatedAtASizeThatCannotBe)
{
    for (const SizeRow& row : kRefused) {
        SCOPED_TRACE(row.name);
        buffer.createImages(row.width, row.height, row.bytesPerPixel);
        expectNoImages();
    }
}

TEST_F(DoubleBuffer, LosesItsImagesToASizeThatCannotBe)
{
    buffer.createImages(100, 50, 4);
    buffer.createImages(-1, 50, 4);
    expectNoImages();
}

const SizeRow kEmpty[] = {
    {"no width", 0, 50, 4},
    {"no height", 100, 0, 4},
    {"no bytes", 100, 50, 0},
    {"nothing at all", 0, 0, 0},
    {"rows too short", 100, 50, 3},
    {"an area too large times 0", INT_MAX, INT_MAX, 0},
    {"a row too long times 0", INT_MAX, 0, 4},
    {"an image that Qt refuses", 1 << 26, 1, 1},
};

TEST_F(DoubleBuffer, IsCreatedWithoutABackImageWhereThereCanBeNone)
{
    for (const SizeRow& row : kEmpty) {
        SCOPED_TRACE(row.name);
        buffer.createImages(row.width, row.height, row.bytesPerPixel);
        EXPECT_TRUE(buffer.m_bCreated);
        ASSERT_NE(buffer.memImage(), nullptr);
        EXPECT_TRUE(buffer.memImage()->isNull());
        EXPECT_EQ(buffer.frontImage()->isNull(), row.width != 100 || row.height != 50);
        EXPECT_TRUE(buffer.memPainter()->beginDraw());
        EXPECT_FALSE(buffer.memPainter()->endDraw());
        EXPECT_TRUE(buffer.frontPainter()->beginDraw());
        EXPECT_EQ(buffer.frontPainter()->endDraw(), !buffer.frontImage()->isNull());
        buffer.repairFrontBuffer();
        buffer.destroyImages();
    }
}

TEST_F(DoubleBuffer, LeavesAGapAfterRowsOfWiderPixels)
{
    buffer.createImages(10, 5, 6);
    EXPECT_EQ(buffer.memImage()->bytesPerLine(), 60);
    EXPECT_EQ(buffer.memImage()->size(), QSize(10, 5));
    buffer.memPainter()->beginDraw();
    buffer.memPainter()->fillRect(QRect(0, 0, 10, 5), Qt::white);
    buffer.memPainter()->endDraw();
    EXPECT_EQ(std::count(buffer.memBits(), buffer.memBits() + 300, 0xFF), 200);
}

TEST_F(DoubleBuffer, ShowsPixelsThatTheCallerWrote)
{
    buffer.createImages(100, 50, 4);
    const unsigned int translucent = 0x80402010;
    std::memcpy(buffer.memBits() + 400l * 7 + 4l * 3, &translucent, sizeof translucent);
    buffer.repairFrontBuffer();
    QImage expected = transparent(100, 50);
    expected.setPixelColor(3, 7, QColor::fromRgba(qUnpremultiply(translucent)));
    EXPECT_TRUE(support::samePicture(expected, *buffer.frontImage()));
}

TEST_F(DoubleBuffer, PaintsTheBackImageOverTheFrontOne)
{
    buffer.createImages(100, 50, 4);
    buffer.frontImage()->fill(Qt::green);
    buffer.memPainter()->beginDraw();
    buffer.memPainter()->drawAlphaRect(CRect(10, 10, 40, 30), 0x000000FF, 128);
    buffer.memPainter()->endDraw();
    buffer.repairFrontBuffer();
    QImage expected(100, 50, drawing::kScreen);
    expected.fill(Qt::green);
    QPainter(&expected).drawImage(0, 0, *buffer.memImage());
    EXPECT_TRUE(support::samePicture(expected, *buffer.frontImage()));
    EXPECT_FALSE(buffer.frontImage()->paintingActive());
}

TEST_F(DoubleBuffer, DoesNothingWhenRepairedWithoutImages)
{
    buffer.repairFrontBuffer();
    expectNoImages();
}

TEST_F(DoubleBuffer, DrawsThePlainPictureOnItsBackImage)
{
    buffer.createImages(100, 50, 4);
    buffer.memPainter()->beginDraw();
    buffer.memPainter()->setPen(PS_DOT, 3, 0x00FF0000);
    buffer.memPainter()->drawAlphaRect(CRect(10, 10, 40, 30), 0x000000FF, 128);
    buffer.memPainter()->endDraw();
    QImage expected = transparent(100, 50);
    QPainter painter(&expected);
    painter.setPen(QPen(Qt::blue, 3, Qt::DotLine));
    painter.setBrush(QColor(255, 0, 0, 128));
    painter.drawRect(10, 10, 31, 21);
    painter.end();
    EXPECT_TRUE(support::samePicture(expected, *buffer.memImage()));
}

} // namespace
