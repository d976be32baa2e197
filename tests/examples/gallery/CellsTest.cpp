// SPDX-License-Identifier: MIT
#include "GalleryFixture.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <set>
#include <string>

namespace {

QString textOf(const wchar_t* text)
{
    return QString::fromWCharArray(text);
}

// All names that a header declares with arguments.
void addMethods(std::set<QString>& names, const char* header)
{
    QFile file(QStringLiteral(DRAWING_HEADERS) + QLatin1String(header));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression method(QStringLiteral("^    [^/].*\\b(\\w+)\\([^()]*\\)"),
                                           QRegularExpression::MultilineOption);
    auto matches = method.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext())
        names.insert(matches.next().captured(1));
}

TEST_F(Gallery, NamesAMethodInTheLabelOfEachCell)
{
    std::set<QString> methods;
    addMethods(methods, "Painter.h");
    addMethods(methods, "DoubleBufferImage.h");
    ASSERT_EQ(methods.count(QStringLiteral("drawPolyline")), 1U);
    for (const PlacedCell& placed : placedCells()) {
        const QString call = textOf(placed.cell->call);
        const QString name = call.section(QRegularExpression(QStringLiteral("\\W")), 0, 0);
        EXPECT_EQ(methods.count(name), 1U) << call.toStdString();
    }
}

TEST_F(Gallery, ShowsNothingUnderOneLabelTwice)
{
    std::set<QString> labels;
    for (const PlacedCell& placed : placedCells()) {
        EXPECT_NE(*placed.cell->shows, L'\0') << textOf(placed.cell->call).toStdString();
        const QString label = textOf(placed.cell->shows);
        EXPECT_TRUE(labels.insert(label).second) << label.toStdString();
    }
}

bool isWhite(const QImage& image, const QRect& part)
{
    QImage white(part.size(), image.format());
    white.fill(Qt::white);
    return image.copy(part) == white;
}

TEST_F(Gallery, EndsEachLabelBeforeTheNextOne)
{
    const QImage image = sheet(QStringLiteral("1"));
    ASSERT_FALSE(image.isNull());
    for (const PlacedCell& placed : placedCells()) {
        const QRect frame = placed.place.adjusted(-4, -4, 5, 5);
        const QRect label(frame.left(), frame.bottom() + 1, frame.width(), 28);
        EXPECT_FALSE(isWhite(image, label)) << textOf(placed.cell->shows).toStdString();
        const QRect gap(frame.right() + 3, frame.bottom() + 1, 3, 28);
        EXPECT_TRUE(isWhite(image, gap)) << textOf(placed.cell->shows).toStdString();
    }
}

// The lengths of the dashes and gaps along a row of a cell, without the white in front and behind.
std::vector<int> runsAlong(const QImage& image, const QRect& cell, int row)
{
    std::vector<int> runs;
    QRgb last = image.pixel(cell.left(), cell.top() + row);
    int length = 0;
    for (int x = cell.left(); x <= cell.right(); ++x, ++length) {
        const QRgb color = image.pixel(x, cell.top() + row);
        if (color != last) {
            runs.push_back(length);
            length = 0;
            last = color;
        }
    }
    if (!runs.empty())
        runs.erase(runs.begin());
    return runs;
}

const wchar_t* const kPatterns[] = {L"PS_DASH,", L"PS_DOT,", L"PS_DASHDOT,", L"PS_DASHDOTDOT,"};
const int kRowsOfWidths[] = {14, 35, 56};

// Of the shortest line the pattern is there twice, a dash and a gap each time.
TEST_F(Gallery, RepeatsEachDashPattern)
{
    const QImage image = sheet(QStringLiteral("1"));
    ASSERT_FALSE(image.isNull());
    for (const wchar_t* const pattern : kPatterns)
        for (const int row : kRowsOfWidths)
            EXPECT_GE(runsAlong(image, placeOf(pattern), row).size(), 4U)
                << textOf(pattern).toStdString() << " in row " << row;
}

TEST_F(Gallery, DrawsAnotherLineWithEachDashPattern)
{
    const QImage image = sheet(QStringLiteral("1"));
    ASSERT_FALSE(image.isNull());
    for (const int row : kRowsOfWidths) {
        std::set<std::vector<int>> lines;
        for (const wchar_t* const pattern : kPatterns)
            lines.insert(runsAlong(image, placeOf(pattern), row));
        EXPECT_EQ(lines.size(), 4U) << "row " << row;
    }
}

} // namespace
