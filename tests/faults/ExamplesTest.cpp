// SPDX-License-Identifier: MIT
//
// The examples with one of their system calls failing, on full and read-only disks, in folders that
// are gone. They tell it, lose nothing that was saved, and leave no files of their own behind.
#include "examples/sketchpad/Host.h"
#include "faults/Places.h"
#include "support/ChildProcess.h"
#include "support/RowName.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace {

namespace fs = std::filesystem;

using faults::inChild;
using ktqtbase::test::readFile;
using ktqtbase::test::TemporaryFolder;
using testing::HasSubstr;

std::vector<std::string> namesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

struct CallRow
{
    const char* name;
    const char* call;
    int error;
};

// Tells a program's environment which call fails, and says afterwards whether it did.
class PreloadedFault
{
public:
    PreloadedFault(QProcessEnvironment& environment, const CallRow& row, int n,
                   const fs::path& below)
    {
        environment.insert("LD_PRELOAD", FAULT_CALLS);
        environment.insert("LD_LIBRARY_PATH", FAULT_CALLS_FOLDER);
        // The sanitizer wants to be the first library, and works as the second one.
        environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0");
        environment.insert("KTFAULT_CALL", row.call);
        environment.insert("KTFAULT_AT", QString::number(n));
        environment.insert("KTFAULT_ERROR", QString::number(row.error));
        environment.insert("KTFAULT_BELOW", below.c_str());
        environment.insert("KTFAULT_MARK", mark().c_str());
    }

    bool struck() const { return fs::exists(mark()); }

private:
    fs::path mark() const { return m_folder / "mark"; }

    const TemporaryFolder m_folder;
};

// ---- The drawing program ------------------------------------------------------------------------

class FaultySketchpad : public testing::TestWithParam<CallRow>
{
protected:
    // A drawing of a square gets a second one and is saved. What is asked meanwhile is answered so
    // that the changes are given up. Result: whether the n-th call was there to fail.
    static bool savesWithFailure(int n)
    {
        Host host;
        host.writeFile("a.sketch", kSquareFile);
        const PreloadedFault fault(host.environment, GetParam(), n, host.work() / "");
        const SessionResult result = host.play("open a.sketch\n" + kDrawSquare +
                                               "answer ok\nsave\nanswer discard\nmenu new\n");
        EXPECT_NE(result.status, -1) << result.err;
        expectOneOrTwoSquares(host);
        EXPECT_THAT(namesIn(host.work()), testing::UnorderedElementsAre("a.sketch", "script")) << n;
        return fault.struck();
    }

    static void expectOneOrTwoSquares(const Host& host)
    {
        const std::string left = host.file("a.sketch");
        const std::string square = kSquareFile.substr(kSquareFile.find('\n') + 1);
        EXPECT_TRUE(left == kSquareFile || left == kSquareFile + square) << left;
    }
};

TEST_P(FaultySketchpad, LosesNothingThatWasSaved)
{
    int n = 1;
    while (savesWithFailure(n))
        ++n;
    EXPECT_GT(n, 1);
}

const CallRow kSketchpadRows[] = {
#ifndef _LIBCPP_VERSION // the streams of libc++ write inside the C library
    {"WriteToAFullDisk", "write", ENOSPC},
#endif
    {"SyncFailing", "fsync", EIO},
    {"CloseInterrupted", "close", EINTR},
    {"RenameFailing", "rename", EIO},
};

INSTANTIATE_TEST_SUITE_P(Calls, FaultySketchpad, testing::ValuesIn(kSketchpadRows),
                         ktqtbase::test::RowName());

#ifdef KTQTBASE_EVERY_CALL
const CallRow kMoreSketchpadRows[] = {
    {"OpenFailing", "open", EMFILE},      {"OpenInterrupted", "open", EINTR},
    {"OpenOnAFullDisk", "open", ENOSPC},  {"ReadFailing", "read", EIO},
    {"ReadInterrupted", "read", EINTR},   {"WriteFailing", "write", EIO},
    {"WriteInterrupted", "write", EINTR}, {"CloseFailing", "close", EIO},
    {"StatFailing", "stat", EIO},
};

INSTANTIATE_TEST_SUITE_P(MoreCalls, FaultySketchpad, testing::ValuesIn(kMoreSketchpadRows),
                         ktqtbase::test::RowName());
#endif

// ---- The gallery --------------------------------------------------------------------------------

struct GalleryRun
{
    int status = -1;
    std::string err;
};

GalleryRun runGallery(const fs::path& folder, const QStringList& arguments,
                      const QProcessEnvironment& environment)
{
    ChildProcess process;
    process->setProgram(GALLERY);
    process->setArguments(arguments);
    process->setWorkingDirectory(folder.c_str());
    process->setProcessEnvironment(environment);
    GalleryRun run;
    if (process.start() && process->waitForFinished(ChildProcess::kPatience) &&
        process->exitStatus() == QProcess::NormalExit)
        run.status = process->exitCode();
    run.err = process->readAllStandardError().toStdString();
    return run;
}

GalleryRun runGallery(const fs::path& folder, const QStringList& arguments)
{
    return runGallery(folder, arguments, QProcessEnvironment::systemEnvironment());
}

