// SPDX-License-Identifier: MIT
#include "AuditRun.h"
#include "support/RowName.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace ktqtbase::test;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

namespace {

QString binary(const char* name)
{
    return QString(BINARIES "/") + name;
}

struct BinaryRow
{
    const char* name;
    const char* file;
    std::vector<std::string> names;
};

void PrintTo(const BinaryRow& row, std::ostream* out)
{
    *out << row.file;
}

class AuditedBinary : public testing::TestWithParam<BinaryRow>
{};

const std::vector<std::string> kProgram = {"CopyFile differs", "CreateThread not-here",
                                           "MessageBox not-here"};
const std::vector<std::string> kLinked = {"CopyFile differs", "CreateThread not-here",
                                          "MessageBox not-here", "mfc140u.dll#256 not-here"};
const std::vector<std::string> kHost = {"CRbUiPathname works", "CRbUiPathname::Parse differs",
                                        "DeleteFile not-here", "EnterCriticalSection inert",
                                        "KtKernel32::CopyFile differs"};
const std::vector<std::string> kWindow = {"CopyFile differs", "MessageBeep not-here",
                                          "MessageBox not-here"};

const BinaryRow kRows[] = {
    {"WindowsProgramWithLateImports", "late.exe", kLinked},
    {"WindowsObject", "program.obj", kProgram},
    {"WindowsObjectOf32Bits", "program32.obj", kProgram},
    {"WindowsObjectOfMingw", "window.obj", kWindow},
    {"WindowsLibraryOfMingw", "window.lib", kWindow},
    {"MembersOfMfc", "frame.obj", {"CFrameWnd not-here", "CWnd::ShowWindow not-here"}},
    {"ThinLibrary", "thin.lib", kProgram},
    {"WindowsProgramOf32Bits", "low32.exe", {"_lopen not-here"}},
    {"ImportLibrary", "KERNEL32.dll.lib", {"CopyFile differs", "CreateThread not-here"}},
    {"ImportLibraryWithNumbers", "mfc140u.dll.lib", {"mfc140u.dll#256 not-here"}},
    {"ImportLibraryOfAnOwnDll", "own.dll.lib", {}},
    {"ElfObject", "host.o", kHost},
    {"ElfLibrary", "libhost.so", kHost},
    {"ArchiveWithoutWhatItHasItself", "libown.a", {"CreateThread not-here"}},
    {"MachOObject", "host-x86_64.o", kHost},
    {"MachOObjectOfArm", "host-arm64.o", kHost},
    {"MachOLibrary", "libhost-arm64.dylib", kHost},
    {"MachOArchive", "libhost-macos.a", kHost},
    {"UniversalLibrary", "libhost.dylib", kHost},
};

} // namespace

TEST_P(AuditedBinary, NeedsTheseNames)
{
    const AuditRun run({binary(GetParam().file)});
    EXPECT_EQ(run.status(), 0) << run.errors();
    EXPECT_EQ(run.names(), GetParam().names);
}

INSTANTIATE_TEST_SUITE_P(Audit, AuditedBinary, testing::ValuesIn(kRows), RowName());

// What the C library of the compiler needs differs from version to version.
TEST(Audit, ReadsAProgramAndALibraryOfMingw)
{
    for (const char* const name : {"window.exe", "window.dll"}) {
        const AuditRun run({binary(name)});
        EXPECT_EQ(run.status(), 0) << run.errors();
        EXPECT_THAT(run.names(), IsSupersetOf(kWindow));
        EXPECT_THAT(run.names(), Each(Not(HasSubstr("malloc"))));
    }
}

TEST(Audit, TellsOfAMethodThatTheLibrarysClassLacks)
{
    for (const char* const name : {"lacking.o", "lacking.obj"}) {
        const AuditRun run({binary(name), "--family", "files"});
        EXPECT_THAT(run.names(),
                    ElementsAre("CRbUiPathname works", "CRbUiPathname::Open not-here"));
    }
}

TEST(Audit, NamesTheMemberOfALibrary)
{
    const AuditRun run({binary("objects.lib")});
    EXPECT_THAT(run.places("CopyFile"), ElementsAre("objects.lib(program.obj)"));
    EXPECT_THAT(run.places("CFrameWnd"), ElementsAre("objects.lib(frame.obj)"));
}

TEST(Audit, NamesTheProcessorsOfAUniversalFile)
{
    EXPECT_THAT(AuditRun({binary("libhost.dylib")}).places("DeleteFile"),
                ElementsAre("libhost.dylib(arm64)", "libhost.dylib(x86_64)"));
}

TEST(Audit, KnowsABinaryWhateverItsName)
{
    const TemporaryFolder folder;
    std::filesystem::copy(BINARIES "/late.exe", folder / "late.cpp");
    EXPECT_EQ(AuditRun({text(folder.path())}).names(), kLinked);
}

TEST(Audit, ReadsSourcesAndBinariesTogether)
{
    const TemporaryFolder folder;
    writeFile(folder / "main.cpp", "CopyFile(a);\n");
    const AuditRun run({text(folder.path()), binary("late.exe")});
    EXPECT_THAT(run.places("CopyFile"), ElementsAre("main.cpp:1", "late.exe"));
    EXPECT_EQ(run.report()["summary"].toObject()["binaries"].toInt(), 1);
    EXPECT_EQ(run.report()["summary"].toObject()["sources"].toInt(), 1);
}

TEST(Audit, CountsWhatMfcHasOnlyNumbersFor)
{
    EXPECT_THAT(runAudit({binary("late.exe"), "--only", "not-here"}).out,
                HasSubstr("MFC by number\n  Look at the sources.\n  mfc140u.dll#256 1 use:"));
}

TEST(Audit, DoesNotWaitForAPipeInAThinLibrary)
{
    const TemporaryFolder folder;
    std::filesystem::copy(BINARIES "/thin.lib", folder / "thin.lib");
    ASSERT_EQ(mkfifo((folder / "program.obj").c_str(), 0600), 0);
    const AuditRun run({text(folder / "thin.lib")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(), HasSubstr("thin.lib: program.obj: neither a file nor a folder\n"));
}
