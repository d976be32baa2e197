// SPDX-License-Identifier: MIT
//
// Registry keys over a settings store that cannot be written or read. The results stay those of a
// key that works, as its header says, and what the store held is there afterwards.
#include "faults/Places.h"
#include "faults/SystemCalls.h"
#include "support/RowName.h"

#include <KtQtBase/RegistryKey.h>

#include <QtCore/QSettings>

#include <cerrno>

namespace {

namespace fs = std::filesystem;

using faults::inChild;
using ktqtbase::test::readFile;
using ktqtbase::test::setMode;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::writeFile;

class FaultyStore : public testing::Test
{
protected:
    FaultyStore()
    {
        fs::create_directories(store().parent_path());
        setMode(m_folder.path(), 0755);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path().c_str());
        QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                           (m_folder / "system").c_str());
    }

    fs::path store() const { return m_folder / "tarnex/Marrowfield.conf"; }

    static void set(const wchar_t* value, const wchar_t* name = L"Count")
    {
        CRegKey key;
        EXPECT_EQ(key.Create(HKEY_CURRENT_USER, L"App"), 0u);
        EXPECT_EQ(key.SetValue(value, name), 0u);
    }

    static std::wstring query(const wchar_t* name = L"Count")
    {
        CRegKey key;
        EXPECT_EQ(key.Create(HKEY_CURRENT_USER, L"App"), 0u);
        wchar_t text[256] = {};
        unsigned int room = 255;
        EXPECT_EQ(key.QueryValue(text, name, &room), 0u);
        return text;
    }

    // What a process finds that knows nothing of the store yet.
    void expectStored(const std::wstring& value) const
    {
        EXPECT_EQ(inChild([&] { EXPECT_EQ(query(), value); }), 0);
    }

    const TemporaryFolder m_folder;
};

const std::string kStored = "[App]\nCount=7\n";

// ---- Contents -----------------------------------------------------------------------------------

struct ContentRow
{
    const char* name;
    std::string content;
    const wchar_t* value; // null where it is Qt's own affair
};

class FaultyStoreContent : public FaultyStore, public testing::WithParamInterface<ContentRow>
{};

TEST_P(FaultyStoreContent, IsReadAsFarAsItGoesAndWrittenAnew)
{
    writeFile(store(), GetParam().content);
    const wchar_t* const value = GetParam().value;
    EXPECT_EQ(inChild([&] { EXPECT_TRUE(query() == (value ? value : query())); }), 0);
    EXPECT_EQ(inChild([] { set(L"8"); }), 0);
    expectStored(L"8");
}

const ContentRow kContentRows[] = {
    {"Empty", "", L""},
    {"LineWithoutAnEqualsSign", "garbage\n" + kStored, L"7"},
    {"OpenSection", "[App\nCount=7\n", nullptr},
    {"ZeroBytes", std::string(1000, '\0') + '\n' + kStored, L"7"},
    {"BytesThatAreNoText", "\xff\xfe\x80\n" + kStored, L"7"},
    {"LongLine", std::string(1 << 20, 'x') + "\n" + kStored, L"7"},
    {"CutInAnEscape", "[App]\nCount=\"\\x", nullptr},
};

INSTANTIATE_TEST_SUITE_P(Rows, FaultyStoreContent, testing::ValuesIn(kContentRows),
                         ktqtbase::test::RowName());

// ---- System calls -------------------------------------------------------------------------------

struct StoreCallRow
{
    const char* name;
    const char* call;
    int error;
    bool mayBeCut; // Qt 5 puts a file in place that it could not write
};

class FaultyStoreCall : public FaultyStore, public testing::WithParamInterface<StoreCallRow>
{
protected:
    static constexpr int kNotReached = 3;

    // Result: whether the n-th call was there to fail.
    bool setsWithFailure(int n) const
    {
        const int status = inChild([&] {
            faults::at({GetParam().call, n, GetParam().error, m_folder.path().c_str()});
            set(L"8");
            if (!faults::done())
                _exit(kNotReached);
        });
        EXPECT_TRUE(status == 0 || status == kNotReached) << status;
        return status == 0;
    }
};

TEST_P(FaultyStoreCall, ThatFailsLeavesTheFormerStoreOrTheNewOne)
{
    const std::string former = "[App]\nCount=7\nOther=1\n";
    const std::string changed = "[App]\nCount=8\nOther=1\n";
    int n = 0;
    for (bool goesOn = true; goesOn; n += goesOn) {
        writeFile(store(), former);
        goesOn = setsWithFailure(n + 1);
        const std::string left = readFile(store());
        const bool isCut = left == changed.substr(0, left.size()) && GetParam().mayBeCut;
        EXPECT_TRUE(left == former || left == changed || isCut) << n + 1 << ": " << left;
    }
    EXPECT_GT(n, 0);
    EXPECT_EQ(readFile(store()), changed);
}

