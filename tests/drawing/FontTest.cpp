// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"
#include "platform/QtVersion.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>

namespace {

using drawing::drawsLike;

struct FontRow
{
    const char* name;
    int height;
    int weight;
    BYTE italic;
    BYTE pitchAndFamily;
};

std::ostream& operator<<(std::ostream& stream, const FontRow& row)
{
    return stream << row.name;
}

const FontRow kFonts[] = {
    {"PlainHeight", 18, 400, 0, 0},
    {"Bold", 20, 700, 0, 0},
    {"ItalicHeavy", 24, 900, 1, 2},
    {"ItalicByAnyByte", 16, 300, 255, 0},
    {"NoWeight", 18, 0, 0, 0},
    {"WeightBelowTen", 18, 9, 0, 0},
    {"FixedPitch", 18, 400, 0, 1},
    {"FixedPitchOfAFamily", 18, 400, 0, 1 | 0x30},
    {"ZeroHeightTakesTheWeight", 0, 30, 0, 0},
    {"NegativeHeightTakesTheWeight", -16, 40, 0, 0},
    {"LowestHeightTakesTheWeight", INT_MIN, 25, 0, 0},
    {"HeightOfOne", 1, 400, 0, 0},
};

struct DepthRow
{
    const char* name;
    QImage::Format format;
    int depth;
};

const DepthRow kDepths[] = {
    {"32 bits", QImage::Format_ARGB32_Premultiplied, 32},
    {"24 bits", QImage::Format_RGB888, 24},
    {"16 bits", QImage::Format_RGB16, 16},
    {"8 bits", QImage::Format_Grayscale8, 8},
    {"1 bit", QImage::Format_Mono, 1},
};

LOGFONTW record(const FontRow& row, const wchar_t* face = L"DejaVu Serif")
{
    LOGFONTW lf = {row.height, 99,   900, 450, row.weight, row.italic,         1,
                   1,          0xEE, 7,   7,   7,          row.pitchAndFamily, {}};
    std::wcscpy(lf.lfFaceName, face);
    return lf;
}

// The same rules in other words.
QFont plainFont(const FontRow& row, int depth, const QString& family)
{
    QFont font(family);
    font.setStyle(row.italic != 0 ? QFont::StyleItalic : QFont::StyleNormal);
    if (row.weight != 0)
        ktqtbase::platform::setFontWeight(font, row.weight / 10);
    const int height = row.height <= 0 ? row.weight : row.height;
    font.setPixelSize(depth * height / 36);
    font.setFixedPitch(row.pitchAndFamily == 1);
    return font;
}

// As a painter gives it back, which adds what the device brings to a font.
QFont onDevice(const QFont& font, QImage::Format format = drawing::kScreen)
{
    QImage image = drawing::ground(format);
    QPainter painter(&image);
    painter.setFont(font);
    return painter.font();
}

QFont fontSetBy(const LOGFONTW& lf, QImage::Format format = drawing::kScreen)
{
    QImage image = drawing::ground(format);
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setFontIndirect(&lf);
    const QFont font = painter.wrappedPainter()->font();
    painter.endDraw();
    return font;
}

std::string rowName(const ::testing::TestParamInfo<FontRow>& row)
{
    return row.param.name;
}

class Font : public ::testing::TestWithParam<FontRow>
{};

INSTANTIATE_TEST_SUITE_P(SetFontIndirect, Font, ::testing::ValuesIn(kFonts), rowName);

TEST_P(Font, IsThePlainFontOnEveryDepth)
{
    const LOGFONTW lf = record(GetParam());
    for (const DepthRow& row : kDepths) {
        ASSERT_EQ(drawing::ground(row.format).depth(), row.depth);
        const QFont plain = plainFont(GetParam(), row.depth, QStringLiteral("DejaVu Serif"));
        const QFont font = fontSetBy(lf, row.format);
        EXPECT_TRUE(font == onDevice(plain, row.format))
            << row.name << ": " << font.toString().toStdString() << " for "
            << plain.toString().toStdString();
    }
}

TEST_P(Font, WritesLikeThePlainFontOnEveryDepth)
{
    const LOGFONTW lf = record(GetParam());
    for (const DepthRow& row : kDepths)
        EXPECT_TRUE(drawsLike(
            [&](KtQtPainterWrapper& p) {
                p.fillRect(QRect(0, 0, 9, 9), Qt::white);
                p.setFontIndirect(&lf);
                p.drawText(4, 40, L"Grip", -1);
            },
            [&](QPainter& p) {
                p.fillRect(QRect(0, 0, 9, 9), Qt::white);
                p.setFont(plainFont(GetParam(), row.depth, QStringLiteral("DejaVu Serif")));
                p.drawText(4, 40, QStringLiteral("Grip"));
            },
            row.format))
            << row.name;
}

struct FontSizeRow
{
    const char* name;
    QImage::Format format;
    int height;
    int weight;
    int pixels;
};

const FontSizeRow kFontSizes[] = {
    {"32 bits, 18", QImage::Format_ARGB32_Premultiplied, 18, 400, 16},
    {"32 bits, 19 is cut", QImage::Format_ARGB32_Premultiplied, 19, 400, 16},
    {"24 bits, 18", QImage::Format_RGB888, 18, 400, 12},
    {"32 bits, -16 takes 400", QImage::Format_ARGB32_Premultiplied, -16, 400, 355},
    {"32 bits, 0 takes 700", QImage::Format_ARGB32_Premultiplied, 0, 700, 622},
    {"8 bits, 45", QImage::Format_Grayscale8, 45, 400, 10},
    {"1 bit, 72", QImage::Format_Mono, 72, 400, 2},
    {"the product wraps", QImage::Format_ARGB32_Premultiplied, 0x08000000 + 9, 400, 8},
};

TEST(FontSize, IsDepthTimesHeightByThirtySixCut)
{
    for (const FontSizeRow& row : kFontSizes) {
        const LOGFONTW lf = record({row.name, row.height, row.weight, 0, 0});
        EXPECT_EQ(fontSetBy(lf, row.format).pixelSize(), row.pixels) << row.name;
    }
}

TEST(FontSize, GoesByTheWrappedDeviceNotTheOneBeingPaintedOn)
{
    QImage painted = drawing::ground(QImage::Format_ARGB32_Premultiplied);
    QImage wrapped = drawing::ground(QImage::Format_RGB888);
    KtQtPainterWrapper painter(&painted);
    ASSERT_TRUE(painter.beginDraw());
    painter.setWrappedDevice(&wrapped);
    const LOGFONTW lf = record({"", 18, 400, 0, 0});
    painter.setFontIndirect(&lf);
    EXPECT_EQ(painter.wrappedPainter()->font().pixelSize(), 12);
    EXPECT_TRUE(painter.endDraw());
}

TEST(FontSize, BelowOnePixelStaysQtsOwn)
{
    const LOGFONTW lf = record({"", 0, 0, 0, 0});
    const QFont plain = plainFont({"", 0, 0, 0, 0}, 32, QStringLiteral("DejaVu Serif"));
    EXPECT_TRUE(fontSetBy(lf) == onDevice(plain));
    EXPECT_EQ(fontSetBy(lf).pixelSize(), onDevice(QFont()).pixelSize());
}

TEST(FontWeight, IsATenthOfTheRecords)
{
    for (int weight : {100, 400, 405, 409, 700, 900, 999}) {
        QFont expected;
        ktqtbase::platform::setFontWeight(expected, weight / 10);
        EXPECT_EQ(fontSetBy(record({"", 18, weight, 0, 0})).weight(), expected.weight()) << weight;
    }
}

TEST(FontWeight, OfZeroIsQtsOwn)
{
    EXPECT_EQ(fontSetBy(record({"", 18, 0, 0, 0})).weight(), QFont().weight());
}

TEST(FontPitch, IsFixedForExactlyOne)
{
    for (unsigned pitch = 0; pitch < 256; ++pitch) {
        const LOGFONTW lf = record({"", 18, 400, 0, static_cast<BYTE>(pitch)});
        EXPECT_EQ(fontSetBy(lf).fixedPitch(), pitch == FIXED_PITCH) << pitch;
    }
}

TEST(FontFamily, EndsAtTheTerminator)
{
    LOGFONTW lf = record({"", 18, 400, 0, 0}, L"Mono\0Serif");
    lf.lfFaceName[5] = L'X';
    EXPECT_EQ(fontSetBy(lf).family(), QStringLiteral("Mono"));
}

// On the heap, where a sanitizer reports a read after the end of the record.
TEST(FontFamily, MayFillTheRecordWithoutATerminator)
{
    const auto lf = std::make_unique<LOGFONTW>(record({"", 18, 400, 0, 0}));
    std::fill(std::begin(lf->lfFaceName), std::end(lf->lfFaceName), L'f');
    EXPECT_EQ(fontSetBy(*lf).family(), QString(32, QLatin1Char('f')));
}

TEST(FontFamily, MayLieOutsideTheBasicPlane)
{
    const LOGFONTW lf = record({"", 18, 400, 0, 0}, L"\U0001D509ont");
    EXPECT_EQ(fontSetBy(lf).family(), QString::fromUtf8("\U0001D509ont"));
}

TEST(FontFamily, MayBeEmpty)
{
    const LOGFONTW lf = record({"", 18, 400, 0, 0}, L"");
    EXPECT_TRUE(fontSetBy(lf) == onDevice(plainFont({"", 18, 400, 0, 0}, 32, QString())));
}

} // namespace
