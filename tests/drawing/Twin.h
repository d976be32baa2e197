// SPDX-License-Identifier: MIT
//
// One picture made twice: through the wrapper, and by plain QPainter calls on a second image.
//
//     EXPECT_TRUE(drawsLike([](KtQtPainterWrapper& p) { p.drawPoint(3, 4); },
//                           [](QPainter& p) { p.drawPoint(3, 4); }));
#ifndef KTQTBASE_TESTS_DRAWING_TWIN_H
#define KTQTBASE_TESTS_DRAWING_TWIN_H

#include "drawing/PlainPainter.h"
#include "support/ImageComparison.h"

#include <KtQtBase/PainterWrapper.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <functional>

namespace drawing {

constexpr QImage::Format kScreen = QImage::Format_ARGB32_Premultiplied;

// One polygon for setClipRegion: a square and the count of its corners.
inline POINT kSquare[] = {{10, 10}, {50, 10}, {50, 50}, {10, 50}};
inline unsigned int kFour = 4;

using WrapperCalls = std::function<void(KtQtPainterWrapper&)>;
using PlainCalls = std::function<void(QPainter&)>;

// A picture of many translucent colours, on which all painting can be seen.
QImage ground(QImage::Format format = kScreen, QSize size = QSize(96, 96));

// Success if both make the same picture and it is not just the ground. The wrapper's calls run
// between its beginDraw and endDraw.
::testing::AssertionResult drawsLike(const WrapperCalls& calls, const PlainCalls& plainCalls,
                                     QImage::Format format = kScreen);

} // namespace drawing

#endif
