// SPDX-License-Identifier: MIT
//
// What a double buffer takes from malloc, it gives back.
#include "drawing/Twin.h"
#include "support/AllocationCounter.h"

#include <QtWidgets/QWidget>

namespace {

// Blocks that the last of a few equal calls leaves behind; the first ones fill caches.
template<class Calls>
long leftBy(Calls calls)
{
    for (int i = 0; i < 3; ++i)
        calls();
    const support::AllocationCounter counter;
    calls();
    return counter.held();
}

void paintOn(KtGrQtDoubleBufferImage& buffer)
{
    for (KtQtPainterWrapper* const painter : {buffer.memPainter(), buffer.frontPainter()})
        if (painter->beginDraw()) {
            painter->fillRect(QRect(1, 1, 9, 9), Qt::red);
            painter->endDraw();
        }
    buffer.repairFrontBuffer();
}

struct CountedSizeRow
{
    const char* name;
    int width;
    int height;
    int bytesPerPixel;
};

const CountedSizeRow kSizes[] = {
    {"two images", 100, 50, 4}, {"no back image", 100, 50, 0},    {"rows too short", 100, 50, 3},
    {"no size", 0, 0, 4},       {"refused by Qt", 1 << 26, 1, 1}, {"not created", -1, 50, 4},
};

class DoubleBufferMemory : public ::testing::Test
{
protected:
    QWidget widget;
};

TEST(AllocationCounter, SeesWhatIsHeld)
{
    const support::AllocationCounter counter;
    {
        const QByteArray bytes(1000, 'x');
        EXPECT_EQ(counter.held(), 1);
    }
    EXPECT_EQ(counter.held(), 0);
}

TEST_F(DoubleBufferMemory, IsGivenBackByDestroyImages)
{
    KtGrQtDoubleBufferImage buffer(&widget);
    for (const CountedSizeRow& row : kSizes)
        EXPECT_EQ(leftBy([&] {
                      buffer.createImages(row.width, row.height, row.bytesPerPixel);
                      paintOn(buffer);
                      buffer.destroyImages();
                  }),
                  0)
            << row.name;
}

TEST_F(DoubleBufferMemory, OfFormerImagesIsGivenBackByCreateImages)
{
    widget.resize(10, 10);
    KtGrQtDoubleBufferImage buffer(&widget);
    EXPECT_EQ(leftBy([&] { buffer.createImages(100, 50, 4); }), 0);
}

// Only the two wrappers leave something behind, as they do by themselves.
TEST_F(DoubleBufferMemory, IsGivenBackByTheDestructor)
{
    const long byWrappers = leftBy([] {
        KtQtPainterWrapper mem;
        KtQtPainterWrapper front;
    });
    EXPECT_EQ(leftBy([this] { KtGrQtDoubleBufferImage buffer(&widget); }), byWrappers);
    EXPECT_EQ(leftBy([this] {
                  KtGrQtDoubleBufferImage buffer(&widget);
                  buffer.createImages(100, 50, 4);
                  buffer.repairFrontBuffer();
              }),
              byWrappers);
}

} // namespace
