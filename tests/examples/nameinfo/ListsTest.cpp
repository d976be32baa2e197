// SPDX-License-Identifier: MIT
#include "NameinfoRun.h"

#include <gmock/gmock.h>

#include <QtCore/QFile>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

#include <algorithm>

using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace {

constexpr int kLongestLine = 65535;

// A sanitizer keeps memory that was given back for a while, and the calls that led to each piece,
// which would look like a growing need. Without those calls it cannot tell which leaks to let pass.
const char* const kGiveMemoryBack =
    "export "
    "ASAN_OPTIONS=\"$ASAN_OPTIONS:quarantine_size_mb=1:thread_local_quarantine_size_kb=64:"
    "malloc_context_size=1:detect_leaks=0\"; ";

struct MeasuredRun
{
    ProgramResult program;
    long memory; // the most that the program took, in the unit of the system
};

// Runs a line of the shell, in which "measured" is the program and "$1" and so on are the arguments.
MeasuredRun runMeasured(const QString& line, const QStringList& arguments)
{
    const QTemporaryDir folder;
    QFile told(folder.filePath("told"));
    const QString measured = "program=$0; measured() { '" MOST_MEMORY "' '" + told.fileName() +
                             R"(' "$program" "$@"; }; )";
    const ProgramResult result = runInShell(kGiveMemoryBack + measured + line, arguments);
    EXPECT_TRUE(told.open(QFile::ReadOnly)) << result.err;
    return {result, told.readAll().toLong()};
}

long memoryOf(const QString& line, const QStringList& arguments)
{
    const MeasuredRun run = runMeasured(line + " >/dev/null", arguments);
    EXPECT_EQ(run.program.status, 0) << run.program.err;
    return run.memory;
}

QByteArray names(int count)
{
    QByteArray list;
    for (int i = 0; i < count; ++i)
        list += "C:\\dir\\name " + QByteArray::number(i) + ".txt\n";
    return list;
}

std::string nameOfLine(const std::string& list, int number)
{
    return "nameinfo: " + list + ":" + std::to_string(number);
}

} // namespace

TEST(Nameinfo, PassesOverTheByteOrderMarkOfAList)
{
    EXPECT_EQ(runProgram(NAMEINFO, {"--csv", "--columns", "name,category", "--list", "-"},
                         "\xEF\xBB\xBF/tmp\n")
                  .out,
              "name,category\r\n/tmp,rooted\r\n");
}

TEST(Nameinfo, AnswersEveryLineOfItsOwnList)
{
    const ProgramResult result = runNameinfo({"--list", NAMES_LIST});
    EXPECT_EQ(result.status, 0) << result.err;
    QFile list(NAMES_LIST);
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    const std::size_t names = linesOf(list.readAll().toStdString()).size();
    EXPECT_GE(names, 60U);
    EXPECT_THAT(linesOf(result.out), SizeIs(names + 1));
}

TEST(Nameinfo, ReadsStandardInput)
{
    const ProgramResult result = runNameinfo({"--list", "-"}, "/tmp\nC:\\a.txt\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, ContainsRegex("/tmp +rooted"));
    EXPECT_THAT(result.out, ContainsRegex("C:.a.txt +drive"));
}

// It goes through the list twice, and leaves nothing of it to the next program.
TEST(Nameinfo, ReadsAFileAsStandardInputOnce)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, "/tmp\nC:\\dir\\a longer name.txt\n");
    for (const char* const input : {"-", "/dev/stdin"}) {
        SCOPED_TRACE(input);
        const ProgramResult result =
            runInShell(R"({ "$0" --columns name,type --list "$2"; cat; } <"$1")", {list, input});
        EXPECT_THAT(result.out, StartsWith("name                      type\n"
                                           "/tmp                      directory\n"
                                           "C:\\dir\\a longer name.txt  not found\n"));
    }
    EXPECT_EQ(runInShell("{ \"$0\" --list - >/dev/null; cat; } <\"$1\"", {list}).out, "");
}

TEST(Nameinfo, ReadsNamesOfTheCommandLineAndSeveralLists)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, "/usr\n");
    const ProgramResult result = runNameinfo(
        {"--columns=name", "--list", list, "/tmp", "--list", "-", "C:\\a.txt"}, "/etc\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "name\n/tmp\nC:\\a.txt\n/usr\n/etc\n");
}

TEST(Nameinfo, TakesNoLineEndOfWindowsForAPartOfTheName)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, "C:\\a.txt\r\n\r\nC:\\b\rc");
    const QJsonArray answers = answersFor({"--list", list});
    ASSERT_EQ(answers.size(), 3);
    EXPECT_EQ(answers.at(0).toObject()["name"], "C:\\a.txt");
    EXPECT_EQ(answers.at(1).toObject()["name"], "");
    EXPECT_EQ(answers.at(2).toObject()["name"], "C:\\b\rc");
}

