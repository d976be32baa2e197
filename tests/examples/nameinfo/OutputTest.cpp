// SPDX-License-Identifier: MIT
#include "NameinfoRun.h"

#include <gmock/gmock.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using testing::MatchesRegex;

namespace {

const QStringList kForms = {"--columns=name", "--wide", "--json", "--csv"};
const QStringList kAll = kForms + QStringList{"--help", "--version"};

void expectUnwritten(const QString& line, const QStringList& arguments, const char* reason,
                     const QStringList& options = kAll)
{
    for (const QString& form : options) {
        SCOPED_TRACE(form.toStdString());
        const ProgramResult result = runInShell(line, QStringList{form} + arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "nameinfo: standard output: " + std::string(reason) + "\n");
    }
}

// More than a pipe holds.
QString writeManyNames(const QTemporaryDir& folder)
{
    return writeList(folder, QByteArray("C:\\dir\\name.txt\n").repeated(20000));
}

} // namespace

TEST(Nameinfo, NamesAnOutputThatIsFull)
{
    if (QFile::exists("/dev/full"))
        expectUnwritten(R"("$0" "$1" /tmp >/dev/full)", {}, "No space left on device");
}

// A limit of the system stands for the full disk where there is no device for one.
TEST(Nameinfo, NamesAnOutputThatMayNotGrow)
{
    const QTemporaryDir folder;
    expectUnwritten(R"(trap '' XFSZ; ulimit -f 0; "$0" "$1" /tmp >"$2")",
                    {folder.filePath("out.txt")}, "File too large");
}

TEST(Nameinfo, StopsAtAFullOutputBeforeTheEnd)
{
    const QTemporaryDir folder;
    const QString list = writeManyNames(folder);
    expectUnwritten(R"(trap '' XFSZ; ulimit -f 1; "$0" "$1" --list "$2" >"$3")",
                    {list, folder.filePath("out.txt")}, "File too large", kForms);
}

TEST(Nameinfo, NamesAnOutputThatIsClosed)
{
    const QTemporaryDir folder;
    const QString list = writeList(folder, "/tmp\n");
    expectUnwritten(R"("$0" "$1" /tmp >&-)", {}, "Bad file descriptor");
    expectUnwritten(R"("$0" "$1" --list "$2" >&-)", {list}, "Bad file descriptor");
}

TEST(Nameinfo, NamesAClosedOutputBeforeItReadsAList)
{
    expectUnwritten(R"("$0" "$1" --list /no/such/list.txt >&-)", {}, "Bad file descriptor");
}

TEST(Nameinfo, EndsQuietlyWhenNobodyReadsOn)
{
    const QTemporaryDir folder;
    const QString list = writeManyNames(folder);
    for (const QString& form : kForms) {
        SCOPED_TRACE(form.toStdString());
        const QStringList arguments = {form, list};
        const QString line = R"({ "$0" "$1" --list "$2"; echo $? >&2; } | head -n 1)";
        EXPECT_EQ(runInShell(line, arguments).err, "141\n"); // killed by SIGPIPE
        EXPECT_EQ(runInShell("trap '' PIPE; " + line, arguments).err, "1\n");
    }
}

// A name is sent every now and then until something shows.
TEST(Nameinfo, TellsSomebodyAtATerminalHowFarItIs)
{
    const Terminal terminal(80);
    ChildProcess process;
    process->setStandardErrorFile(terminal.name());
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(process.start(NAMEINFO, {"--csv", "--list", "-"}));
    std::string shown;
    while (shown.empty() && timer.elapsed() < ChildProcess::kPatience) {
        process->write("/tmp\n");
        process->waitForReadyRead(50);
        shown = terminal.text();
    }
    EXPECT_GE(timer.elapsed(), 2000);
    EXPECT_THAT(shown, MatchesRegex("\r\033\\[K[0-9]+ names answered"));
    process->closeWriteChannel();
    EXPECT_TRUE(process->waitForFinished(ChildProcess::kPatience));
    EXPECT_THAT(terminal.text(), MatchesRegex("(\r\033\\[K[0-9]+ names answered)*\r\033\\[K"));
}

TEST(Nameinfo, SaysNothingOfAShortRun)
{
    const Terminal terminal(80);
    ChildProcess process;
    process->setStandardErrorFile(terminal.name());
    ASSERT_TRUE(process.start(NAMEINFO, {"--csv", "--list", NAMES_LIST}));
    EXPECT_TRUE(process->waitForFinished(ChildProcess::kPatience));
    EXPECT_EQ(terminal.text(), "");
}

TEST(Nameinfo, SaysNothingOfALongRunWithoutATerminal)
{
    const ProgramResult result =
        runInShell("{ echo /tmp; sleep 2.5; echo /usr; } | \"$0\" --csv --list -");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
}
