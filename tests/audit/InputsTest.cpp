// SPDX-License-Identifier: MIT
#include "AuditRun.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace ktqtbase::test;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

namespace {

// A folder with sources, each of which copies a file.
class SourceFolder
{
public:
    explicit SourceFolder(const std::vector<std::string>& names)
    {
        for (const std::string& name : names) {
            fs::create_directories((m_folder / name).parent_path());
            writeFile(m_folder / name, "CopyFile(a);\n");
        }
    }

    QString path(const std::string& name = "") const { return text(m_folder / name); }
    const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

} // namespace

TEST(Audit, ReadsTheSourcesOfAFolder)
{
    const SourceFolder sources({"a.c", "b.CPP", "deep/er/c.hpp", "d.h", "e.cc", "f.cxx", "g.rc",
                                "no.txt", "no", ".git/no.c"});
    const AuditRun run({sources.path()});
    EXPECT_EQ(run.status(), 0);
    EXPECT_THAT(run.places("CopyFile"), UnorderedElementsAre("a.c:1", "b.CPP:1", "c.hpp:1", "d.h:1",
                                                             "e.cc:1", "f.cxx:1", "g.rc:1"));
}

TEST(Audit, ReadsAFileThatIsNamedWhateverItsName)
{
    const SourceFolder sources({"listing"});
    EXPECT_THAT(AuditRun({sources.path("listing")}).places("CopyFile"), ElementsAre("listing:1"));
}

TEST(Audit, ReadsEachFileOnce)
{
    const SourceFolder sources({"a.c"});
    fs::create_symlink(sources.folder() / "a.c", sources.folder() / "b.c");
    fs::create_directory_symlink(sources.folder().path(), sources.folder() / "round");
    const AuditRun run({sources.path(), sources.path("a.c"), sources.path()});
    EXPECT_THAT(run.places("CopyFile"), ElementsAre("a.c:1"));
}

TEST(Audit, ReadsTheSourcesOfCompileCommands)
{
    const SourceFolder sources({"src/a.c", "src/b.c", "src/other.c"});
    const std::string folder = sources.folder().path();
    writeFile(sources.folder() / "compile_commands.json",
              R"([{"directory": ")" + folder + R"(/src", "file": "a.c", "command": "cc"},
                  {"directory": "/", "file": ")" +
                  folder + R"(/src/b.c", "arguments": ["cc"]}])");
    const AuditRun run({sources.path("compile_commands.json")});
    EXPECT_THAT(run.places("CopyFile"), ElementsAre("a.c:1", "b.c:1"));
}

TEST(Audit, TellsOfCompileCommandsThatAreNone)
{
    const TemporaryFolder folder;
    for (const char* const content : {"{}", "[1]", R"([{"directory": "/"}])"}) {
        writeFile(folder / "list.json", content);
        const AuditRun run({text(folder / "list.json")});
        EXPECT_EQ(run.status(), 2);
        EXPECT_THAT(run.errors(), EndsWith("list.json: no list of compile commands\n"));
    }
    writeFile(folder / "list.json", "[{");
    EXPECT_EQ(AuditRun({text(folder / "list.json")}).status(), 2);
}

