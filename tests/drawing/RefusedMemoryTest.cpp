// SPDX-License-Identifier: MIT
#include "support/AllocationLimit.h"

#include <KtQtBase/PainterWrapper.h>

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

namespace {

using support::AllocationLimit;

class RefusedMemory : public ::testing::Test
{
protected:
    void createUnder(std::size_t limit, int bytesPerPixel)
    {
        const AllocationLimit allocationLimit(limit);
        buffer.createImages(100, 50, bytesPerPixel);
    }

    void expectNoImages()
    {
        EXPECT_FALSE(buffer.m_bCreated);
        EXPECT_EQ(buffer.memBits(), nullptr);
        EXPECT_EQ(buffer.memImage(), nullptr);
        EXPECT_EQ(buffer.frontImage(), nullptr);
        EXPECT_EQ(buffer.memPainter()->wrappedDevice(), nullptr);
        buffer.repairFrontBuffer();
    }

    QWidget widget;
    KtGrQtDoubleBufferImage buffer{&widget};
};

TEST_F(RefusedMemory, ForTheBitsLeavesNoImages)
{
    createUnder(20000, 4);
    expectNoImages();
}

TEST_F(RefusedMemory, ForTheFrontImageLeavesNoImages)
{
    createUnder(20000, 1);
    expectNoImages();
}

TEST_F(RefusedMemory, TakesTheImagesThatWereThere)
{
    widget.resize(10, 10);
    buffer.createImages(30, 30, 4);
    createUnder(20000, 4);
    expectNoImages();
}

TEST_F(RefusedMemory, MayBeAskedForAgain)
{
    createUnder(20000, 4);
    buffer.createImages(100, 50, 4);
    EXPECT_TRUE(buffer.m_bCreated);
    EXPECT_EQ(buffer.memImage()->size(), QSize(100, 50));
}

} // namespace
