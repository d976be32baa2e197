// SPDX-License-Identifier: MIT
#include "NameinfoRun.h"

#include <gmock/gmock.h>

#include <QtCore/QFile>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

using testing::ContainsRegex;
using testing::EndsWith;

namespace {

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

} // namespace

TEST(Nameinfo, AnswersForADriveName)
{
    const QJsonObject answer = answersFor({R"("c:\dir\f.tar.gz")"}).at(0).toObject();
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

TEST(Nameinfo, TakesAByteOrderMarkForALetter)
{
    EXPECT_EQ(answerFor({QChar(0xFEFF) + QStringLiteral("/tmp")}, "category"), "relative");
}

TEST(Nameinfo, PrintsAByteOrderMarkInANameInEveryForm)
{
    for (const char* form : {"--csv", "--json", "--wide"}) {
        SCOPED_TRACE(form);
        const ProgramResult result =
            runNameinfo({form, "--columns", "name", QChar(0xFEFF) + QStringLiteral("/tmp")});
        EXPECT_THAT(result.out, testing::HasSubstr("\xEF\xBB\xBF/tmp"));
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
        {{"--width", "12", R"(aa\bb\cc\dd\file)"}, "display", ".../dd/file"},
        {{"--width", "14", R"(d:\aa\bb\cc\dd\file)"}, "display", "D:\\.../dd/file"},
        {{"--width", "all", R"(aa\bb\cc\dd\file)"}, "display", "aa/bb/cc/dd/file"},
        {{"--width=0", R"(aa\bb\cc\dd\file)"}, "display", ".../dd/file"},
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
        {{"--validate", R"( "C:\dir\f.txt" )"}, "valid", "yes"},
        {{"--validate", "C:\\dir\\*.txt"}, "valid", "yes"},
        {{"--validate", "C:\\dir?\\f.txt"}, "valid", "no"},
        {{"--validate", R"(C:\dir\\f.txt)"}, "valid", "no"},
        {{"--validate", "C:/dir/f.txt"}, "valid", "no"},
        {{"--validate", "report.txt"}, "valid", "yes"},
        {{"--validate", "a:b:c"}, "valid", "no"},
    });
}