TEST(Audit, TellsOfCompileCommandsThatAreNestedTooDeeply)
{
    const TemporaryFolder folder;
    writeFile(folder / "list.json", R"(["\"]", )" + std::string(100000, '['));
    const AuditRun run({text(folder / "list.json")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(), EndsWith("list.json: nested more than 500 levels deep\n"));
}

TEST(Audit, DoesNotWaitForAPipe)
{
    const SourceFolder sources({"a.c"});
    ASSERT_EQ(mkfifo((sources.folder() / "pipe").c_str(), 0600), 0);
    writeFile(sources.folder() / "list.json", R"([{"file": "pipe"}, {"file": "a.c"}])");
    const AuditRun run({sources.path("list.json"), sources.path("pipe")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(), HasSubstr("pipe: neither a file nor a folder\n"));
    EXPECT_THAT(run.places("CopyFile"), ElementsAre("a.c:1"));
    const ProgramResult result =
        runAudit({"--baseline", sources.path("pipe"), sources.path("a.c")});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, EndsWith("pipe: neither a file nor a folder\n"));
}

TEST(Audit, NamesAFileThatIsMissingAndReadsTheOthers)
{
    const SourceFolder sources({"a.c"});
    const AuditRun run({"/no/such/file.exe", sources.path("a.c")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_EQ(run.errors(), "ktqt-audit: /no/such/file.exe: No such file or directory\n");
    EXPECT_EQ(run.group("CopyFile"), "differs");
}

TEST(Audit, NamesAFolderThatIsGivenForASource)
{
    const SourceFolder sources({"a.c", "b.c/c.txt"});
    const std::string folder = sources.folder().path();
    writeFile(sources.folder() / "list.json", R"([{"directory": ")" + folder + R"(", "file": "b.c"},
                  {"directory": ")" + folder + R"(", "file": "a.c"}])");
    const AuditRun run({sources.path("list.json")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(), EndsWith("b.c: Is a directory\n"));
    EXPECT_THAT(run.places("CopyFile"), ElementsAre("a.c:1"));
}

TEST(Audit, NamesAFileOfNoKindOnlyWhereItIsGiven)
{
    const TemporaryFolder folder;
    writeFile(folder / "picture.png", std::string("\x89PNG\r\n\x1A\n\0\0\0\0", 12));
    EXPECT_EQ(AuditRun({text(folder.path())}).status(), 0);
    const AuditRun run({text(folder / "picture.png")});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(),
                EndsWith("picture.png: neither a program, a library, an object nor a source\n"));
}

TEST(Audit, NamesASourceWithoutText)
{
    const std::vector<std::string> contents = {std::string(100, '\0'),
                                               std::string("C\0o\0p\0y\0", 8), "\1\2\3\4\xFF\5\6\7",
                                               "MZ" + std::string(100, '\0')};
    for (const std::string& content : contents) {
        const SourceFolder sources({"a.c"});
        writeFile(sources.folder() / "b.c", content);
        writeFile(sources.folder() / "list.json", R"([{"file": "b.c"}, {"file": "a.c"}])");
        const AuditRun run({sources.path("list.json")});
        EXPECT_EQ(run.status(), 2);
        EXPECT_THAT(run.errors(), EndsWith("b.c: not text, though it is taken for a source\n"));
        EXPECT_THAT(run.places("CopyFile"), ElementsAre("a.c:1"));
    }
}

TEST(Audit, NamesAProgramThatIsNone)
{
    const TemporaryFolder folder;
    writeFile(folder / "empty.exe", "");
    writeFile(folder / "page.dll", "<html>");
    const AuditRun run({text(folder.path())});
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(), HasSubstr("empty.exe: empty\n"));
    EXPECT_THAT(run.errors(), HasSubstr("page.dll: neither a program, a library, an object nor "));
    EXPECT_EQ(run.report()["summary"].toObject()["sources"].toInt(), 0);
    EXPECT_EQ(AuditRun({text(folder / "empty.exe")}).status(), 2);
}

TEST(Audit, NamesWhatIsNoFile)
{
    const AuditRun run({"/dev/null"});
    EXPECT_EQ(run.status(), 2);
    EXPECT_EQ(run.errors(), "ktqt-audit: /dev/null: neither a file nor a folder\n");
}

TEST(Audit, ReadsAFileWhoseNameIsNoText)
{
    const TemporaryFolder folder;
    writeFile(folder / "\xFF\x1B.c", "CopyFile(a);\n");
    EXPECT_THAT(AuditRun({text(folder.path())}).places("CopyFile"),
                ElementsAre("\xEF\xBF\xBD\x1B.c:1"));
    const ProgramResult result = runAudit({text(folder.path())});
    EXPECT_THAT(result.out, HasSubstr("\xFF?.c:1"));
}

TEST(Audit, ReadsAnEmptyFolder)
{
    const TemporaryFolder folder;
    const AuditRun run({text(folder.path())});
    EXPECT_EQ(run.status(), 0);
    EXPECT_THAT(run.names(), testing::IsEmpty());
}