const StoreCallRow kStoreCallRows[] = {
    {"OpenInterrupted", "open", EINTR, false},   {"OpenWithoutFiles", "open", EMFILE, false},
    {"OpenOnAFullDisk", "open", ENOSPC, false},  {"WriteInterrupted", "write", EINTR, false},
    {"WriteToAFullDisk", "write", ENOSPC, true}, {"WriteFailing", "write", EIO, true},
    {"SyncFailing", "fsync", EIO, false},        {"CloseInterrupted", "close", EINTR, false},
    {"CloseFailing", "close", EIO, false},       {"RenameFailing", "rename", EIO, false},
};

INSTANTIATE_TEST_SUITE_P(Calls, FaultyStoreCall, testing::ValuesIn(kStoreCallRows),
                         ktqtbase::test::RowName());

// ---- Places -------------------------------------------------------------------------------------

TEST_F(FaultyStore, OnAFullDiskStaysAsItWas)
{
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(m_folder.path(), 16384);
        fs::create_directory(store().parent_path());
        writeFile(store(), kStored);
        writeFile(m_folder / "large", std::string(20000, 'x'));
        EXPECT_EQ(inChild([] { set(L"8"); }), 0);
        EXPECT_EQ(readFile(store()), kStored);
        expectStored(L"7");
    }));
}

TEST_F(FaultyStore, BeyondALimitStaysAsItWas)
{
    writeFile(store(), kStored);
    EXPECT_EQ(inChild([] {
                  faults::limitFiles(10);
                  set(std::wstring(100, L'8').c_str());
              }),
              0);
    EXPECT_EQ(readFile(store()), kStored);
}

TEST_F(FaultyStore, OnAReadOnlyDiskIsReadAndNotWritten)
{
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(m_folder.path(), 65536);
        fs::create_directory(store().parent_path());
        writeFile(store(), kStored);
        faults::makeReadOnly(m_folder.path());
        expectStored(L"7");
        set(L"8");
        EXPECT_EQ(readFile(store()), kStored);
    }));
}

TEST_F(FaultyStore, OfSomebodyElseIsReadAndNotWritten)
{
    writeFile(store(), kStored);
    setMode(store(), 0444);
    setMode(store().parent_path(), 0555);
    EXPECT_EQ(inChild([] {
                  faults::becomeSomebody();
                  EXPECT_EQ(query(), L"7");
                  set(L"8");
              }),
              0);
    EXPECT_EQ(readFile(store()), kStored);
    setMode(store().parent_path(), 0755);
}

TEST_F(FaultyStore, ThatMayNotBeReadHoldsNothing)
{
    writeFile(store(), kStored);
    setMode(store(), 0);
    setMode(store().parent_path(), 0555);
    EXPECT_EQ(inChild([] {
                  faults::becomeSomebody();
                  EXPECT_EQ(query(), L"");
                  set(L"8");
              }),
              0);
    EXPECT_EQ(readFile(store()), geteuid() == 0 ? kStored : "");
    setMode(store().parent_path(), 0755);
}

TEST_F(FaultyStore, InAFolderThatVanishedIsMadeAnew)
{
    writeFile(store(), kStored);
    EXPECT_EQ(inChild([&] {
                  CRegKey key;
                  key.Create(HKEY_CURRENT_USER, L"App");
                  EXPECT_EQ(key.SetValue(L"8", L"Count"), 0u);
                  fs::remove_all(store().parent_path());
              }),
              0);
    expectStored(L"8");
}

// A sanitizer looks at types by means of a pipe.
#ifndef KTQTBASE_UNDER_SANITIZERS
TEST_F(FaultyStore, IsNotTouchedWithoutDescriptors)
{
    writeFile(store(), kStored);
    EXPECT_EQ(inChild([] {
                  faults::useUpDescriptors(0);
                  set(L"8");
              }),
              0);
    EXPECT_EQ(readFile(store()), kStored);
}
#endif

// ---- Two at once --------------------------------------------------------------------------------

constexpr int kValues = 20;

void setMany(const std::wstring& letter)
{
    for (int i = 0; i < kValues; ++i) {
        CRegKey key;
        key.Create(HKEY_CURRENT_USER, L"App");
        EXPECT_EQ(key.SetValue(L"value", (letter + std::to_wstring(i)).c_str()), 0u);
    }
}

TEST_F(FaultyStore, ThatTwoProcessesWriteHoldsTheValuesOfBoth)
{
    std::fflush(nullptr);
    const pid_t other = fork();
    if (other == 0) {
        setMany(L"a");
        _exit(faults::failures() == 0 ? 0 : 1);
    }
    EXPECT_EQ(inChild([] { setMany(L"b"); }), 0);
    int status = -1;
    ASSERT_EQ(waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(inChild([] {
                  for (int i = 0; i < kValues; ++i) {
                      EXPECT_EQ(query((L"a" + std::to_wstring(i)).c_str()), L"value") << i;
                      EXPECT_EQ(query((L"b" + std::to_wstring(i)).c_str()), L"value") << i;
                  }
              }),
              0);
}

} // namespace