TEST(Nameinfo, NamesAListThatIsMissing)
{
    const ProgramResult result = runNameinfo({"--list", "/no/such/list.txt", "/tmp"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "nameinfo: /no/such/list.txt: No such file or directory\n");
    EXPECT_THAT(result.out, HasSubstr("/tmp"));
}

TEST(Nameinfo, NamesAFolderThatIsGivenForAList)
{
    const QTemporaryDir folder;
    const ProgramResult result = runNameinfo({"--list", folder.path()});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "nameinfo: " + folder.path().toStdString() + ": Is a directory\n");
}

TEST(Nameinfo, TakesAClosedInputForAnError)
{
    for (const char* const form : {"--columns=name", "--wide", "--json", "--csv"}) {
        SCOPED_TRACE(form);
        const ProgramResult result = runInShell(R"("$0" "$1" --list - <&-)", {form});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, "nameinfo: standard input: Bad file descriptor\n");
    }
}

TEST(Nameinfo, NamesALineThatIsNoUtf8AndAnswersTheOthers)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, "/tmp\n/bad/\xFF.txt\n/cut/\xC3\n/usr\n");
    const ProgramResult result = runNameinfo({"--list", list});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, nameOfLine(list.toStdString(), 2) + ": not UTF-8 text\n" +
                              nameOfLine(list.toStdString(), 3) + ": not UTF-8 text\n");
    EXPECT_THAT(linesOf(result.out), SizeIs(3));
}

TEST(Nameinfo, RefusesANulByte)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, QByteArray("/tmp/a\0b\n", 9));
    const ProgramResult result = runNameinfo({"--list", list});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, EndsWith(":1: not UTF-8 text\n"));
}

TEST(Nameinfo, SaysWhatIsWrongBetweenTheAnswers)
{
    const ProgramResult result = runInShell("\"$0\" --columns=name /tmp \"$(printf '\\377')\" "
                                            "/usr --list /no/such 2>&1");
    EXPECT_EQ(result.out, "name\n/tmp\nnameinfo: name 2 of the command line: not UTF-8 text\n/usr\n"
                          "nameinfo: /no/such: No such file or directory\n");
}

TEST(Nameinfo, NamesTheFirstLineThatIsTooLongAndAnswersTheOthers)
{
    struct LengthRow
    {
        int length;
        const char* end;
        bool isAllowed;
    };
    const QTemporaryDir folder;
    for (const LengthRow& row : {LengthRow{kLongestLine, "\n", true},
                                 {kLongestLine, "\r\n", true},
                                 {kLongestLine + 1, "\n", false},
                                 {kLongestLine + 1, "\r\n", false},
                                 {kLongestLine, "", true},
                                 {kLongestLine + 1, "", false},
                                 {3000000, "\n", false}}) {
        SCOPED_TRACE(std::to_string(row.length) + QByteArray(row.end).toHex().constData());
        const QString list = writeList(folder, "/tmp\n" + QByteArray(row.length, 'a') + row.end);
        const ProgramResult result = runNameinfo({"--columns=type", "/usr/", "--list", list});
        EXPECT_EQ(result.status, row.isAllowed ? 0 : 2);
        EXPECT_THAT(linesOf(result.out), SizeIs(row.isAllowed ? 4 : 3));
        EXPECT_EQ(result.err, row.isAllowed ? ""
                                            : nameOfLine(list.toStdString(), 2) +
                                                  ": longer than 65535 bytes\n");
    }
}

TEST(Nameinfo, GoesOnBehindALineThatIsTooLong)
{
    const QByteArray input = "/tmp\n" + QByteArray(200000, 'a') + "\n/usr\n";
    const ProgramResult result = runNameinfo({"--columns=name", "--list", "-"}, input);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "name\n/tmp\n/usr\n");
    EXPECT_EQ(result.err, "nameinfo: standard input:2: longer than 65535 bytes\n");
}

TEST(Nameinfo, SaysInItsHelpHowLongALineMayBe)
{
    EXPECT_THAT(runNameinfo({"--help"}).out, HasSubstr(std::to_string(kLongestLine) + " bytes"));
}

// 20,000 names took 48 MB when they were all kept.
TEST(Nameinfo, NeedsNoMoreMemoryForMoreNames)
{
    const QTemporaryDir folder;
    const long few = memoryOf("measured --list \"$1\"", {writeList(folder, names(500))});
    const QString many = writeList(folder, names(20000));
    for (const char* const form : {"--columns=name", "--wide", "--json", "--csv"}) {
        SCOPED_TRACE(form);
        EXPECT_LT(memoryOf("measured \"$1\" --list \"$2\"", {form, many}), few + few / 4);
        EXPECT_LT(memoryOf("cat \"$2\" | measured \"$1\" --list -", {form, many}), few + few / 4);
    }
}

TEST(Nameinfo, NeedsNoMemoryForALineThatIsTooLong)
{
    const QTemporaryDir folder;
    const long few = memoryOf("measured --list \"$1\"", {writeList(folder, names(500))});
    const MeasuredRun run =
        runMeasured(R"(head -c 50000000 /dev/zero | tr '\0' a >"$1"; measured --list "$1")",
                    {folder.filePath("list.txt")});
    EXPECT_THAT(run.program.err, EndsWith(":1: longer than 65535 bytes\n"));
    EXPECT_LT(run.memory, few + few / 4);
}
