// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"

#include <vector>

namespace {

using drawing::drawsLike;

struct FormatRow
{
    const char* name;
    QImage::Format format;
    int number;
    std::size_t bits;
};

// The numbers stand here because hosts pass numbers.
const FormatRow kFormats[] = {
    {"rgb32", QImage::Format_RGB32, 4, 32},
    {"argb32", QImage::Format_ARGB32, 5, 32},
    {"argb32 premultiplied", QImage::Format_ARGB32_Premultiplied, 6, 32},
    {"rgb16", QImage::Format_RGB16, 7, 16},
    {"rgb888", QImage::Format_RGB888, 13, 24},
    {"grayscale8", QImage::Format_Grayscale8, 24, 8},
};

// Pixels whose colours are no greater than their alpha, in rows padded to 32 bits.
std::vector<unsigned char> pixels(int width, int height, std::size_t bits)
{
    const std::size_t row = (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
    std::vector<unsigned char> result(row * static_cast<std::size_t>(height));
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = static_cast<unsigned char>(i % 4 == 3 ? 200 : i * 7 % 200);
    return result;
}

TEST(DrawRawImage, ShowsPaddedRowsAtThePlaceThatIsTheSize)
{
    for (const FormatRow& row : kFormats)
        for (int width : {13, 16}) {
            std::vector<unsigned char> bits = pixels(width, 20, row.bits);
            EXPECT_TRUE(drawsLike(
                [&](KtQtPainterWrapper& p) {
                    p.drawImage(width, 20, bits.data(), 100, 200, row.number);
                },
                [&](QPainter& p) {
                    const int stride = static_cast<int>(bits.size() / 20);
                    p.drawImage(width, 20, QImage(bits.data(), width, 20, stride, row.format));
                }))
                << row.name << ", width " << width;
        }
}

TEST(DrawRawImage, LiesAtItsSize)
{
    std::vector<unsigned char> bits(std::size_t{64} * 32 * 4, 0xFF);
    QImage image(160, 80, drawing::kScreen);
    image.fill(Qt::black);
    QImage expected = image;
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.drawImage(64, 32, bits.data(), 100, 200, 6);
    painter.endDraw();
    QPainter(&expected).fillRect(64, 32, 64, 32, Qt::white);
    EXPECT_TRUE(support::samePicture(expected, image));
}

TEST(DrawRawImage, LeavesTheBufferAlone)
{
    std::vector<unsigned char> bits = pixels(16, 8, 32);
    const std::vector<unsigned char> before = bits;
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.drawImage(16, 8, bits.data(), 0, 0, QImage::Format_ARGB32_Premultiplied);
    painter.endDraw();
    EXPECT_EQ(bits, before);
}

TEST(DrawRawImage, OfNoSizeDrawsNothing)
{
    unsigned char bits[4] = {0xFF, 0xFF, 0xFF, 0xFF};
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.drawImage(0, 1, bits, 1, 1, 6);
    painter.drawImage(1, 0, bits, 1, 1, 6);
    painter.endDraw();
    EXPECT_TRUE(support::samePicture(drawing::ground(), image));
}

struct TargetRow
{
    const char* name;
    QRect target;
};

const TargetRow kTargets[] = {
    {"own size", QRect(10, 10, 24, 16)}, {"larger", QRect(5, 5, 80, 70)},
    {"smaller", QRect(20, 30, 7, 5)},    {"partly outside", QRect(-20, 60, 60, 60)},
    {"one pixel", QRect(30, 30, 1, 1)},  {"stretched", QRect(0, 40, 90, 3)},
};

TEST(DrawScaledImage, FillsTheInclusiveTarget)
{
    QImage source = drawing::ground(QImage::Format_RGB32, QSize(24, 16));
    for (const TargetRow& row : kTargets) {
        QRect target = row.target;
        EXPECT_TRUE(drawsLike([&](KtQtPainterWrapper& p) { p.drawImage(target, source); },
                              [&](QPainter& p) { p.drawImage(row.target, source); }))
            << row.name;
        EXPECT_EQ(target, row.target);
    }
}

// All its pixels, and not the quarter that its size on the screen would name.
TEST(DrawScaledImage, CountsTheSourceInPixelsAtEveryPixelRatio)
{
    QImage source = drawing::ground(QImage::Format_RGB32, QSize(24, 16));
    source.setDevicePixelRatio(2);
    for (const TargetRow& row : kTargets) {
        QRect target = row.target;
        EXPECT_TRUE(drawsLike(
            [&](KtQtPainterWrapper& p) { p.drawImage(target, source); },
            [&](QPainter& p) { p.drawImage(QRectF(target), source, QRectF(0, 0, 24, 16)); }))
            << row.name;
    }
}

TEST(DrawScaledImage, IsTurnedWithThePainter)
{
    QImage source = drawing::ground(QImage::Format_RGB32, QSize(24, 16));
    QRect target(0, 0, 40, 30);
    EXPECT_TRUE(drawsLike(
        [&](KtQtPainterWrapper& p) {
            p.Rotate(25, 40, 20);
            p.drawImage(target, source);
        },
        [&](QPainter& p) {
            p.translate(40, 20);
            p.rotate(25);
            p.drawImage(target, source);
        }));
}

} // namespace
