// SPDX-License-Identifier: MIT
//
// Pictures compared pixel by pixel, with a message that says where they differ.
//
//     EXPECT_TRUE(samePicture(expected, actual));
//     EXPECT_TRUE(similarPicture(onScreen, printed, {16, 0.02}));
#ifndef KTQTBASE_TESTS_SUPPORT_IMAGECOMPARISON_H
#define KTQTBASE_TESTS_SUPPORT_IMAGECOMPARISON_H

#include <QtGui/QImage>

#include <gtest/gtest.h>

namespace support {

// What similarPicture accepts: a pixel counts as different if a part of its colour differs by more
// than `part` (0 to 255), and such pixels may be `share` of all (0 to 1).
struct Tolerance
{
    int part;
    double share;
};

// Success where both have one format and size, and every pixel is equal. A failure names the first
// differing pixel, how many there are and in which rectangle, and leaves both pictures in the
// folder for temporary files.
::testing::AssertionResult samePicture(const QImage& expected, const QImage& actual);

// Success where sizes are equal and no more pixels differ than the tolerance allows. Formats may
// differ, and translucent pixels are seen over white.
::testing::AssertionResult similarPicture(const QImage& expected, const QImage& actual,
                                          Tolerance tolerance);

// The same as a plain answer, for pictures that shall differ: none is left anywhere.
bool areSimilar(const QImage& a, const QImage& b, Tolerance tolerance);

} // namespace support

#endif
