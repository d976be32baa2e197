// SPDX-License-Identifier: MIT
#include "AuditRun.h"

#include <gmock/gmock.h>

using namespace ktqtbase::test;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

// The exit status for a source with one inert function and one that differs.
int statusWith(const QStringList& options)
{
    const TemporaryFolder folder;
    writeFile(folder / "main.cpp", "CreateFile(a); CopyFile(b);\n");
    return runAudit(options + QStringList{text(folder / "main.cpp")}).status;
}

struct ErrorRow
{
    QStringList arguments;
    const char* error;
};

} // namespace

TEST(Audit, FailsOnTheGroupsThatAreChosen)
{
    EXPECT_EQ(statusWith({}), 0);
    EXPECT_EQ(statusWith({"--fail-on", "inert"}), 1);
    EXPECT_EQ(statusWith({"--fail-on", "not-here,differs"}), 1);
    EXPECT_EQ(statusWith({"--fail-on", "not-here,works"}), 0);
    EXPECT_EQ(statusWith({"--fail-on", "inert", "--only", "differs"}), 1);
    EXPECT_EQ(statusWith({"--fail-on", "inert", "--family", "threads"}), 0);
}

TEST(Audit, TellsMoreUrgentlyOfAFileThatCannotBeRead)
{
    EXPECT_EQ(statusWith({"--fail-on", "inert", "/no/such/file"}), 2);
}

TEST(Audit, RefusesArgumentsThatItDoesNotKnow)
{
    const std::vector<ErrorRow> rows = {
        {{}, "there is nothing to read; see --help"},
        {{"--nonsense", "a.c"}, "Unknown option 'nonsense'.; see --help"},
        {{"--only", "bad", "a.c"}, "--only: there is no group \"bad\"; see --help"},
        {{"--only", "", "a.c"}, "--only: there is no group \"\"; see --help"},
        {{"--fail-on", "inert,", "a.c"}, "--fail-on: there is no group \"\"; see --help"},
        {{"--output", "", "a.c"}, "--output needs a value; see --help"},
        {{"--json", "--csv", "a.c"}, "a report has one form only; see --help"},
        {{"--explain", "CreateFile", "--json"}, "--explain has one form only; see --help"},
        {{"--family", "nonsense", "a.c"},
         "--family: there is no family \"nonsense\"; there are files, mfc, other, porting, "
         "threads, "
         "types, windows"},
        {{"--explain", "nonsense"}, "nonsense: no name that is known"},
        {{"--output", "/no/such/file", AUDIT_CATALOGUE},
         "/no/such/file: No such file or directory"},
        {{"--output", "/dev/full", AUDIT_CATALOGUE}, "/dev/full: No space left on device"},
        {{"--baseline", "/no/such/file", AUDIT_CATALOGUE},
         "--baseline: /no/such/file: No such file or directory"},
    };
    for (const ErrorRow& row : rows) {
        SCOPED_TRACE(row.arguments.join(' ').toStdString());
        const ProgramResult result = runAudit(row.arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, StartsWith("ktqt-audit: " + std::string(row.error) + "\n"));
    }
}

TEST(Audit, TakesAFamilyByItsTitle)
{
    EXPECT_EQ(statusWith({"--fail-on", "inert", "--family", "Files"}), 1);
    EXPECT_EQ(statusWith({"--fail-on", "inert", "--family", "Threads"}), 0);
}

TEST(Audit, TellsOfUnreadableFilesWhereItCannotWriteItsReport)
{
    for (const char* const option : {"--output", "--baseline"}) {
        const ProgramResult result = runAudit({option, "/no/such/folder/file", "/no/such/input"});
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err,
                    StartsWith("ktqt-audit: /no/such/input: No such file or directory\n"));
        EXPECT_THAT(result.err, EndsWith("/no/such/folder/file: No such file or directory\n"));
    }
}

TEST(Audit, OverwritesNothingThatItReads)
{
    const TemporaryFolder folder;
    writeFile(folder / "main.cpp", "CopyFile(a);\n");
    writeFile(folder / "before.json", "{}");
    const QString source = text(folder / "main.cpp");
    const QString before = text(folder / "before.json");
    for (const QString& output : {source, before}) {
        const ProgramResult result =
            runAudit({"--output", output, "--baseline", before, text(folder.path())});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err, "ktqt-audit: --output: " + output.toStdString() +
                                  ": would overwrite what is read\n");
    }
    EXPECT_EQ(readFile(folder / "main.cpp"), "CopyFile(a);\n");
    EXPECT_EQ(readFile(folder / "before.json"), "{}");
}

TEST(Audit, TellsItsVersion)
{
    const ProgramResult result = runProgram(AUDIT, {"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, std::string("ktqt-audit ") + AUDIT_VERSION + "\n");
}

TEST(Audit, TellsHowItIsUsed)
{
    const ProgramResult result = runProgram(AUDIT, {"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, StartsWith("Usage: ktqt-audit"));
    for (const char* const option :
         {"--json", "--csv", "--sarif", "--html", "--output", "--family", "--only", "--explain",
          "--baseline", "--fail-on", "--catalogue", "--help", "--version"})
        EXPECT_THAT(result.out, HasSubstr(option));
}

TEST(Audit, FindsItsOwnCatalogue)
{
    const ProgramResult result = runProgram(AUDIT, {"--explain", "GetPrivateProfileStringW"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, StartsWith("GetPrivateProfileString, function: "));
}

TEST(Audit, FindsTheCatalogueThatIsInstalledWithIt)
{
    const TemporaryFolder prefix;
    std::filesystem::create_directories(prefix / "bin");
    std::filesystem::create_directories(prefix / "share/KtQtBase");
    std::filesystem::copy(AUDIT, prefix / "bin/ktqt-audit");
    std::filesystem::copy(AUDIT_CATALOGUE, prefix / "share/KtQtBase/catalogue");
    const std::string program = prefix / "bin/ktqt-audit";
    EXPECT_THAT(runProgram(program.c_str(), {"--explain", "CreateFile"}).out,
                HasSubstr("Test: CreateFile.OpensNothing\n"));
}

TEST(Audit, NamesAFileOfTheCatalogueThatIsNoneOfIt)
{
    const TemporaryFolder folder;
    std::filesystem::copy(AUDIT_CATALOGUE, folder.path());
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"[]", "an object is missing"},
        {"{}", "\"entries\" is missing"},
        {R"({"entries": [{"status": "lost"}]})", "\"lost\" is no status"},
        {R"({"entries": [{"status": "not-here"}]})", "\"not-here\" is no status"},
    };
    for (const auto& [content, error] : rows) {
        writeFile(folder / "extra.json", content);
        const ProgramResult result =
            runProgram(AUDIT, {"--catalogue", text(folder.path()), "--explain", "CopyFile"});
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err, EndsWith("/extra.json: " + std::string(error) + "\n"));
    }
}

TEST(Audit, NamesACatalogueThatIsMissing)
{
    const TemporaryFolder folder;
    const auto errorFor = [](const std::filesystem::path& path) {
        return runProgram(AUDIT, {"--catalogue", text(path), "/dev/null"}).err;
    };
    EXPECT_THAT(errorFor(folder / "none"), EndsWith("/none: No such file or directory\n"));
    EXPECT_THAT(errorFor(folder.path()), EndsWith("/families.json: No such file or directory\n"));
}
