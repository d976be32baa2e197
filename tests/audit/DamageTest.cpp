// SPDX-License-Identifier: MIT
//
// Files that somebody cut off or changed. They may need names or not, but never do harm.
#include "AuditRun.h"
#include "support/RowName.h"

#include <gmock/gmock.h>

#include <QtCore/QJsonArray>

#include <random>

using namespace ktqtbase::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

const char* const kBinaries[] = {
    "late.exe",     "window.exe",       "window.dll",      "program.obj",        "program32.obj",
    "objects.lib",  "KERNEL32.dll.lib", "host.o",          "libhost.so",         "libown.a",
    "host-arm64.o", "libhost.dylib",    "libhost-macos.a", "libhost-arm64.dylib"};

struct Binary
{
    std::string name;
    std::string file;
};

std::vector<Binary> binaries()
{
    std::vector<Binary> all;
    for (const char* const file : kBinaries) {
        std::string name = file;
        for (char& ch : name)
            ch = std::isalnum(static_cast<unsigned char>(ch)) ? ch : '_';
        all.push_back({name, file});
    }
    return all;
}

void PrintTo(const Binary& binary, std::ostream* out)
{
    *out << binary.file;
}

class DamagedBinary : public testing::TestWithParam<Binary>
{
protected:
    DamagedBinary() : m_content(readFile(BINARIES "/" + GetParam().file))
    {
        writeFile(m_folder / "main.cpp", "CopyFile(a);\n");
    }

    void add(const std::string& content)
    {
        writeFile(m_folder / ("damaged-" + std::to_string(m_count++)), content);
    }

    // The audit of all damaged files ends by itself, tells of files in one line each, and has read
    // the source.
    void expectNoHarm()
    {
        const AuditRun run({text(m_folder.path())});
        EXPECT_THAT(run.status(), testing::AnyOf(0, 2)) << run.errors();
        EXPECT_THAT(run.places("CopyFile"), Contains("main.cpp:1"));
        const auto lines = std::count(run.errors().begin(), run.errors().end(), '\n');
        EXPECT_EQ(lines, run.report()["problems"].toArray().size());
        EXPECT_LE(lines, m_count);
    }

    std::string m_content;
    TemporaryFolder m_folder;
    int m_count = 0;
};

} // namespace

TEST_P(DamagedBinary, DoesNoHarmCutOffAnywhere)
{
    const std::size_t step = std::max<std::size_t>(1, m_content.size() / 80);
    for (std::size_t size = 0; size < m_content.size(); size += step)
        add(m_content.substr(0, size));
    for (std::size_t size = 1; size < 40 && size < m_content.size(); ++size)
        add(m_content.substr(0, m_content.size() - size));
    expectNoHarm();
}

TEST_P(DamagedBinary, DoesNoHarmWithOtherBytes)
{
    std::mt19937 random(1);
    for (int i = 0; i < 100; ++i) {
        std::string content = m_content;
        for (int change = 0; change < 8; ++change)
            content[random() % std::min<std::size_t>(content.size(), change < 4 ? 1024 : ~0U)] =
                static_cast<char>(random());
        add(content);
    }
    expectNoHarm();
}

TEST_P(DamagedBinary, IsNamedWhereHalfOfItIsMissing)
{
    const std::filesystem::path half = m_folder / "half";
    writeFile(half, m_content.substr(0, m_content.size() / 2));
    const AuditRun run({text(m_folder.path())});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(), testing::StartsWith("ktqt-audit: " + half.string() + ": "));
    EXPECT_THAT(run.places("CopyFile"), Contains("main.cpp:1"));
}

INSTANTIATE_TEST_SUITE_P(Audit, DamagedBinary, testing::ValuesIn(binaries()), RowName());

TEST(Audit, TellsOfAnObjectWithoutATableOfNames)
{
    const TemporaryFolder folder;
    writeFile(folder / "code.o", "BC\xC0\xDE" + std::string(100, '\0'));
    const AuditRun run({text(folder / "code.o")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(), HasSubstr("code.o: compiled for link-time optimisation"));
}
