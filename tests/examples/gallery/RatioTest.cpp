// SPDX-License-Identifier: MIT
#include "GalleryFixture.h"
#include "support/ImageComparison.h"

namespace {

struct Row
{
    const char* name;
    const char* ratio;
    double value;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

class GalleryRatio : public Gallery, public ::testing::WithParamInterface<Row>
{};

constexpr Row kRatios[] = {
    {"One", "1", 1}, {"OneAndAHalf", "1.5", 1.5}, {"Two", "2", 2}, {"Three", "3", 3}};

INSTANTIATE_TEST_SUITE_P(Gallery, GalleryRatio, ::testing::ValuesIn(kRatios),
                         ::testing::PrintToStringParamName());

TEST_P(GalleryRatio, HasSoManyTimesThePixels)
{
    const QImage image = sheet(QString::fromLatin1(GetParam().ratio));
    EXPECT_EQ(image.size(), gallerySize() * GetParam().value);
}

TEST_P(GalleryRatio, IsOfOneSizeOnPaper)
{
    const QImage image = sheet(QString::fromLatin1(GetParam().ratio));
    EXPECT_NEAR(image.dotsPerMeterX(), 96 / 0.0254 * GetParam().value, 1);
    EXPECT_EQ(image.dotsPerMeterX(), image.dotsPerMeterY());
}

// Seen from afar, where a line that is thinner by a part of a pixel does not count.
TEST_P(GalleryRatio, IsTheSamePicture)
{
    const QSize size = gallerySize() / 8;
    const auto smaller = [&](const QImage& image) {
        return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage plain = smaller(sheet(QStringLiteral("1")));
    const QImage image = smaller(sheet(QString::fromLatin1(GetParam().ratio)));
    EXPECT_TRUE(support::similarPicture(plain, image, {40, 0.005}));
}

// Rectangles with whole numbers for corners are the same at each ratio, only larger.
bool isMadeOfPixels(const PlacedCell& placed)
{
    const QString shows = QString::fromWCharArray(placed.cell->shows);
    return QStringList({"pixels in place", "named colours", "PS_DOT in four colours"})
        .contains(shows);
}

TEST_F(Gallery, DrawsEachCellSharperAtRatio2)
{
    const QImage plain = sheet(QStringLiteral("1"));
    const QImage image = sheet(QStringLiteral("2"));
    for (const PlacedCell& placed : placedCells()) {
        const QRect place = placed.place;
        const QImage cell = image.copy(QRect(place.topLeft() * 2, place.size() * 2));
        const QImage enlarged = plain.copy(place).scaled(cell.size());
        EXPECT_EQ(cell == enlarged, isMadeOfPixels(placed))
            << QString::fromWCharArray(placed.cell->shows).toStdString();
    }
}

// What is drawn in flat colours stays flat: a picture of it that is stretched would have more.
TEST_F(Gallery, BlursNothingAtRatio2)
{
    const QImage plain = sheet(QStringLiteral("1"));
    const QImage image = sheet(QStringLiteral("2"));
    for (const wchar_t* const shows : {L"double buffer", L"SourceOver", L"Screen"}) {
        const QRect place = placeOf(shows);
        const QImage cell = image.copy(QRect(place.topLeft() * 2, place.size() * 2));
        const auto colours = [](const QImage& picture) {
            return picture.convertToFormat(QImage::Format_Indexed8).colorCount();
        };
        EXPECT_EQ(colours(cell), colours(plain.copy(place)));
    }
}

constexpr Row kOthers[] = {
    {"Zero", "0", 0},        {"Negative", "-2", 0},  {"Between", "1.25", 0},
    {"Large", "4", 0},       {"Padded", "2.0", 0},   {"Word", "two", 0},
    {"WithUnit", "2x", 0},   {"Infinite", "inf", 0}, {"NotANumber", "nan", 0},
    {"WithComma", "1,5", 0}, {"WithSpace", " 2", 0}};

class GalleryRefuses : public GalleryRatio
{};

INSTANTIATE_TEST_SUITE_P(Gallery, GalleryRefuses, ::testing::ValuesIn(kOthers),
                         ::testing::PrintToStringParamName());

TEST_P(GalleryRefuses, TheRatioInOneLine)
{
    const QString ratio = QString::fromLatin1(GetParam().ratio);
    const ProgramResult result =
        run({QStringLiteral("--png"), file("sheet.png"), QStringLiteral("--ratio"), ratio});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    expectOneLineAbout(result.err,
                       QStringLiteral("--ratio is 1, 1.5, 2 or 3, not \"%1\"").arg(ratio));
    EXPECT_FALSE(QFile::exists(file("sheet.png")));
}

} // namespace
