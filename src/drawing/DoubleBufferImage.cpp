// SPDX-License-Identifier: MIT
#include <KtQtBase/drawing/DoubleBufferImage.h>

#include <KtQtBase/drawing/Painter.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

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

// The product of the three, or -1 if an argument is negative or the product, or a row, does not
// fit. The row and the area are checked too, since a factor of 0 makes every product fit.
int byteSize(int width, int height, int bytesPerPixel)
{
    int row = 0;
    int area = 0;
    int size = 0;
    if (width < 0 || height < 0 || bytesPerPixel < 0 ||
        __builtin_mul_overflow(width, bytesPerPixel, &row) ||
        __builtin_mul_overflow(width, height, &area) ||
        __builtin_mul_overflow(area, bytesPerPixel, &size))
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

// For a row of 0 bytes Qt would use a length of its own and read beyond the end of the bits.
QImage viewOf(unsigned char* bits, int width, int height, int rowBytes)
{
    return rowBytes > 0 ? QImage(bits, width, height, rowBytes, kFormat) : QImage();
}

QImage transparentImage(int width, int height)
{
    QImage image(width, height, kFormat);
    image.fill(0);
    return image;
}

} // namespace

KtGrQtDoubleBufferImage::KtGrQtDoubleBufferImage(QWidget* destination)
    : m_pMemPainter(new KtQtPainterWrapper), m_pFrontPainter(new KtQtPainterWrapper),
      m_pDestWidget(destination), m_pPalette(new QPalette)
{}

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
    auto front = std::make_unique<QImage>(transparentImage(width, height));
    if (front->isNull() && width > 0 && height > 0)
        return;
    m_pMemImage = new QImage(viewOf(bits.get(), width, height, bytesPerPixel * width));
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
