// SPDX-License-Identifier: MIT
#include "GalleryFixture.h"

#include <QtCore/QFile>

namespace {

const QString kCompare = QStringLiteral("--compare");
const QString kWith = QStringLiteral("--with");
const QString kDifference = QStringLiteral("--difference");

class GalleryComparison : public Gallery
{
protected:
    void SetUp() override
    {
        image = sheet(QStringLiteral("1"));
        ASSERT_FALSE(image.isNull());
    }

    // The sheet with some pixels of another colour.
    QString changed(const std::vector<QPoint>& pixels)
    {
        QImage other = image;
        for (const QPoint& pixel : pixels)
            other.setPixel(pixel, 0xFF00FF01);
        EXPECT_TRUE(other.save(file("changed.png")));
        return file("changed.png");
    }

    QString same() { return file("sheet.png"); }

    std::string total(int pixels) const
    {
        return std::to_string(pixels) + " of " + std::to_string(image.width() * image.height()) +
               " pixels differ\n";
    }

    QImage image;
};

TEST_F(GalleryComparison, FindsTheSheetEqualToItself)
{
    const ProgramResult result = run({kCompare, same()});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, total(0));
}

TEST_F(GalleryComparison, TakesTheRatioOfThePicture)
{
    const QImage larger = sheet(QStringLiteral("1.5"));
    const ProgramResult result = run({kCompare, same()});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out,
              "0 of " + std::to_string(larger.width() * larger.height()) + " pixels differ\n");
}

TEST_F(GalleryComparison, NamesTheCellsThatDiffer)
{
    const QPoint dash = placeOf(L"PS_DASH,").topLeft();
    const QPoint star = placeOf(L"a star").bottomRight();
    const ProgramResult result = run({kCompare, changed({dash, star, star - QPoint(1, 0)})});
    EXPECT_EQ(result.status, 1) << result.err;
    EXPECT_EQ(
        result.out,
        total(3) +
            "       1  Pen styles: PS_DASH, widths 1, 2 and 6, setPen(PS_DASH, width, colour)\n"
            "       2  Clips and states: a star, setClipRegion(points)\n");
}

TEST_F(GalleryComparison, CountsWhatDiffersOutsideTheCells)
{
    const ProgramResult result = run({kCompare, changed({{0, 0}, {1, 1}})});
    EXPECT_EQ(result.status, 1) << result.err;
    EXPECT_EQ(result.out, total(2) + "       2  labels and headings\n");
}

TEST_F(GalleryComparison, MarksWhatDiffersInAPalePicture)
{
    const QPoint pixel = placeOf(L"SolidPattern").center();
    const QString difference = file("difference.png");
    EXPECT_EQ(run({kCompare, changed({pixel}), kDifference, difference}).status, 1);
    const QImage picture(difference);
    EXPECT_EQ(picture.size(), image.size());
    EXPECT_EQ(picture.pixelColor(pixel), QColor(0xE0, 0, 0));
    EXPECT_EQ(picture.pixelColor(pixel + QPoint(1, 0)), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
}

// A pale picture has no red at all, even where the sheet has.
TEST_F(GalleryComparison, MarksNothingWhereNothingDiffers)
{
    const QString difference = file("difference.png");
    EXPECT_EQ(run({kCompare, same(), kDifference, difference}).status, 0);
    EXPECT_TRUE(QImage(difference).allGray());
}

TEST_F(GalleryComparison, ComparesTwoPictures)
{
    const QString other = changed({{0, 0}});
    EXPECT_EQ(run({kCompare, other, kWith, other}).out, total(0));
    const ProgramResult result = run({kCompare, other, kWith, same()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, total(1) + "       1  labels and headings\n");
}

TEST_F(GalleryComparison, ReadsPicturesOfAnotherDepth)
{
    const QString deep = file("deep.png");
    ASSERT_TRUE(image.convertToFormat(QImage::Format_RGBA64).save(deep));
    EXPECT_EQ(run({kCompare, deep}).out, total(0));
}

TEST_F(GalleryComparison, RefusesPicturesOfTwoRatios)
{
    const QString plain = changed({});
    ASSERT_FALSE(sheet(QStringLiteral("2")).isNull());
    const ProgramResult result = run({kCompare, same(), kWith, plain});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    expectOneLineAbout(result.err, QStringLiteral("%1 is 1048 by").arg(plain));
    expectOneLineAbout(result.err, QStringLiteral("%1 2096 by").arg(same()));
}

TEST_F(GalleryComparison, DoesNotReplaceAPictureThatItCompares)
{
    const QString other = changed({{0, 0}});
    const QString link = file("link.png");
    ASSERT_TRUE(QFile::link(other, link));
    for (const QString& difference : {other, link}) {
        const ProgramResult compared = run({kCompare, other, kDifference, difference});
        EXPECT_EQ(compared.status, 2);
        expectOneLineAbout(compared.err,
                           QStringLiteral("--difference would replace the picture of --compare"));
        const ProgramResult with = run({kCompare, same(), kWith, other, kDifference, difference});
        EXPECT_EQ(with.status, 2);
        expectOneLineAbout(with.err,
                           QStringLiteral("--difference would replace the picture of --with"));
    }
    EXPECT_EQ(run({kCompare, other, kWith, other}).out, total(0));
}

TEST_F(GalleryComparison, SaysTheSizeOfWhatIsNoSheet)
{
    ASSERT_TRUE(image.copy(0, 0, 30, 20).save(file("small.png")));
    const ProgramResult result = run({kCompare, file("small.png")});
    EXPECT_EQ(result.status, 2);
    expectOneLineAbout(result.err, file("small.png") + QStringLiteral(" is 30 by 20 pixels large"));
}

TEST_F(GalleryComparison, NamesAPictureThatItCannotRead)
{
    QFile text(file("text.png"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
    text.close();
    for (const QString& name : {text.fileName(), file("missing.png"), folder.path()}) {
        for (const QStringList& arguments :
             {QStringList{kCompare, name}, QStringList{kCompare, same(), kWith, name}}) {
            const ProgramResult result = run(arguments);
            EXPECT_EQ(result.status, 2) << name.toStdString();
            EXPECT_EQ(result.out, "");
            expectOneLineAbout(result.err, QStringLiteral("cannot read %1: ").arg(name));
        }
    }
}

TEST_F(GalleryComparison, NamesADifferenceThatItCannotWrite)
{
    const QString name = file("no/such/folder/difference.png");
    const ProgramResult result = run({kCompare, same(), kDifference, name});
    EXPECT_EQ(result.status, 2);
    expectOneLineAbout(result.err, QStringLiteral("cannot write %1: ").arg(name));
}

} // namespace
