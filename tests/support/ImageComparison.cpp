// SPDX-License-Identifier: MIT
#include "support/ImageComparison.h"

#include <QtCore/QDir>
#include <QtGui/QPainter>

#include <cstdlib>

namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

struct Differences
{
    int count = 0;
    QPoint first;
    QRect extent;
};

bool differs(QRgb a, QRgb b, int part)
{
    return std::abs(qRed(a) - qRed(b)) > part || std::abs(qGreen(a) - qGreen(b)) > part ||
           std::abs(qBlue(a) - qBlue(b)) > part || std::abs(qAlpha(a) - qAlpha(b)) > part;
}

Differences findDifferences(const QImage& expected, const QImage& actual, int part)
{
    Differences found;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x)
            if (differs(expected.pixel(x, y), actual.pixel(x, y), part)) {
                if (found.count++ == 0)
                    found.first = QPoint(x, y);
                found.extent |= QRect(x, y, 1, 1);
            }
    return found;
}

QString keep(const QImage& image, const char* name)
{
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    QString file = QStringLiteral("%1.%2-%3.png").arg(test->test_suite_name(), test->name(), name);
    file = QDir::temp().filePath(file.replace(QLatin1Char('/'), QLatin1Char('-')));
    image.save(file);
    return file;
}

AssertionResult describe(const Differences& found, const QImage& expected, const QImage& actual)
{
    const QPoint at = found.first;
    return AssertionFailure() << found.count << " pixels differ, the first at (" << at.x() << ", "
                              << at.y() << "): expected " << std::hex << expected.pixel(at)
                              << ", actual " << actual.pixel(at) << std::dec << "; all lie in ("
                              << found.extent.left() << ", " << found.extent.top() << ") to ("
                              << found.extent.right() << ", " << found.extent.bottom() << "); see "
                              << keep(expected, "expected").toStdString() << " and "
                              << keep(actual, "actual").toStdString();
}

AssertionResult describeShapes(const QImage& expected, const QImage& actual)
{
    return AssertionFailure() << "expected " << expected.width() << " by " << expected.height()
                              << " pixels of format " << expected.format() << ", actual "
                              << actual.width() << " by " << actual.height() << " of "
                              << actual.format();
}

QImage overWhite(const QImage& image)
{
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(Qt::white);
    QPainter(&result).drawImage(0, 0, image);
    return result;
}

// Differences of two pictures over white, none where they are within a tolerance.
Differences beyond(support::Tolerance tolerance, const QImage& a, const QImage& b)
{
    const Differences found = findDifferences(a, b, tolerance.part);
    return found.count > static_cast<int>(tolerance.share * a.width() * a.height()) ? found
                                                                                    : Differences();
}

} // namespace

AssertionResult support::samePicture(const QImage& expected, const QImage& actual)
{
    if (expected.size() != actual.size() || expected.format() != actual.format())
        return describeShapes(expected, actual);
    if (expected == actual)
        return AssertionSuccess();
    return describe(findDifferences(expected, actual, 0), expected, actual);
}

AssertionResult support::similarPicture(const QImage& expected, const QImage& actual,
                                        Tolerance tolerance)
{
    if (expected.size() != actual.size())
        return describeShapes(expected, actual);
    const QImage a = overWhite(expected);
    const QImage b = overWhite(actual);
    const Differences found = beyond(tolerance, a, b);
    return found.count == 0 ? AssertionSuccess() : describe(found, a, b);
}

bool support::areSimilar(const QImage& a, const QImage& b, Tolerance tolerance)
{
    return a.size() == b.size() && beyond(tolerance, overWhite(a), overWhite(b)).count == 0;
}
