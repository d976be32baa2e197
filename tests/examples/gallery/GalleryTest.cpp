// SPDX-License-Identifier: MIT
#include "GalleryFixture.h"

#include <QtCore/QFile>

namespace {

const QString kPng = QStringLiteral("--png");
const QString kPdf = QStringLiteral("--pdf");

TEST_F(Gallery, WritesAPng)
{
    const ProgramResult result = runProgram(GALLERY, {kPng, file("gallery.png")});
    EXPECT_EQ(result.status, 0) << result.err;
    const QImage image(file("gallery.png"));
    EXPECT_GT(image.width(), 800);
    EXPECT_GT(image.height(), 800);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(Gallery, WritesTheSamePngEachTime)
{
    runProgram(GALLERY, {kPng, file("one.png")});
    runProgram(GALLERY, {kPng, file("two.png")});
    ASSERT_FALSE(QImage(file("one.png")).isNull());
    EXPECT_EQ(QImage(file("one.png")), QImage(file("two.png")));
}

TEST_F(Gallery, WritesAPdf)
{
    const ProgramResult result = runProgram(GALLERY, {kPdf, file("gallery.pdf")});
    EXPECT_EQ(result.status, 0) << result.err;
    QFile pdf(file("gallery.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray bytes = pdf.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    EXPECT_TRUE(bytes.trimmed().endsWith("%%EOF"));
}

TEST_F(Gallery, WritesBothAtOnce)
{
    const QStringList arguments = {kPng, file("both.png"), kPdf, file("both.pdf")};
    EXPECT_EQ(runProgram(GALLERY, arguments).status, 0);
    EXPECT_TRUE(QFile::exists(file("both.png")));
    EXPECT_TRUE(QFile::exists(file("both.pdf")));
}

TEST_F(Gallery, SaysInOneLineWhatItCannotWrite)
{
    const QString name = file("no/such/folder/picture");
    for (const QString& option : {kPng, kPdf}) {
        const ProgramResult result = runProgram(GALLERY, {option, name});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        expectOneLineAbout(result.err, name);
    }
}

TEST_F(Gallery, ReplacesALongerFile)
{
    QFile old(file("old.png"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(4000000, 'x'));
    old.close();
    EXPECT_EQ(runProgram(GALLERY, {kPng, file("old.png")}).status, 0);
    EXPECT_LT(old.size(), 4000000);
    EXPECT_FALSE(QImage(file("old.png")).isNull());
}

TEST_F(Gallery, CannotWriteAFolder)
{
    const ProgramResult result = runProgram(GALLERY, {kPng, folder.path()});
    EXPECT_EQ(result.status, 2);
    expectOneLineAbout(result.err, folder.path());
}

struct WrongArguments
{
    const char* name;
    QStringList arguments;
    const char* message;
};

void PrintTo(const WrongArguments& row, std::ostream* out)
{
    *out << row.name;
}

const WrongArguments kWrong[] = {
    {"UnknownOption", {"--gif", "g"}, "nknown option 'gif'; see"},
    {"UnknownLetter", {"-x"}, "nknown option 'x'; see"},
    {"NoValue", {"--png"}, "'--png'; see"},
    {"EmptyValue", {"--png", ""}, "--png needs a value"},
    {"EmptyValueAfterEquals", {"--pdf="}, "--pdf"},
    {"NoOption", {"picture.png"}, "\"picture.png\" belongs to no option"},
    {"RatioAlone", {"--ratio", "2"}, "--ratio needs --png"},
    {"RatioOfAPage", {"--pdf", "p", "--ratio", "2"}, "--ratio needs --png"},
    {"WithAlone", {"--with", "p"}, "--with needs --compare"},
    {"DifferenceAlone", {"--difference", "p"}, "--difference needs --compare"},
    {"CompareAndPng", {"--compare", "p", "--png", "p"}, "--compare writes no sheet"},
    {"CompareAndPdf", {"--compare", "p", "--pdf", "p"}, "--compare writes no sheet"},
    {"CompareAndRatio", {"--compare", "p", "--ratio", "2"}, "--compare writes no sheet"},
};

class GalleryArguments : public Gallery, public ::testing::WithParamInterface<WrongArguments>
{};

INSTANTIATE_TEST_SUITE_P(Gallery, GalleryArguments, ::testing::ValuesIn(kWrong),
                         ::testing::PrintToStringParamName());

TEST_P(GalleryArguments, AreRefusedInOneLine)
{
    const ProgramResult result = run(GetParam().arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    expectOneLineAbout(result.err, QString::fromLatin1(GetParam().message));
    expectOneLineAbout(result.err, QStringLiteral("; see --help"));
}

TEST_F(Gallery, TellsOfEachOptionWhenAskedForHelp)
{
    const ProgramResult result = run({QStringLiteral("--help")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    for (const char* const option : {"--png FILE", "--ratio N", "--pdf FILE", "--compare FILE",
                                     "--with FILE", "--difference FILE", "-h, --help"})
        EXPECT_NE(result.out.find(option), std::string::npos) << option;
    EXPECT_EQ(run({QStringLiteral("-h")}).out, result.out);
}

} // namespace
