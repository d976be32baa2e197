// SPDX-License-Identifier: MIT
//
// The pixels of an image between margins, in which nothing may be painted.
#ifndef KTQTBASE_FUZZ_SUPPORT_CANVASBITS_H
#define KTQTBASE_FUZZ_SUPPORT_CANVASBITS_H

#include "support/Input.h"

#include <QtGui/QImage>

#include <vector>

namespace ktqtbase::fuzz {

struct CanvasShape
{
    QImage::Format format;
    QSize size;
};

// Odd sizes, 0 and 1 among them.
CanvasShape drawShape(Input& input);

class CanvasBits
{
public:
    explicit CanvasBits(const CanvasShape& shape);

    // An image over the pixels, which show many colours at first.
    QImage image();

    void expectUntouchedMargins() const;

private:
    CanvasShape m_shape;
    int m_rowBytes;
    std::vector<unsigned char> m_bytes;
};

} // namespace ktqtbase::fuzz

#endif