class FaultyGallery : public testing::TestWithParam<CallRow>
{
protected:
    // Result: whether the n-th call was there to fail.
    bool drawsWithFailure(int n) const
    {
        fs::remove(m_folder / "a.png");
        auto environment = QProcessEnvironment::systemEnvironment();
        const PreloadedFault fault(environment, GetParam(), n, m_folder.path() / "");
        const GalleryRun run = runGallery(m_folder.path(), {"--png", "a.png"}, environment);
        const bool isWhole = readFile(m_folder / "a.png") == m_sheet;
        EXPECT_TRUE(run.status == 0 ? isWhole : run.status > 0 && !run.err.empty())
            << n << ": " << run.status << ' ' << run.err;
        return fault.struck();
    }

    void drawSheet()
    {
        ASSERT_EQ(runGallery(m_folder.path(), {"--png", "a.png"}).status, 0);
        m_sheet = readFile(m_folder / "a.png");
    }

    const TemporaryFolder m_folder;
    std::string m_sheet;
};

TEST_P(FaultyGallery, TellsWhatItCouldNotWrite)
{
    drawSheet();
    int n = 1;
    while (drawsWithFailure(n))
        ++n;
    EXPECT_GT(n, 1);
}

const CallRow kGalleryRows[] = {{"WriteToAFullDisk", "write", ENOSPC}};

INSTANTIATE_TEST_SUITE_P(Calls, FaultyGallery, testing::ValuesIn(kGalleryRows),
                         ktqtbase::test::RowName());

#ifdef KTQTBASE_EVERY_CALL
const CallRow kMoreGalleryRows[] = {
    {"OpenFailing", "open", EMFILE},       {"OpenInterrupted", "open", EINTR},
    {"WriteFailing", "write", EIO},        {"WriteInterrupted", "write", EINTR},
    {"TruncateFailing", "ftruncate", EIO}, {"CloseFailing", "close", EIO},
};

INSTANTIATE_TEST_SUITE_P(MoreCalls, FaultyGallery, testing::ValuesIn(kMoreGalleryRows),
                         ktqtbase::test::RowName());
#endif

TEST(FaultyGalleryPlace, OnAFullDiskIsTold)
{
    const TemporaryFolder folder;
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(folder.path(), 4096);
        for (const char* kind : {"--png", "--pdf"}) {
            const GalleryRun run = runGallery(folder.path(), {kind, "sheet"});
            EXPECT_GT(run.status, 0);
            EXPECT_THAT(run.err, HasSubstr("cannot write sheet: No space left on device"));
        }
    }));
}

TEST(FaultyGalleryPlace, OfTheFullDeviceIsTold)
{
    const TemporaryFolder folder;
    fs::create_symlink("/dev/full", folder / "sheet");
    const GalleryRun run = runGallery(folder.path(), {"--png", "sheet"});
    EXPECT_GT(run.status, 0);
    EXPECT_THAT(run.err, HasSubstr("cannot write sheet"));
}

TEST(FaultyGalleryPlace, OnAReadOnlyDiskIsTold)
{
    const TemporaryFolder folder;
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(folder.path(), 65536);
        faults::makeReadOnly(folder.path());
        const GalleryRun run = runGallery(folder.path(), {"--png", "sheet"});
        EXPECT_GT(run.status, 0);
        EXPECT_THAT(run.err, HasSubstr("cannot write sheet: Read-only file system"));
    }));
}

TEST(FaultyGalleryPlace, InAFolderThatVanishedIsTold)
{
    EXPECT_EQ(inChild([] {
                  const TemporaryFolder folder;
                  fs::current_path(folder.path());
                  fs::remove(folder.path());
                  const GalleryRun run = runGallery("", {"--png", "sheet"});
                  EXPECT_GT(run.status, 0);
                  EXPECT_THAT(run.err, HasSubstr("cannot write sheet"));
              }),
              0);
}

TEST(FaultySketchpadPlace, OnAFullDiskKeepsTheDrawing)
{
    Host host;
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(host.work(), 12288);
        host.writeFile("a.sketch", kSquareFile);
        host.writeFile("full", std::string(4096, 'x'));
        const SessionResult result = host.play("open a.sketch\n" + kDrawSquare +
                                               "answer ok\nsave\nanswer discard\nmenu new\n");
        EXPECT_EQ(result.status, 0) << result.out << result.err;
        EXPECT_THAT(result.out, HasSubstr("cannot be saved"));
        EXPECT_EQ(host.file("a.sketch"), kSquareFile);
        EXPECT_EQ(namesIn(host.work()).size(), 3u);
    }));
}

TEST(FaultySketchpadPlace, OnAReadOnlyDiskKeepsTheDrawing)
{
    Host host;
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(host.work(), 65536);
        host.writeFile("a.sketch", kSquareFile);
        const std::string script =
            "open a.sketch\n" + kDrawSquare + "answer ok\nsave\nanswer discard\nmenu new\n";
        host.writeFile("script", script);
        faults::makeReadOnly(host.work());
        const SessionResult result = host.play(script);
        EXPECT_EQ(result.status, 0) << result.out << result.err;
        EXPECT_THAT(result.out, HasSubstr("cannot be saved"));
        EXPECT_EQ(host.file("a.sketch"), kSquareFile);
    }));
}

} // namespace
