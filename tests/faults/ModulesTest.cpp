// SPDX-License-Identifier: MIT
//
// Modules that are none, and the program's own file when it is gone.
#include "faults/Places.h"
#include "support/RowName.h"
#include "support/RunProgram.h"

#include <KtQtBase/windows/Modules.h>

#include <elf.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

using faults::inChild;
using ktqtbase::test::readFile;
using ktqtbase::test::setMode;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::writeFile;

using Answer = int (*)();

bool answers(HINSTANCE module)
{
    const auto answer = reinterpret_cast<Answer>(GetProcAddress(module, "answer"));
    return answer && answer() == 42;
}

class FaultyModule : public testing::Test
{
protected:
    FaultyModule() { setMode(m_folder.path(), 0755); }

    fs::path file() const { return m_folder / "libcopy.so"; }
    HINSTANCE load() const { return LoadLibrary(wide(m_folder / "copy").c_str()); }
    void write(const std::string& content) const { writeFile(file(), content); }

    void expectAnswers() const
    {
        const HINSTANCE module = load();
        EXPECT_TRUE(module && answers(module));
        FreeLibrary(module);
    }

    const TemporaryFolder m_folder;
    const std::string m_good = readFile(PLAIN_MODULE);
};

// ---- Contents -----------------------------------------------------------------------------------

struct ByteRow
{
    const char* name;
    std::size_t place;
    char value;
};

class FaultyModuleByte : public FaultyModule, public testing::WithParamInterface<ByteRow>
{};

TEST_P(FaultyModuleByte, IsRefused)
{
    std::string changed = m_good;
    changed.at(GetParam().place) = GetParam().value;
    write(changed);
    EXPECT_EQ(load(), nullptr);
}

const ByteRow kByteRows[] = {
    {"NoElfFile", EI_MAG0, '\x7e'},
    {"Of32Bits", EI_CLASS, ELFCLASS32},
    {"OfTheOtherByteOrder", EI_DATA, ELFDATA2MSB},
    {"OfNoVersion", EI_VERSION, 0},
    {"OfAnotherArchitecture", offsetof(Elf64_Ehdr, e_machine), EM_SPARC},
    {"AnObjectFile", offsetof(Elf64_Ehdr, e_type), ET_REL},
    {"OfOddProgramHeaders", offsetof(Elf64_Ehdr, e_phentsize), 1},
};

INSTANTIATE_TEST_SUITE_P(Rows, FaultyModuleByte, testing::ValuesIn(kByteRows),
                         ktqtbase::test::RowName());

// The loader itself reads no further in these. Of a module that is cut behind its headers it maps
// what is not there, and the system ends the process: no library can be asked about such a file.
TEST_F(FaultyModule, ThatIsCutInItsHeadersIsRefused)
{
    for (std::size_t length = 0; length < sizeof(Elf64_Ehdr) + sizeof(Elf64_Phdr); ++length) {
        write(m_good.substr(0, length));
        EXPECT_EQ(load(), nullptr) << length;
    }
    write(m_good);
    expectAnswers();
}

TEST_F(FaultyModule, ThatLacksAVariableIsRefusedAndGivesNoReference)
{
    fs::copy(LACKING_MODULE, file());
    EXPECT_EQ(load(), nullptr);
    EXPECT_EQ(GetProcAddress(load(), "lackingValue"), nullptr);
}

// What a module throws while it is loaded is the host's, as far as the loader lets it through.
TEST_F(FaultyModule, WhoseConstructorThrowsEndsTheProcessOrTellsItsCaller)
{
    fs::copy(THROWING_MODULE, file());
    const int status = inChild([this] {
        std::freopen("/dev/null", "w", stderr);
        try {
            load();
        } catch (const std::runtime_error&) {
            _exit(3);
        }
    });
    EXPECT_TRUE(status == 3 || status == 256 + SIGABRT) << status;
}

// ---- Places -------------------------------------------------------------------------------------

TEST_F(FaultyModule, ThatMayNotBeReadIsRefused)
{
    write(m_good);
    setMode(file(), 0);
    EXPECT_EQ(inChild([this] {
                  faults::becomeSomebody();
                  EXPECT_EQ(load(), nullptr);
              }),
              0);
}

TEST_F(FaultyModule, IsRefusedWhereAFolderOrADeviceStands)
{
    fs::create_directory(file());
    EXPECT_EQ(load(), nullptr);
    fs::remove(file());
    fs::create_symlink("/dev/null", file());
    EXPECT_EQ(load(), nullptr);
    fs::remove(file());
    fs::create_symlink("libcopy.so", file());
    EXPECT_EQ(load(), nullptr);
}

TEST_F(FaultyModule, IsRefusedWithoutDescriptorsAndLoadedWithOne)
{
    write(m_good);
    EXPECT_EQ(inChild([this] {
                  faults::useUpDescriptors(0);
                  EXPECT_EQ(load(), nullptr);
                  faults::useUpDescriptors(1);
                  expectAnswers();
              }),
              0);
}

TEST_F(FaultyModule, ThatIsDeletedGoesOnAndIsNotFoundAgain)
{
    write(m_good);
    const HINSTANCE module = load();
    ASSERT_TRUE(module);
    fs::remove(file());
    EXPECT_TRUE(answers(module));
    EXPECT_FALSE(FreeLibrary(module));
    EXPECT_EQ(load(), nullptr);
}

// ---- The program's own file ---------------------------------------------------------------------

// The kernel tells that it is gone behind its name; what stands before the last slash stays.
TEST(DeletedProgram, StillKnowsItsFolder)
{
    const TemporaryFolder folder;
    fs::copy(DELETED_HOST, folder / "host");
    const std::string program = folder / "host";
    const ProgramResult run = runProgram(program.c_str(), {"before"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "0 " + program + " (deleted)\n1024 " + folder.path().string() + '\n');
    EXPECT_FALSE(fs::exists(program));
}

TEST(DeletedProgram, KeepsTheNameThatItAskedForBefore)
{
    const TemporaryFolder folder;
    fs::copy(DELETED_HOST, folder / "host");
    const std::string program = folder / "host";
    const ProgramResult run = runProgram(program.c_str(), {"behind"});
    EXPECT_EQ(run.out, "0 " + program + "\n1024 " + folder.path().string() + '\n');
}

} // namespace
