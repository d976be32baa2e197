// SPDX-License-Identifier: MIT
//
// A back and a front image for a widget: draw on the back one, copy it to the front one, show that.
//
//     buffer.createImages(width(), height(), 4);
//     buffer.memPainter()->beginDraw();
//     drawScene(*buffer.memPainter());
//     buffer.memPainter()->endDraw();
//     buffer.repairFrontBuffer();
//     QPainter(this).drawImage(0, 0, *buffer.frontImage());
//
// A handler of resize events calls destroyImages before createImages: the widget already has its
// new size, and createImages would take the old images to be of that size.
#ifndef KTQTBASE_DRAWING_DOUBLEBUFFERIMAGE_H
#define KTQTBASE_DRAWING_DOUBLEBUFFERIMAGE_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>

class KtQtPainterWrapper;
class QImage;
class QPalette;
class QWidget;

// Two images of 32-bit premultiplied ARGB, each with a wrapper to draw on it. Not copyable. No
// operation is virtual, and the order of the fields is part of the interface.
class KTQTBASE_EXPORT KtGrQtDoubleBufferImage
{
public:
    // No images yet; two wrappers without a device, and a default palette.
    //   destination    in: the widget that shows the images, not owned; may be null until its size
    //                  is asked for
    explicit KtGrQtDoubleBufferImage(QWidget* destination);

    // Destroys the images, the wrappers and the palette. No painting on an image may be open.
    ~KtGrQtDoubleBufferImage();

    KtGrQtDoubleBufferImage(const KtGrQtDoubleBufferImage&) = delete;
    KtGrQtDoubleBufferImage& operator=(const KtGrQtDoubleBufferImage&) = delete;

    // ---- Images --------------------------------------------------------------------------------

    // Makes both images, transparent black. Existing images stay if the widget has the size asked
    // for; if not, they are destroyed first.
    //   width, height    in: pixels
    //   bytesPerPixel    in: 4. It sizes the back image's buffer and rows and nothing else: below 4
    //                    the back image is null (QImage::isNull), above 4 rows have a gap
    // There are no images afterwards if an argument is negative, the size in bytes is above
    // 2^31 - 1, or memory is refused. A width or height of 0, or a size that QImage refuses, gives
    // two null images: they count as made, and painting on them does nothing.
    //   100, 50, 4                  => two images; memBits has 20,000 bytes
    //   100, 50, 0                  => a null back image and a front image
    //   2147483647, 0, 4            => two null images
    //   2147483647, 2147483647, 0   => two null images
    //   67108864, 1, 1              => two null images: QImage refuses the width
    //   -1, 0, 4                    => none
    // Kept: the widget's size is compared, not the images'. Part of the interface. The widget is
    // read only if images exist, and must not be null then.
    void createImages(int width, int height, int bytesPerPixel);

    // Destroys the images: the pointers to them, the back image's buffer and the wrappers' devices
    // become null. Does nothing without images. End every painting on them before.
    void destroyImages();

    // Paints the back image over the front one, which stays visible where the back image is
    // translucent. Does nothing without images. No painting on the front image may be open.
    void repairFrontBuffer();

    // Inert: returns true, with or without images. Draw between beginDraw and endDraw of a wrapper.
    KTQTBASE_INERT(
        "returns true, with or without images. Draw between beginDraw and endDraw of a wrapper.")
    bool beginDraw();
    KTQTBASE_INERT(
        "returns true, with or without images. Draw between beginDraw and endDraw of a wrapper.")
    bool endDraw();

    // Result: the wrapper of an image, never null; owned by this object. Its device is null while
    // there are no images.
    KtQtPainterWrapper* memPainter() const;
    KtQtPainterWrapper* frontPainter() const;

    // Result: an image, or null while there are none; valid until the images are destroyed. A plain
    // copy shares its pixels, and the next painting then moves the image away from memBits(): use
    // QImage::copy() for an image that is still painted on.
    QImage* memImage() const;
    QImage* frontImage() const;

    // Result: the back image's pixels, width times bytesPerPixel bytes a row from the top, each
    // pixel 0xAARRGGBB premultiplied; null while there are no images. The caller may write them.
    unsigned char* memBits() const;

    // Inert: returns null; no backup is made. The function is part of the interface.
    KTQTBASE_INERT("returns null; no backup is made. The function is part of the interface.")
    unsigned char* backupBits() const;

    // Result: a palette of the application's colours, never null; owned by this object.
    QPalette* getHPalette() const;

    // ---- Widget --------------------------------------------------------------------------------

    // Sets or gets the widget, which is not owned. Images stay as they are.
    void setDestinationWidget(QWidget* destination);
    QWidget* destinationWidget() const;

    // Result: the widget's present width and height in pixels, and its colour depth in bits.
    // Kept: the widget's and not the images'. Part of the interface. The widget must not be null.
    int width() const;
    int height() const;
    int depth() const;

    // ---- Fields --------------------------------------------------------------------------------

    unsigned char* m_pMemBits = nullptr; // from malloc; the back image's pixels
    KtQtPainterWrapper* m_pMemPainter = nullptr;
    QImage* m_pMemImage = nullptr;
    KtQtPainterWrapper* m_pFrontPainter = nullptr;
    QImage* m_pFrontImage = nullptr;
    unsigned char* m_pBackupBits = nullptr;
    QWidget* m_pDestWidget; // not owned
    QPalette* m_pPalette = nullptr;
    bool m_bCreated = false;
};

#endif
