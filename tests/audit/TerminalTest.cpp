// SPDX-License-Identifier: MIT
#include "support/Terminal.h"
#include "AuditRun.h"

#include <gmock/gmock.h>

#include <QtCore/QProcessEnvironment>

#include <regex>
#include <sstream>

using namespace ktqtbase::test;
using testing::HasSubstr;
using testing::Not;

namespace {

// What a terminal shows of a small report.
std::string shownOn(const Terminal& terminal, const QString& variable, const QString& value,
                    const std::string& source = "CreateFile(a);\n")
{
    const TemporaryFolder folder;
    writeFile(folder / "main.cpp", source);
    ChildProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TERM", "xterm");
    environment.remove("NO_COLOR");
    environment.insert(variable, value);
    process->setProcessEnvironment(environment);
    process->setStandardOutputFile(terminal.name());
    process.start(AUDIT, {"--catalogue", AUDIT_CATALOGUE, text(folder / "main.cpp")});
    process->waitForFinished(ChildProcess::kPatience);
    return terminal.text();
}

std::size_t longestLine(const std::string& text)
{
    std::size_t longest = 0;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        longest = std::max(longest, line.size());
    return longest;
}

// What a line takes on the terminal, without the return and the colours.
std::size_t columnsOf(const std::string& line)
{
    const std::regex invisible("\\x1b\\[[0-9;]*m|\r");
    return std::regex_replace(line, invisible, "").size();
}

} // namespace

TEST(Audit, HasColoursOnATerminal)
{
    EXPECT_THAT(shownOn(Terminal(80), "LC_ALL", "C"), HasSubstr("\033[35mINERT (1)\033[0m"));
}

TEST(Audit, HasNoColoursWhereNobodyWantsThem)
{
    EXPECT_THAT(shownOn(Terminal(80), "NO_COLOR", "1"), Not(HasSubstr("\033")));
    EXPECT_THAT(shownOn(Terminal(80), "TERM", "dumb"), Not(HasSubstr("\033")));
    EXPECT_THAT(runAudit({AUDIT_CATALOGUE}).out, Not(HasSubstr("\033")));
}

TEST(Audit, DrawsBarsOfLettersWhereTheLocaleHasNoBlocks)
{
    const std::string text = shownOn(Terminal(80), "LC_ALL", "C");
    EXPECT_THAT(text, HasSubstr("----"));
    EXPECT_THAT(text, Not(HasSubstr("▒")));
}

TEST(Audit, WrapsLinesAtTheTerminalsEdge)
{
    const std::string narrow = shownOn(Terminal(60), "NO_COLOR", "1");
    EXPECT_THAT(narrow, HasSubstr("    Here: no file is opened. On Windows: opens a file.\r\n"
                                  "    Instead: QFile::open."));
    const std::string wide = shownOn(Terminal(120), "NO_COLOR", "1");
    EXPECT_THAT(wide, HasSubstr("On Windows: opens a file. Instead: QFile::open."));
    EXPECT_GT(longestLine(wide), longestLine(narrow));
}

// Three parts of a bar that are each rounded up.
TEST(Audit, KeepsTheBarsOfFamiliesWithinTheTerminal)
{
    for (unsigned short width = 62; width < 80; ++width) {
        const std::string shown = shownOn(Terminal(width), "LC_ALL", "C",
                                          "CreateFile(a); CopyFile(a); GetTempFileName(a);\n");
        std::istringstream lines(shown.substr(shown.find("Family")));
        std::string line;
        std::getline(lines, line);
        std::getline(lines, line);
        EXPECT_LE(columnsOf(line), std::size_t(width)) << line;
    }
}
