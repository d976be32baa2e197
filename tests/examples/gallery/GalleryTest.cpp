// SPDX-License-Identifier: MIT
#include "support/RunProgram.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const QString kPng = QStringLiteral("--png");
const QString kPdf = QStringLiteral("--pdf");

class Gallery : public ::testing::Test
{
protected:
    QString file(const char* name) { return folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir folder;
};

// One line, with the name of what went wrong.
void expectOneLineAbout(const std::string& message, const QString& name)
{
    EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 1) << message;
    EXPECT_NE(message.find(name.toStdString()), std::string::npos) << message;
}

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

TEST_F(Gallery, ShowsItsUsageForArgumentsThatItDoesNotKnow)
{
    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--gif"), file("g")}, QStringList{kPng},
          QStringList{kPng, QString()}, QStringList{QStringLiteral("picture.png")}}) {
        const ProgramResult result = runProgram(GALLERY, arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(QLatin1Char(' ')).toStdString();
        expectOneLineAbout(result.err, QStringLiteral("Usage: gallery"));
    }
}

} // namespace
