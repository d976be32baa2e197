// SPDX-License-Identifier: MIT
#include "NameinfoRun.h"

#include <gmock/gmock.h>

#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

using testing::AllOf;
using testing::ContainsRegex;
using testing::Each;
using testing::HasSubstr;
using testing::Le;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

// Characters; those of the lists that are used here take one cell each.
std::vector<int> widthsOf(const std::string& text)
{
    std::vector<int> widths;
    for (const std::string& line : linesOf(text))
        widths.push_back(static_cast<int>(QString::fromStdString(line).remove('\r').size()));
    return widths;
}

const QStringList kDemo = {
    "--parent", "--extension",   "txt;docx;dwg", "--unique",
    "--status", "--validate",    "--columns",    "name,parent,with extension,unique,status,valid",
    "--list",   SHORT_NAMES_LIST};

const char* const kLongNames = "C:\\Windows\\System32\\drivers\\etc\\hosts\n"
                               "/usr/share/doc/a longer folder/read me.txt\n"
                               "what:is:no:name:at:all:and:goes:on:and:on:and:on:to:the:end\n"
                               "x:\n";

} // namespace

TEST(Nameinfo, AlignsItsTable)
{
    const ProgramResult result = runNameinfo({"/tmp/海.txt", "x:"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "name         category  type       volume  full path    extension\n"
                          "/tmp/海.txt  rooted    not found  -       /tmp/海.txt  txt\n"
                          "x:           drive     not found  -       X:           -\n");
}

TEST(Nameinfo, AddsItsColumnsToTheTable)
{
    const ProgramResult result = runNameinfo(
        {"--validate", "--width", "12", "--columns", "display,valid,name", "x:", "a|b"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "display  valid  name\n"
                          "X:       yes    x:\n"
                          "a|b      no     a|b\n");
    EXPECT_THAT(runNameinfo({"--validate", "x:"}).out, ContainsRegex(" extension  valid\n"));
}

TEST(Nameinfo, PrintsNoTableForNoNames)
{
    EXPECT_EQ(runNameinfo({"--list", "-"}, "").out, "");
}

TEST(Nameinfo, FitsItsTableIntoTheTerminal)
{
    for (const int width : {66, 80, 100, 200}) {
        SCOPED_TRACE(width);
        const Terminal terminal(static_cast<unsigned short>(width));
        const std::string table = shownOn(terminal, {"--list", SHORT_NAMES_LIST});
        EXPECT_THAT(table, ContainsRegex("^name +category +type +volume +full path +extension\r"));
        EXPECT_THAT(widthsOf(table), AllOf(SizeIs(12), Each(Le(width))));
    }
}

TEST(Nameinfo, AsksTheTerminalBeforeTheEnvironment)
{
    const Terminal terminal(60);
    ChildProcess process;
    process->setStandardOutputFile(terminal.name());
    ASSERT_TRUE(
        process.start("/usr/bin/env", {"COLUMNS=200", NAMEINFO, "--list", SHORT_NAMES_LIST}));
    EXPECT_TRUE(process->waitForFinished(ChildProcess::kPatience));
    EXPECT_THAT(widthsOf(terminal.text()), Each(Le(60)));
}

TEST(Nameinfo, FitsItsTableInto80ColumnsWithoutATerminal)
{
    const ProgramResult result =
        runInShell(R"(unset COLUMNS; exec "$0" --list "$1")", {NAMES_LIST});
    EXPECT_THAT(widthsOf(result.out), Each(Le(80)));
    for (const int columns : {0, -5}) {
        EXPECT_EQ(printedIn(columns, {"--list", NAMES_LIST}), result.out);
    }
}

TEST(Nameinfo, HasATableForAnOutputOfAnyWidth)
{
    for (const int columns : {1, 9, 2147483647})
        EXPECT_THAT(printedIn(columns, {"--list", "-"}, "/tmp\n"), HasSubstr("/tmp"));
}

TEST(Nameinfo, ShortensNamesAsTheLibraryDoes)
{
    EXPECT_EQ(printedIn(42, {"--columns", "name,work string", "--list", "-"}, kLongNames),
              "name                  work string\n"
              "C:\\.../etc/hosts      C:\\.../etc/hosts\n"
              ".../read me.txt       .../read me.txt\n"
              "what:is:no:name:a...  -\n"
              "x:                    X:\n");
}

TEST(Nameinfo, ShortensNoMoreThanItMust)
{
    const QTemporaryDir folder;
    const QStringList arguments = {"--columns", "name,type", "--list",
                                   writeList(folder, kLongNames)};
    const std::string table = printedIn(54, arguments);
    EXPECT_THAT(table, HasSubstr("\n/usr/share/doc/a longer folder/read me.txt   not found\n"));
    EXPECT_THAT(table, HasSubstr("\nwhat:is:no:name:at:all:and:goes:on:and:o...  bad name\n"));
    EXPECT_THAT(widthsOf(printedIn(60, arguments)), Each(Le(60)));
}

TEST(Nameinfo, CountsTheCellsOfATerminalWhenItShortens)
{
    const QStringList arguments = {"--columns", "name",
                                   "C:\\照照照照照照照照照照\\片片片片片片片片.jpeg"};
    EXPECT_EQ(printedIn(28, arguments), "name\nC:\\.../片片片片片片片片.jpeg\n");
    EXPECT_EQ(printedIn(27, arguments), "name\n片片片片片片片片.jpeg\n");
    EXPECT_EQ(printedIn(20, arguments), "name\n片片片片片片~.jpeg\n");
    EXPECT_EQ(printedIn(17, arguments), "name\nC:\\照照照照照...\n");
}

TEST(Nameinfo, ShowsTheBeginningOfANameWhoseShortFormHoldsNothing)
{
    EXPECT_EQ(printedIn(14, {"--columns", "name", "/etc/passwd.txt"}), "name\n/etc/passwd...\n");
}

TEST(Nameinfo, ShowsControlCharactersAsNumbers)
{
    EXPECT_EQ(printedIn(80, {"--columns", "name", "a\nb\033[31m"}), "name\na\\x0ab\\x1b[31m\n");
}

TEST(Nameinfo, GivesEachAnswerALineWhereNoTableFits)
{
    EXPECT_EQ(printedIn(30, {"/tmp", "C:\\dir\\another\\read me.txt"}),
              "name:      /tmp\n"
              "category:  rooted\n"
              "type:      directory\n"
              "volume:    -\n"
              "full path: /tmp\n"
              "extension: -\n"
              "\n"
              "name:      C:\\.../read me.txt\n"
              "category:  drive\n"
              "type:      not found\n"
              "volume:    C:\n"
              "full path: C:\\.../read me.txt\n"
              "extension: txt\n");
}

TEST(Nameinfo, GivesAllColumnsInFullWhereTheyAreWanted)
{
    const std::string table = runNameinfo({"--wide", "--list", NAMES_LIST}).out;
    EXPECT_THAT(table, ContainsRegex("^name +category +type +volume +work string +prefix +full path"
                                     " +base name +file name +extension\n"));
    EXPECT_THAT(table,
                HasSubstr("/deep/folders/that/nobody/ever/cleans/up/final/final2/drawing.dwg "));
    EXPECT_THAT(table, Not(HasSubstr("...")));
}

TEST(Nameinfo, HasColumnsOfAFixedWidthForAPipe)
{
    const std::string first =
        "name                 category  type       volume  full path          "
        "  extension\n"
        "/tmp                 rooted    directory  -       /tmp               "
        "  -\n";
    EXPECT_EQ(printedIn(80, {"--list", "-"}, "/tmp\n"), first);
    EXPECT_THAT(printedIn(80, {"--list", "-"}, QByteArray("/tmp\n") + kLongNames),
                StartsWith(first));
    const std::string wide = runNameinfo({"--wide", "--list", "-"}, kLongNames).out;
    EXPECT_THAT(wide, HasSubstr("\n/usr/share/doc/a longer folder/read me.txt  rooted"));
    EXPECT_THAT(wide, ContainsRegex("\nx: {30}drive"));
}

TEST(Nameinfo, PrintsAnObjectALine)
{
    const ProgramResult result = runNameinfo({"--json", "--columns", "name,volume", "/a\"b", "/c"});
    EXPECT_EQ(result.out, "[\n"
                          "{\"name\":\"/a\\\"b\",\"volume\":null},\n"
                          "{\"name\":\"/c\",\"volume\":null}\n"
                          "]\n");
    EXPECT_EQ(runNameinfo({"--json", "--list", "-"}, "").out, "[\n]\n");
}

TEST(Nameinfo, PrintsCommaSeparatedValues)
{
    const ProgramResult result =
        runNameinfo({"--csv", "--columns", "name,volume,base name", "/tmp/", "a:b:c", "/d/e,f",
                     "/d/\"g\"", "=1", "/h\ni"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "name,volume,base name\r\n"
                          "/tmp/,,\"\"\r\n"
                          "a:b:c,,\r\n"
                          "\"/d/e,f\",,\"e,f\"\r\n"
                          "\"/d/\"\"g\"\"\",,\"\"\"g\"\"\"\r\n"
                          "=1,,=1\r\n"
                          "\"/h\ni\",,\"h\ni\"\r\n");
    EXPECT_EQ(runNameinfo({"--csv", "--columns=name", "--list", "-"}, "").out, "name\r\n");
}

TEST(Nameinfo, HasEveryColumnInCommaSeparatedValues)
{
    EXPECT_THAT(linesOf(runNameinfo({"--csv", "--status", "/tmp"}).out).at(0),
                "name,category,type,volume,work string,prefix,full path,base name,file name,"
                "extension,status\r");
}

TEST(Nameinfo, FitsTheTablesOfTheDemoInto80Columns)
{
    const std::string parts = printedIn(80, {"--list", SHORT_NAMES_LIST});
    EXPECT_THAT(widthsOf(parts), AllOf(SizeIs(12), Each(Le(80))));
    const std::string edits = printedIn(80, kDemo);
    EXPECT_THAT(edits, ContainsRegex("^name +parent +with extension +unique +status +valid\n"));
    EXPECT_THAT(widthsOf(edits), AllOf(SizeIs(12), Each(Le(80))));
}
