// SPDX-License-Identifier: MIT
#include "NameinfoRun.h"

#include <gmock/gmock.h>

#include <QtCore/QJsonObject>

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace {

// Every option that adds a column.
const QStringList kQuestions = {"--parent", "--unique",    "--status", "--validate", "--width",
                                "20",       "--extension", "txt",      "--match",    "/tmp"};

struct BadRow
{
    QStringList arguments;
    const char* said;
};

void expectRefused(const BadRow& row)
{
    SCOPED_TRACE(row.arguments.join(' ').toStdString());
    const ProgramResult result = runNameinfo(row.arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "nameinfo: " + std::string(row.said) + "; see nameinfo --help\n");
}

void expectAllRefused(const std::vector<BadRow>& rows)
{
    for (const BadRow& row : rows)
        expectRefused(row);
}

} // namespace

TEST(Nameinfo, PrintsItsHelp)
{
    for (const char* const option : {"--help", "-h"}) {
        SCOPED_TRACE(option);
        const ProgramResult result = runNameinfo({option});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        EXPECT_THAT(result.out, StartsWith("Usage: nameinfo "));
    }
}

TEST(Nameinfo, NamesEveryOptionInItsHelp)
{
    const std::string help = runNameinfo({"--help"}).out;
    for (const char* const option :
         {"--list FILE", "--", "--wide", "--csv", "--json", "--columns A,B,...", "--parent",
          "--extension LIST", "--width N", "--match OTHER", "--unique", "--status", "--validate",
          "-h, --help", "-v, --version"}) {
        EXPECT_THAT(help, ContainsRegex("\n  " + std::string(option) + " +[^ ]"));
    }
}

TEST(Nameinfo, TellsOfEveryColumnInItsHelp)
{
    const std::string help = runNameinfo({"--help"}).out;
    const std::string columns = help.substr(help.find("\nColumns"));
    const QJsonObject answers = answersFor(kQuestions + QStringList{"/tmp"}).at(0).toObject();
    EXPECT_THAT(answers.keys(), SizeIs(17));
    for (const QString& heading : answers.keys())
        EXPECT_THAT(columns, ContainsRegex("\n  " + heading.toStdString() + " +[*]? *[^ ]"));
}

TEST(Nameinfo, HasAnExampleInItsHelpThatWorks)
{
    const std::vector<std::string> help = linesOf(runNameinfo({"--help"}).out);
    const auto title = std::find(help.begin(), help.end(), "Example:");
    ASSERT_NE(title, help.end());
    const QString line = QString::fromStdString(*(title + 1)).trimmed();
    ASSERT_TRUE(line.startsWith("nameinfo ")) << line.toStdString();
    const ProgramResult result = runInShell("\"$0\" " + line.mid(9));
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "name                type       parent\n"
                          "C:\\docs\\report.txt  not found  C:/docs/\n"
                          "/tmp                directory  /\n");
}

TEST(Nameinfo, HasAHelpThatFitsATerminal)
{
    for (const std::string& line : linesOf(runNameinfo({"--help"}).out))
        EXPECT_LE(line.size(), 80U) << line;
}

TEST(Nameinfo, PrintsTheVersionOfTheProject)
{
    for (const char* const option : {"--version", "-v"}) {
        SCOPED_TRACE(option);
        const ProgramResult result = runNameinfo({option});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out, "nameinfo " NAMEINFO_VERSION "\n");
        EXPECT_EQ(result.err, "");
    }
}

TEST(Nameinfo, RefusesArgumentsWithoutANameOrAListFile)
{
    const char* const none = "there is neither a name nor a list";
    expectAllRefused({
        {{}, none},
        {{"--"}, none},
        {{"--json"}, none},
        {{"--list="}, "--list wants the name of a file, or - for standard input, not \"\""},
    });
}

