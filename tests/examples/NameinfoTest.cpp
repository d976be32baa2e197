// SPDX-License-Identifier: MIT
#include "support/RunProgram.h"

#include <gmock/gmock.h>

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

#include <algorithm>

using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

QJsonArray answersFor(const QStringList& names)
{
    const ProgramResult result = runProgram(NAMEINFO, QStringList{"--json"} + names);
    EXPECT_EQ(result.status, 0) << result.err;
    return QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).array();
}

QString writeList(const QTemporaryDir& folder, const QByteArray& bytes)
{
    QFile file(folder.filePath("list.txt"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
}

long lineCount(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n');
}

} // namespace

TEST(Nameinfo, AnswersForADriveName)
{
    const QJsonObject answer = answersFor({"\"c:\\dir\\f.tar.gz\""}).at(0).toObject();
    EXPECT_EQ(answer["category"], "drive");
    EXPECT_EQ(answer["type"], "not found");
    EXPECT_EQ(answer["volume"], "C:");
    EXPECT_EQ(answer["work string"], "C:/dir/f.tar.gz");
    EXPECT_TRUE(answer["prefix"].isNull());
    EXPECT_EQ(answer["full path"], "C:/dir/f.tar.gz");
    EXPECT_EQ(answer["base name"], "f.tar.gz");
    EXPECT_EQ(answer["file name"], "f.tar");
    EXPECT_EQ(answer["extension"], "gz");
}

TEST(Nameinfo, ResolvesARelativeNameBesideItself)
{
    const QJsonObject answer = answersFor({"docs\\日本.txt"}).at(0).toObject();
    EXPECT_EQ(answer["category"], "relative");
    EXPECT_EQ(answer["full path"].toString(), answer["prefix"].toString() + "docs/日本.txt");
    EXPECT_THAT(answer["prefix"].toString().toStdString(), EndsWith("/nameinfo/"));
}

TEST(Nameinfo, TellsNoAnswerFromAnEmptyOne)
{
    const QJsonArray answers = answersFor({"/tmp/", "name.", "a:b:c"});
    EXPECT_EQ(answers.at(0).toObject()["base name"], "");
    EXPECT_TRUE(answers.at(0).toObject()["extension"].isNull());
    EXPECT_EQ(answers.at(1).toObject()["extension"], "");
    EXPECT_EQ(answers.at(2).toObject()["type"], "bad name");
    EXPECT_TRUE(answers.at(2).toObject()["work string"].isNull());
}

TEST(Nameinfo, AlignsItsTable)
{
    const ProgramResult result = runProgram(NAMEINFO, {"/tmp/海.txt", "x:"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("name         category  type"));
    EXPECT_THAT(result.out, HasSubstr("\n/tmp/海.txt  rooted    not found"));
    EXPECT_THAT(result.out, HasSubstr("\nx:           drive     not found"));
}

TEST(Nameinfo, AnswersEveryLineOfItsOwnList)
{
    const ProgramResult result = runProgram(NAMEINFO, {"--list", NAMES_LIST});
    EXPECT_EQ(result.status, 0) << result.err;
    QFile list(NAMES_LIST);
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    const long names = lineCount(list.readAll().toStdString());
    EXPECT_GE(names, 60);
    EXPECT_EQ(lineCount(result.out), names + 1);
}

TEST(Nameinfo, ReadsStandardInput)
{
    const ProgramResult result = runProgram(NAMEINFO, {"--list", "-"}, "/tmp\nC:\\a.txt\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, ContainsRegex("/tmp +rooted"));
    EXPECT_THAT(result.out, ContainsRegex("C:.a.txt +drive"));
}

TEST(Nameinfo, NamesAListThatIsMissing)
{
    const ProgramResult result = runProgram(NAMEINFO, {"--list", "/no/such/list.txt", "/tmp"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "nameinfo: /no/such/list.txt: No such file or directory\n");
    EXPECT_THAT(result.out, HasSubstr("/tmp"));
}

TEST(Nameinfo, NamesALineThatIsNoUtf8AndAnswersTheOthers)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, "/tmp\n/bad/\xFF.txt\n/cut/\xC3\n/usr\n");
    const ProgramResult result = runProgram(NAMEINFO, {"--list", list});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "nameinfo: " + list.toStdString() + ":2: not UTF-8 text\n" +
                              "nameinfo: " + list.toStdString() + ":3: not UTF-8 text\n");
    EXPECT_EQ(lineCount(result.out), 3);
}

TEST(Nameinfo, RefusesANulByte)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, QByteArray("/tmp/a\0b\n", 9));
    const ProgramResult result = runProgram(NAMEINFO, {"--list", list});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, EndsWith(":1: not UTF-8 text\n"));
}

TEST(Nameinfo, ShowsItsUsageWithoutANameOrAListFile)
{
    for (const QStringList& arguments : {QStringList(), QStringList{"--list"}}) {
        const ProgramResult result = runProgram(NAMEINFO, arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err, HasSubstr("Usage: nameinfo"));
    }
}
