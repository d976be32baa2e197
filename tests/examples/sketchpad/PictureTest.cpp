// SPDX-License-Identifier: MIT
//
// What the window and the printer show is as sharp as they are.
#include "Host.h"

#include "app/Shape.h"

#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

namespace {

const char* const kDrawEllipse = "resize 300,260\npen solid 3 000000\nfill f5cdaa\ntool ellipse\n"
                                 "drag 30,30 230,150\nscreenshot a.png\nanswer discard\nmenu new\n";

QImage pictureAt(const char* ratio)
{
    Host host;
    host.environment.insert("QT_SCALE_FACTOR", ratio);
    const SessionResult result = host.play(kDrawEllipse);
    EXPECT_EQ(result.status, 0) << result.err;
    return QImage((host.work() / "a.png").c_str());
}

// A part of the ellipse's edge, where a picture that is only stretched is blurred or made of blocks.
QRect edgeIn(const QImage& picture)
{
    const double ratio = picture.width() / 300.0;
    return QRect(QPointF(40 * ratio, 100 * ratio).toPoint(),
                 QSizeF(60 * ratio, 40 * ratio).toSize());
}

std::set<QRgb> colorsIn(const QImage& picture, const QRect& part)
{
    std::set<QRgb> colors;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    return colors;
}

bool isOneColor(const QImage& picture, const QPoint& corner, int size)
{
    return colorsIn(picture, QRect(corner, QSize(size, size))).size() == 1;
}

int mixedBlocks(const QImage& picture, const QRect& part, int size)
{
    int mixed = 0;
    for (int y = part.top() / size * size; y <= part.bottom(); y += size) {
        for (int x = part.left() / size * size; x <= part.right(); x += size)
            mixed += isOneColor(picture, QPoint(x, y), size) ? 0 : 1;
    }
    return mixed;
}

// The longest run of the grid's colour in a row of pixels between two lines across.
int widestGridLine(const QImage& picture)
{
    const int y = static_cast<int>(std::lround(picture.height() * 0.8));
    int widest = 0;
    int width = 0;
    for (int x = 0; x < picture.width(); ++x) {
        width = picture.pixel(x, y) == qRgb(214, 222, 235) ? width + 1 : 0;
        widest = std::max(widest, width);
    }
    return widest;
}

} // namespace

TEST(SketchpadPicture, HasGridLinesOfOnePixelOnEveryScreen)
{
    for (const char* ratio : {"1", "1.5", "2", "3"})
        EXPECT_EQ(widestGridLine(pictureAt(ratio)), 1) << ratio;
}

TEST(SketchpadPicture, IsAsSharpAsTheScreen)
{
    for (const char* ratio : {"1", "1.5", "2", "3"}) {
        SCOPED_TRACE(ratio);
        const QImage picture = pictureAt(ratio);
        EXPECT_EQ(picture.width(), std::lround(300 * std::atof(ratio)));
        EXPECT_LE(colorsIn(picture, edgeIn(picture)).size(), 12u);
    }
    EXPECT_GT(mixedBlocks(pictureAt("2"), edgeIn(pictureAt("2")), 2), 50);
    EXPECT_GT(mixedBlocks(pictureAt("3"), edgeIn(pictureAt("3")), 3), 50);
}

// Each corner lies on the ellipse, and the edges between them leave it by less than a dot.
TEST(SketchpadShape, HasAnEllipseThatIsSmoothAtThePrintersResolution)
{
    const std::vector<POINT> corners = EllipseCorners({{0, 0}, {400, 200}}, 15);
    EXPECT_GT(corners.size(), 72u);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const POINT& one = corners[i];
        const POINT& next = corners[(i + 1) % corners.size()];
        const double x = (one.x + next.x) / 2.0 - 3000;
        const double y = (one.y + next.y) / 2.0 - 1500;
        const double distance = std::hypot(x / 3000, y / 1500);
        EXPECT_NEAR(distance, 1, 1.0 / 1500) << i;
    }
}
