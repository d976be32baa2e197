// SPDX-License-Identifier: MIT
//
// CopyFile, GetTempFileName and GetFileAttributes where the system refuses something. CopyFile is
// true all the same, as it always is; what it leaves is the beginning of the source or nothing, and
// the source is as it was.
#include "faults/Places.h"
#include "faults/SystemCalls.h"
#include "support/LocaleScope.h"
#include "support/RowName.h"

#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include <cerrno>
#include <cwchar>

namespace {

namespace fs = std::filesystem;

using faults::inChild;
using ktqtbase::test::readFile;
using ktqtbase::test::setMode;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::writeFile;

// The temporary folder may have any name. For all tests of this program.
const ktqtbase::test::LocaleScope kNamesOfUtf8("C.UTF-8", LC_CTYPE);

// More than any buffer holds, and no two parts of it equal.
std::string longContent()
{
    std::string content;
    while (content.size() < 100'000)
        content += std::to_string(content.size()) + '\n';
    return content;
}

bool copyOf(const fs::path& from, const fs::path& to)
{
    return CopyFile(wide(from).c_str(), wide(to).c_str(), false);
}

void expectBeginningOf(const std::string& content, const fs::path& file)
{
    const std::string copied = readFile(file);
    EXPECT_EQ(copied, content.substr(0, copied.size())) << copied.size() << " bytes";
}

std::ptrdiff_t entriesOf(const fs::path& folder)
{
    return std::distance(fs::directory_iterator(folder), {});
}

// ---- System calls -------------------------------------------------------------------------------

struct CopyCallRow
{
    const char* name;
    const char* call;
    int error;
    bool isWhole; // whether the copy is, with whichever of its calls failing
};

class CopySystemCall : public testing::TestWithParam<CopyCallRow>
{
protected:
    // Result: whether the n-th call was there to fail.
    bool copiesWithFailure(int n)
    {
        fs::remove(m_folder / "to");
        faults::at({GetParam().call, n, GetParam().error, m_folder.path().c_str()});
        EXPECT_TRUE(copyOf(m_folder / "from", m_folder / "to"));
        return faults::done();
    }

    const TemporaryFolder m_folder;
};

TEST_P(CopySystemCall, ThatFailsLeavesABeginningOfTheSource)
{
    const std::string content = longContent();
    writeFile(m_folder / "from", content);
    int n = 1;
    for (; copiesWithFailure(n); ++n) {
        expectBeginningOf(content, m_folder / "to");
        EXPECT_TRUE(!GetParam().isWhole || readFile(m_folder / "to") == content) << n;
        EXPECT_EQ(readFile(m_folder / "from"), content);
    }
    EXPECT_GT(n, 1);
    EXPECT_EQ(readFile(m_folder / "to"), content);
    EXPECT_EQ(entriesOf(m_folder.path()), 2);
}

const CopyCallRow kCopyCallRows[] = {
    {"OpenInterrupted", "open", EINTR, false},  {"OpenWithoutFiles", "open", EMFILE, false},
#ifndef _LIBCPP_VERSION // the streams of libc++ read and write inside the C library
    {"ReadInterrupted", "read", EINTR, true},   {"ReadFailing", "read", EIO, false},
    {"WriteInterrupted", "write", EINTR, true}, {"WriteToAFullDisk", "write", ENOSPC, false},
    {"WriteFailing", "write", EIO, false},
#endif
};

INSTANTIATE_TEST_SUITE_P(Calls, CopySystemCall, testing::ValuesIn(kCopyCallRows),
                         ktqtbase::test::RowName());

// ---- Places -------------------------------------------------------------------------------------

TEST(FaultyCopy, ToAFullDiskLeavesWhatFits)
{
    const TemporaryFolder folder;
    const TemporaryFolder disk;
    const std::string content = longContent();
    writeFile(folder / "from", content);
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(disk.path(), 65536);
        EXPECT_TRUE(copyOf(folder / "from", disk / "to"));
        expectBeginningOf(content, disk / "to");
        EXPECT_GT(fs::file_size(disk / "to"), 0u);
        EXPECT_LE(fs::file_size(disk / "to"), 65536u);
    }));
    EXPECT_EQ(readFile(folder / "from"), content);
}

TEST(FaultyCopy, BeyondALimitLeavesWhatFits)
{
    const TemporaryFolder folder;
    const std::string content = longContent();
    writeFile(folder / "from", content);
    EXPECT_EQ(inChild([&] {
                  faults::limitFiles(5000);
                  EXPECT_TRUE(copyOf(folder / "from", folder / "to"));
              }),
              0);
    EXPECT_EQ(readFile(folder / "to"), content.substr(0, 5000));
    EXPECT_EQ(readFile(folder / "from"), content);
}

TEST(FaultyCopy, ToTheFullDeviceLeavesTheSource)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", longContent());
    EXPECT_TRUE(copyOf(folder / "from", "/dev/full"));
    EXPECT_EQ(readFile(folder / "from"), longContent());
}

