// SPDX-License-Identifier: MIT
#include "support/CanvasBits.h"

#include "support/Expect.h"

#include <QtGui/QPixelFormat>

#include <cstring>
#include <map>
#include <tuple>

namespace {

constexpr std::size_t kMargin = 1024; // some rows at least
constexpr unsigned char kPoison = 0x5A;

constexpr QImage::Format kFormats[] = {QImage::Format_ARGB32_Premultiplied,
                                       QImage::Format_RGB32,
                                       QImage::Format_ARGB32,
                                       QImage::Format_RGB888,
                                       QImage::Format_Grayscale8,
                                       QImage::Format_Mono,
                                       QImage::Format_RGB16,
                                       QImage::Format_ARGB32_Premultiplied};
constexpr int kSizes[] = {0, 1, 2, 3, 7, 8, 9, 16, 31, 32, 33, 63, 64, 65, 24, 48};

QImage makeGround(QImage::Format format, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(255 - x * 3, y * 3, 128, 255 - (x + y) % 64));
    }
    return image.convertToFormat(format);
}

const QImage& groundOf(const ktqtbase::fuzz::CanvasShape& shape)
{
    static std::map<std::tuple<int, int, int>, QImage> grounds;
    QImage& ground = grounds[{shape.format, shape.size.width(), shape.size.height()}];
    if (ground.isNull() && !shape.size.isEmpty())
        ground = makeGround(shape.format, shape.size);
    return ground;
}

} // namespace

ktqtbase::fuzz::CanvasShape ktqtbase::fuzz::drawShape(Input& input)
{
    const QImage::Format format = kFormats[input.below(8)];
    const unsigned int sizes = input.byte();
    return {format, QSize(kSizes[sizes >> 4], kSizes[sizes & 15])};
}

ktqtbase::fuzz::CanvasBits::CanvasBits(const CanvasShape& shape)
    : m_shape(shape), m_rowBytes(groundOf(shape).bytesPerLine()),
      m_bytes(2 * kMargin + static_cast<std::size_t>(groundOf(shape).sizeInBytes()), kPoison)
{
    const QImage& ground = groundOf(shape);
    if (!ground.isNull())
        std::memcpy(m_bytes.data() + kMargin, ground.constBits(), m_bytes.size() - 2 * kMargin);
}

QImage ktqtbase::fuzz::CanvasBits::image()
{
    QImage image(m_bytes.data() + kMargin, m_shape.size.width(), m_shape.size.height(), m_rowBytes,
                 m_shape.format);
    image.setColorTable(groundOf(m_shape).colorTable());
    return image;
}

void ktqtbase::fuzz::CanvasBits::expectUntouchedMargins() const
{
    static const std::vector<unsigned char> poison(kMargin, kPoison);
    const unsigned char* const last = m_bytes.data() + m_bytes.size() - kMargin;
    expect("margin above the image", std::memcmp(m_bytes.data(), poison.data(), kMargin) == 0);
    expect("margin below the image", std::memcmp(last, poison.data(), kMargin) == 0);
}
