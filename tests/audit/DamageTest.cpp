// SPDX-License-Identifier: MIT
//
// Files that somebody cut off or changed. They may need names or not, but never do harm.
#include "AuditRun.h"
#include "support/RowName.h"

#include <gmock/gmock.h>

#include <QtCore/QJsonArray>

#include <algorithm>
#include <cstdint>
#include <cstring>
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

template<class Number>
void put(std::string& bytes, std::size_t place, Number value)
{
    std::memcpy(&bytes[place], &value, sizeof value);
}

// The headers of a program for x86-64 with one section, which begins with its table of imports.
std::string headers(std::uint32_t size)
{
    std::string bytes(512, '\0');
    bytes.replace(0, 2, "MZ");
    put<std::uint32_t>(bytes, 60, 64);
    bytes.replace(64, 4, std::string("PE\0\0", 4));
    put<std::uint16_t>(bytes, 68, 0x8664);
    put<std::uint16_t>(bytes, 70, 1);   // sections
    put<std::uint16_t>(bytes, 84, 240); // size of what follows
    put<std::uint16_t>(bytes, 86, 0x22);
    put<std::uint16_t>(bytes, 88, 0x20B);
    put<std::uint32_t>(bytes, 196, 16); // directories
    put<std::uint32_t>(bytes, 208, 0x1000);
    put<std::uint32_t>(bytes, 212, 40);
    bytes.replace(328, 6, ".rdata");
    for (const std::size_t place : {336, 344})
        put<std::uint32_t>(bytes, place, size);
    put<std::uint32_t>(bytes, 340, 0x1000);
    put<std::uint32_t>(bytes, 348, 512);
    put<std::uint32_t>(bytes, 364, 0x40000040);
    return bytes;
}

// A program that imports names up to a length, each of them that before without its first letter.
std::string programWithNames(std::uint32_t count, std::uint32_t length)
{
    const std::uint32_t table = 56;
    const std::uint32_t names = table + 8 * (count + 1);
    std::string section(names + count + length + 98, 'A');
    std::fill_n(section.begin(), names, '\0');
    section.back() = '\0';
    for (const std::uint32_t place : {0, 16})
        put<std::uint32_t>(section, place, 0x1000 + table);
    put<std::uint32_t>(section, 12, 0x1000 + 40);
    section.replace(40, 12, "kernel32.dll");
    for (std::uint32_t i = 0; i < count; ++i)
        put<std::uint64_t>(section, table + 8 * i, 0x1000 + names + i);
    for (std::uint32_t end = names + length; end < section.size(); end += length)
        section[end] = '\0';
    return headers(static_cast<std::uint32_t>(section.size())) + section;
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

// Each of its names begins one byte behind the one before.
TEST(Audit, DoesNoHarmWithNamesThatShareTheirBytes)
{
    const TemporaryFolder folder;
    writeFile(folder / "names.exe", programWithNames(40000, 4000));
    const AuditRun run({text(folder / "names.exe")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(),
                HasSubstr("names.exe: damaged, or too large: it has more than 64 MB of names"));
}

TEST(Audit, TellsOfANameThatIsTooLong)
{
    const TemporaryFolder folder;
    writeFile(folder / "name.exe", programWithNames(3, 5000));
    const AuditRun run({text(folder / "name.exe")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(),
                HasSubstr("name.exe: damaged: it imports a name of more than 4,096 "));
}