TEST(FaultyCopy, ToAReadOnlyDiskMakesNothing)
{
    const TemporaryFolder folder;
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(folder.path(), 65536);
        writeFile(folder / "from", "new");
        writeFile(folder / "to", "old");
        faults::makeReadOnly(folder.path());
        EXPECT_TRUE(copyOf(folder / "from", folder / "to"));
        EXPECT_TRUE(copyOf(folder / "from", folder / "made"));
        EXPECT_EQ(readFile(folder / "to"), "old");
        EXPECT_EQ(entriesOf(folder.path()), 2);
    }));
}

TEST(FaultyCopy, WithoutRightsMakesNothing)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "new");
    writeFile(folder / "to", "old");
    setMode(folder / "from", 0444);
    setMode(folder / "to", 0444);
    setMode(folder.path(), 0555);
    EXPECT_EQ(inChild([&] {
                  faults::becomeSomebody();
                  EXPECT_TRUE(copyOf(folder / "from", folder / "to"));
                  EXPECT_TRUE(copyOf(folder / "from", folder / "made"));
              }),
              0);
    EXPECT_EQ(readFile(folder / "to"), "old");
    EXPECT_EQ(entriesOf(folder.path()), 2);
    setMode(folder.path(), 0755);
}

TEST(FaultyCopy, OfAFileThatMayNotBeReadLeavesAnEmptyOne)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "secret");
    writeFile(folder / "to", "old");
    setMode(folder / "from", 0);
    setMode(folder / "to", 0666);
    setMode(folder.path(), 0755);
    EXPECT_EQ(inChild([&] {
                  faults::becomeSomebody();
                  EXPECT_TRUE(copyOf(folder / "from", folder / "to"));
              }),
              0);
    EXPECT_EQ(readFile(folder / "to"), "");
}

// Makes a folder the working one that is no more. For a child.
void enterVanishedFolder()
{
    const TemporaryFolder folder;
    fs::current_path(folder.path());
}

TEST(FaultyCopy, InAFolderThatVanishedIsTrue)
{
    EXPECT_EQ(inChild([] {
                  enterVanishedFolder();
                  EXPECT_TRUE(CopyFile(L"from", L"to", false));
              }),
              0);
}

// A sanitizer looks at types by means of a pipe.
#ifndef KTQTBASE_UNDER_SANITIZERS
TEST(FaultyCopy, WithOneDescriptorLeftLeavesTheDestination)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "new");
    writeFile(folder / "to", "old");
    for (int left : {0, 1}) {
        EXPECT_EQ(inChild([&] {
                      faults::useUpDescriptors(left);
                      EXPECT_TRUE(copyOf(folder / "from", folder / "to"));
                  }),
                  0);
        EXPECT_EQ(readFile(folder / "to"), "old");
    }
}
#endif

// ---- Names and attributes -----------------------------------------------------------------------

std::wstring temporaryName()
{
    wchar_t name[64] = {};
    const unsigned int length = GetTempFileName(L"/tmp/", L"kt", 0, name);
    EXPECT_EQ(length, std::wcslen(name));
    return name;
}

TEST(FaultyTempFileName, IsWholeInAFolderThatVanished)
{
    EXPECT_EQ(inChild([] {
                  enterVanishedFolder();
                  EXPECT_EQ(temporaryName().size(), 17u);
              }),
              0);
}

TEST(FaultyTempFileName, IsWholeWithoutDescriptorsAndDisk)
{
    EXPECT_EQ(inChild([] {
                  faults::useUpDescriptors(0);
                  faults::limitFiles(0);
                  EXPECT_EQ(temporaryName().size(), 17u);
              }),
              0);
}

// Nobody can tell which names are free in such a folder.
TEST(FaultyTempFileName, HasNoUniquePartInAFolderThatMayNotBeSearched)
{
    const TemporaryFolder folder;
    setMode(folder.path(), 0755);
    EXPECT_EQ(inChild([&] {
                  fs::current_path(folder.path());
                  setMode(folder.path(), 0);
                  faults::becomeSomebody();
                  EXPECT_EQ(temporaryName(), L"/tmp/kt.tmp");
              }),
              0);
    setMode(folder.path(), 0755);
}

TEST(FaultyAttributes, AreInvalidWhereTheFolderMayNotBeSearched)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    setMode(folder.path(), 0);
    EXPECT_EQ(inChild([&] {
                  faults::becomeSomebody();
                  EXPECT_EQ(GetFileAttributes(wide(folder / "file").c_str()),
                            INVALID_FILE_ATTRIBUTES);
                  EXPECT_EQ(errno, EACCES);
              }),
              0);
    setMode(folder.path(), 0755);
}

TEST(FaultyAttributes, AreInvalidWhereTheDiskFails)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    faults::at({"stat", 1, EIO, folder.path().c_str()});
    EXPECT_EQ(GetFileAttributes(wide(folder / "file").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(faults::done());
    EXPECT_NE(GetFileAttributes(wide(folder / "file").c_str()), INVALID_FILE_ATTRIBUTES);
}

} // namespace
