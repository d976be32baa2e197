// SPDX-License-Identifier: MIT
#include <KtQtBase/drawing/DoubleBufferImage.h>

#include <KtQtBase/drawing/Painter.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <climits>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

constexpr QImage::Format kFormat = QImage::Format_ARGB32_Premultiplied;

struct FreeBits
{
    void operator()(unsigned char* bits) const { std::free(bits); }
};
using Bits = std::unique_ptr<unsigned char, FreeBits>;

long long product(int a, int b)
{
    return static_cast<long long>(a) * b;
}

// The product of the three, or -1 if an argument is negative or the product does not fit. A part of
// it may be longer, since a factor of 0 makes every product fit.
int byteSize(int width, int height, int bytesPerPixel)
{
    int size = 0;
    if (width < 0 || height < 0 || bytesPerPixel < 0 ||
        __builtin_mul_overflow(product(width, height), bytesPerPixel, &size))
        return -1;
    return size;
}

// At least one byte, because a null pointer means that memory was refused.
Bits zeroedBits(int size)
{
    if (size < 0)
        return nullptr;
    const std::size_t bytes = size > 0 ? static_cast<std::size_t>(size) : 1;
    return Bits(static_cast<unsigned char*>(std::calloc(bytes, 1)));
}

// Null where a row is longer than Qt can say, or empty: for a row of 0 bytes Qt would use a length
// of its own and read beyond the end of the bits.
QImage viewOf(unsigned char* bits, int width, int height, long long rowBytes)
{
    const bool fits = rowBytes > 0 && rowBytes <= INT_MAX;
    return fits ? QImage(bits, width, height, static_cast<int>(rowBytes), kFormat) : QImage();
}

// Whether Qt has no image of that size even where the memory is there. The bits are not read.
bool isRefusedSize(unsigned char* bits, int width, int height)
{
    return QImage(bits, width, height, kFormat).isNull();
}

// Null if memory is refused; a null image at a size that Qt refuses.
std::unique_ptr<QImage> transparentImage(unsigned char* bits, int width, int height)
{
    auto image = std::make_unique<QImage>(width, height, kFormat);
    if (image->isNull() && !isRefusedSize(bits, width, height))
        return nullptr;
    image->fill(0);
    return image;
}

} // namespace

KtGrQtDoubleBufferImage::KtGrQtDoubleBufferImage(QWidget* destination) : m_pDestWidget(destination)
{
    // An object that is not finished has no destructor to delete the first of the three.
    auto back = std::make_unique<KtQtPainterWrapper>();
    auto front = std::make_unique<KtQtPainterWrapper>();
    // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer): the two above come first
    m_pPalette = new QPalette;
    m_pMemPainter = back.release();
    m_pFrontPainter = front.release();
}

KtGrQtDoubleBufferImage::~KtGrQtDoubleBufferImage()
{
    destroyImages();
    delete m_pMemPainter;
    delete m_pFrontPainter;
    delete m_pPalette;
}

void KtGrQtDoubleBufferImage::createImages(int width, int height, int bytesPerPixel)
{
    if (m_bCreated) {
        if (this->width() == width && this->height() == height)
            return;
        destroyImages();
    }
    Bits bits = zeroedBits(byteSize(width, height, bytesPerPixel));
    if (!bits)
        return;
    auto front = transparentImage(bits.get(), width, height);
    if (!front)
        return;
    m_pMemImage = new QImage(viewOf(bits.get(), width, height, product(bytesPerPixel, width)));
    m_pMemBits = bits.release();
    m_pMemPainter->setWrappedDevice(m_pMemImage);
    m_pFrontImage = front.release();
    m_pFrontPainter->setWrappedDevice(m_pFrontImage);
    m_bCreated = true;
}

void KtGrQtDoubleBufferImage::destroyImages()
{
    if (!m_bCreated)
        return;
    m_pMemPainter->setWrappedDevice(nullptr);
    delete std::exchange(m_pMemImage, nullptr);
    std::free(std::exchange(m_pMemBits, nullptr));
    m_pFrontPainter->setWrappedDevice(nullptr);
    delete std::exchange(m_pFrontImage, nullptr);
    m_bCreated = false;
}

void KtGrQtDoubleBufferImage::repairFrontBuffer()
{
    if (!m_bCreated)
        return;
    QPainter painter(m_pFrontImage);
    painter.drawImage(0, 0, *m_pMemImage);
}

bool KtGrQtDoubleBufferImage::beginDraw()
{
    return true;
}

bool KtGrQtDoubleBufferImage::endDraw()
{
    return true;
}

KtQtPainterWrapper* KtGrQtDoubleBufferImage::memPainter() const
{
    return m_pMemPainter;
}

KtQtPainterWrapper* KtGrQtDoubleBufferImage::frontPainter() const
{
    return m_pFrontPainter;
}

QImage* KtGrQtDoubleBufferImage::memImage() const
{
    return m_pMemImage;
}

QImage* KtGrQtDoubleBufferImage::frontImage() const
{
    return m_pFrontImage;
}

unsigned char* KtGrQtDoubleBufferImage::memBits() const
{
    return m_pMemBits;
}

unsigned char* KtGrQtDoubleBufferImage::backupBits() const
{
    return m_pBackupBits;
}

QPalette* KtGrQtDoubleBufferImage::getHPalette() const
{
    return m_pPalette;
}

void KtGrQtDoubleBufferImage::setDestinationWidget(QWidget* destination)
{
    m_pDestWidget = destination;
}

QWidget* KtGrQtDoubleBufferImage::destinationWidget() const
{
    return m_pDestWidget;
}

int KtGrQtDoubleBufferImage::width() const
{
    return m_pDestWidget->width();
}

int KtGrQtDoubleBufferImage::height() const
{
    return m_pDestWidget->height();
}

int KtGrQtDoubleBufferImage::depth() const
{
    return m_pDestWidget->depth();
}
