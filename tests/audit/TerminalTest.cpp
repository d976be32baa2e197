// SPDX-License-Identifier: MIT
#include "AuditRun.h"

#include <gmock/gmock.h>

#include <QtCore/QProcessEnvironment>

#include <cstdlib>
#include <sstream>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace ktqtbase::test;
using testing::HasSubstr;
using testing::Not;

namespace {

// A terminal that a program may write some 4,000 characters to.
class Terminal
{
public:
    explicit Terminal(unsigned short width) : m_file(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        grantpt(m_file);
        unlockpt(m_file);
        const winsize size = {24, width, 0, 0};
        ioctl(m_file, TIOCSWINSZ, &size);
        m_kept = open(name(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal()
    {
        close(m_kept);
        close(m_file);
    }

    const char* name() const { return ptsname(m_file); }

    std::string text() const
    {
        char buffer[8192];
        const ssize_t count = read(m_file, buffer, sizeof buffer);
        return std::string(buffer, static_cast<std::size_t>(count > 0 ? count : 0));
    }

private:
    int m_file;
    int m_kept = -1; // what was written is gone when nobody has the terminal open
};

// What a terminal shows of a small report.
std::string shownOn(const Terminal& terminal, const QString& variable, const QString& value)
{
    const TemporaryFolder folder;
    writeFile(folder / "main.cpp", "CreateFile(a);\n");
    ChildProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TERM", "xterm");
    environment.remove("NO_COLOR");
    environment.insert(variable, value);
    process->setProcessEnvironment(environment);
    process->setStandardOutputFile(terminal.name());
    process.start(AUDIT, {"--catalogue", AUDIT_CATALOGUE, text(folder / "main.cpp")});
    process->waitForFinished();
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
