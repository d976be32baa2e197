// SPDX-License-Identifier: MIT
//
// A screen whose sizes all differ: its frame, the part of it that is free, the desktop that it is a
// part of, and its size in device pixels. The functions below are found before Qt's own.
#include "platform/Platform.h"

#include <QtGui/QScreen>

#include <gtest/gtest.h>

QRect QScreen::geometry() const
{
    return QRect(5, 7, 1600, 900);
}

QSize QScreen::size() const
{
    return geometry().size();
}

QRect QScreen::availableGeometry() const
{
    return QRect(5, 30, 1590, 850);
}

QSize QScreen::availableSize() const
{
    return availableGeometry().size();
}

QRect QScreen::virtualGeometry() const
{
    return QRect(0, 0, 3200, 1200);
}

QSize QScreen::virtualSize() const
{
    return virtualGeometry().size();
}

QRect QScreen::availableVirtualGeometry() const
{
    return QRect(0, 23, 3190, 1150);
}

QSize QScreen::availableVirtualSize() const
{
    return availableVirtualGeometry().size();
}

qreal QScreen::devicePixelRatio() const
{
    return 2;
}

TEST(mainScreen, HasTheSizeOfItsWholeFrameInPoints)
{
    EXPECT_EQ(ktqtbase::platform::mainScreenWidth(), 1600);
    EXPECT_EQ(ktqtbase::platform::mainScreenHeight(), 900);
}
