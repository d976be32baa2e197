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

QJsonArray answersFor(const QStringList& arguments)
{
    const ProgramResult result = runProgram(NAMEINFO, QStringList{"--json"} + arguments);
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

// The only answer in a column, for one name.
QString answerFor(const QStringList& arguments, const char* heading)
{
    return answersFor(arguments).at(0).toObject()[heading].toString("none");
}

struct AnswerRow
{
    QStringList arguments;
    const char* heading;
    const char* answer;
};

void expectAnswers(const std::vector<AnswerRow>& rows)
{
    for (const AnswerRow& row : rows) {
        SCOPED_TRACE(row.arguments.join(' ').toStdString());
        EXPECT_EQ(answerFor(row.arguments, row.heading).toStdString(), row.answer);
    }
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

TEST(Nameinfo, TakesAByteOrderMarkForALetter)
{
    EXPECT_EQ(answerFor({QChar(0xFEFF) + QStringLiteral("/tmp")}, "category"), "relative");
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
    for (const QStringList& arguments :
         {QStringList(), QStringList{"--list"}, QStringList{"--"}, QStringList{"--json"}}) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const ProgramResult result = runProgram(NAMEINFO, arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err, HasSubstr("Usage: nameinfo"));
    }
}

TEST(Nameinfo, ShowsItsUsageForABadOption)
{
    for (const QStringList& arguments :
         {QStringList{"--width", "ten", "/tmp"}, QStringList{"--width", "", "/tmp"},
          QStringList{"--width", "12x", "/tmp"}, QStringList{"--width", "99999999999", "/tmp"},
          QStringList{"/tmp", "--width"}, QStringList{"/tmp", "--extension"},
          QStringList{"/tmp", "--match"}, QStringList{"/tmp", "--columns"},
          QStringList{"--columns", "", "/tmp"}, QStringList{"--columns", "name,parent", "/tmp"},
          QStringList{"--no-such-option", "/tmp"}}) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const ProgramResult result = runProgram(NAMEINFO, arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr("Usage: nameinfo"));
    }
}

TEST(Nameinfo, TakesEverythingBehindTwoDashesForANameToo)
{
    EXPECT_EQ(answerFor({"--", "--width"}, "work string"), "--width");
}

TEST(Nameinfo, ShowsTheParent)
{
    expectAnswers({
        {{"--parent", "C:\\dir\\f.txt"}, "parent", "C:/dir/"},
        {{"--parent", "docs\\f.txt"}, "parent", "docs/"},
        {{"--parent", "a:b:c"}, "parent", "none"},
        {{"C:\\dir\\f.txt"}, "parent", "none"},
    });
    EXPECT_TRUE(answerFor({"--parent", "f.txt"}, "parent").endsWith("/nameinfo/"));
}

TEST(Nameinfo, ShowsANameWithAnExtensionOfTheList)
{
    expectAnswers({
        {{"--extension", "txt;doc", "C:\\f.DOC"}, "with extension", "C:/f.DOC"},
        {{"--extension", "txt;doc", "C:\\f.gif"}, "with extension", "C:/f.txt"},
        {{"--extension", "", "C:\\f.gif"}, "with extension", "C:/f"},
        {{"--extension", "txt", "a:b:c"}, "with extension", "none"},
    });
}

TEST(Nameinfo, CutsANameForDisplay)
{
    expectAnswers({
        {{"--width", "12", "aa\\bb\\cc\\dd\\file"}, "display", ".../dd/file"},
        {{"--width", "14", "d:\\aa\\bb\\cc\\dd\\file"}, "display", "D:\\.../dd/file"},
        {{"--width", "-1", "aa\\bb\\cc\\dd\\file"}, "display", "aa/bb/cc/dd/file"},
        {{"--width", "12", "//"}, "display", "none"},
    });
}

TEST(Nameinfo, ComparesWithAnotherName)
{
    expectAnswers({
        {{"--match", "c:\\DIR\\", "C:\\dir"}, "match", "yes"},
        {{"--match", "/dir", "C:\\dir"}, "match", "no"},
        {{"--match", "a:b:c", "C:\\dir"}, "match", "no"},
        {{"--match", "/dir", "a:b:c"}, "match", "none"},
    });
}

TEST(Nameinfo, ShowsANameThatIsFree)
{
    const QTemporaryDir folder;
    const QString taken = writeList(folder, "");
    EXPECT_EQ(answerFor({"--unique", "/no/such/f.txt"}, "unique"), "/no/such/f.txt");
    const std::string unique = answerFor({"--unique", taken}, "unique").toStdString();
    EXPECT_THAT(unique, ContainsRegex("/list[0-9][0-9][0-9][0-9][0-9].txt$"));
}

TEST(Nameinfo, ShowsTheStatus)
{
    const QTemporaryDir folder;
    const QString file = writeList(folder, "");
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    const QByteArray name = file.toUtf8();
    expectAnswers({
        {{"--status", name}, "status", "15"},
        {{"--status", name + ".none"}, "status", "8"},
        {{"--status", "/no/such/f.txt"}, "status", "0"},
        {{"--status", "a:b:c"}, "status", "none"},
    });
}

TEST(Nameinfo, ShowsWhetherTheVolumeTakesTheName)
{
    expectAnswers({
        {{"--validate", " \"C:\\dir\\f.txt\" "}, "valid", "yes"},
        {{"--validate", "C:\\dir\\*.txt"}, "valid", "yes"},
        {{"--validate", "C:\\dir?\\f.txt"}, "valid", "no"},
        {{"--validate", "C:\\dir\\\\f.txt"}, "valid", "no"},
        {{"--validate", "C:/dir/f.txt"}, "valid", "no"},
        {{"--validate", "report.txt"}, "valid", "yes"},
        {{"--validate", "a:b:c"}, "valid", "no"},
    });
}

TEST(Nameinfo, AddsItsColumnsToTheTable)
{
    const ProgramResult result = runProgram(
        NAMEINFO, {"--validate", "--width", "12", "--columns", "display,valid,name", "x:", "a|b"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "display  valid  name\n"
                          "X:       yes    x:\n"
                          "a|b      no     a|b\n");
}

TEST(Nameinfo, AnswersTheShortListOfTheDemo)
{
    const ProgramResult result =
        runProgram(NAMEINFO, {"--parent", "--extension", "txt;docx;dwg", "--width", "20",
                              "--unique", "--status", "--validate", "--list", SHORT_NAMES_LIST});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out,
                ContainsRegex("parent +with extension +display +unique +status +valid"));
}