TEST(Nameinfo, NamesAWrongWidthAndWhatIsAllowed)
{
    const std::string wants = "--width wants a whole number from 0 to 2147483647, or all, not ";
    for (const char* const value :
         {"ten", "", "12x", " 12", "+12", "1.5", "-1", "-12", "2147483648", "99999999999", "ALL"}) {
        const std::string said = wants + '"' + value + '"';
        expectAllRefused({{{"--width", value, "/tmp"}, said.c_str()},
                          {{QStringLiteral("--width=") + value, "/tmp"}, said.c_str()}});
    }
}

TEST(Nameinfo, NamesAWrongColumnAndThoseThatThereAre)
{
    const std::string wants = "--columns wants headings of name, category, type, volume, work "
                              "string, prefix, full path, base name, file name, extension";
    const std::string rest = " (others need their options), not ";
    for (const char* const value : {"", ",name", "name,,type", "name,parent", "Name"}) {
        SCOPED_TRACE(value);
        const ProgramResult result = runNameinfo({"--columns", value, "/tmp"});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(linesOf(result.err), SizeIs(1));
        EXPECT_THAT(result.err, StartsWith("nameinfo: " + wants + rest));
    }
    const std::string parent = wants + ", parent" + rest + "\"folder\"";
    expectRefused({{"--parent", "--columns", "name,folder", "/tmp"}, parent.c_str()});
}

TEST(Nameinfo, NamesAnOptionThatThereIsNot)
{
    expectAllRefused({
        {{"--no-such-option", "/tmp"}, "Unknown option 'no-such-option'"},
        {{"-x", "/tmp"}, "Unknown option 'x'"},
        {{"-parents", "/tmp"}, "Unknown option 'parents'"},
        {{"--json=3", "/tmp"}, "Unexpected value after '--json'"},
        {{"/tmp", "--width"}, "Missing value after '--width'"},
        {{"/tmp", "--extension"}, "Missing value after '--extension'"},
        {{"/tmp", "--match"}, "Missing value after '--match'"},
        {{"/tmp", "--columns"}, "Missing value after '--columns'"},
        {{"--list"}, "Missing value after '--list'"},
    });
}

TEST(Nameinfo, RefusesTwoForms)
{
    const char* const said = "only one of --wide, --json and --csv can be had";
    expectAllRefused({
        {{"--json", "--csv", "/tmp"}, said},
        {{"--csv", "--wide", "/tmp"}, said},
        {{"--wide", "--json", "/tmp"}, said},
    });
}

TEST(Nameinfo, RefusesAValueThatIsNoUtf8)
{
    for (const char* const option : {"--match", "--extension"}) {
        SCOPED_TRACE(option);
        const ProgramResult result =
            runInShell("\"$0\" \"$1\" \"$(printf '\\377')\" /tmp", {option});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, "nameinfo: " + std::string(option) +
                                  " wants UTF-8 text, not \"\xFF\"; see nameinfo --help\n");
    }
}

TEST(Nameinfo, SaysWhatIsWrongInOneLineOfPlainText)
{
    const ProgramResult result = runNameinfo({"--width", "a\nb\033[31mc", "/tmp"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("not \"a?b?[31mc\""));
    EXPECT_THAT(linesOf(result.err), SizeIs(1));
}

TEST(Nameinfo, TakesAValueBehindAnEqualsSign)
{
    EXPECT_EQ(
        answersFor({"--extension=", "C:\\f.gif"}).at(0).toObject()["with extension"].toString(),
        "C:/f");
    EXPECT_EQ(answersFor({"--match=/tmp", "/tmp/"}).at(0).toObject()["match"].toString(), "yes");
    EXPECT_EQ(runNameinfo({"--columns=type,name", "/tmp"}).out, "type       name\n"
                                                                "directory  /tmp\n");
}

TEST(Nameinfo, NamesANameOfTheCommandLineThatIsNoUtf8)
{
    const ProgramResult result = runInShell("\"$0\" --csv /tmp \"$(printf 'a\\377')\" /usr");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "nameinfo: name 2 of the command line: not UTF-8 text\n");
    EXPECT_THAT(result.out, AllOf(HasSubstr("\n/tmp,"), HasSubstr("\n/usr,")));
}
