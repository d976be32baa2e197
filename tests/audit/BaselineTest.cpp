// SPDX-License-Identifier: MIT
#include "AuditRun.h"

#include <gmock/gmock.h>

using namespace ktqtbase::test;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

namespace {

// Two sources, which are audited before and after something in them changes.
class Sources
{
public:
    Sources(const std::string& one, const std::string& two)
    {
        write(one, two);
        runAudit({"--json", "--output", path("before.json"), path("one.cpp"), path("two.cpp")});
    }

    AuditRun auditChanged(const std::string& one, const std::string& two) const
    {
        write(one, two);
        return AuditRun({"--baseline", path("before.json"), "--fail-on", "inert", path("one.cpp"),
                         path("two.cpp")});
    }

private:
    void write(const std::string& one, const std::string& two) const
    {
        writeFile(m_folder / "one.cpp", one);
        writeFile(m_folder / "two.cpp", two);
    }

    QString path(const std::string& name) const { return text(m_folder / name); }

    TemporaryFolder m_folder;
};

} // namespace

TEST(Audit, FindsNothingNewWhereLinesMoved)
{
    const Sources sources("CreateFile(a);\n", "CopyFile(b);\n");
    const AuditRun run = sources.auditChanged("\n\nCreateFile(a);\n", "");
    EXPECT_EQ(run.status(), 0);
    EXPECT_THAT(run.names(), IsEmpty());
}

TEST(Audit, FindsNothingNewWhereACallMovedToAnotherFile)
{
    const Sources sources("CreateFile(a);\n", "CopyFile(b);\n");
    EXPECT_EQ(sources.auditChanged("", "CopyFile(b); CreateFile(a);\n").status(), 0);
}

TEST(Audit, FindsANameThatIsNew)
{
    const Sources sources("CopyFile(a);\n", "");
    const AuditRun run = sources.auditChanged("CopyFile(a);\nCreateFile(b);\n", "");
    EXPECT_EQ(run.status(), 1);
    EXPECT_THAT(run.names(), ElementsAre("CreateFile inert"));
}

TEST(Audit, FindsTheFilesWhereANameIsUsedMoreOften)
{
    const Sources sources("CreateFile(a);\n", "CreateFile(b);\n");
    const AuditRun run =
        sources.auditChanged("CreateFile(a);\n", "CreateFile(b);\nCreateFile(c);\n");
    EXPECT_EQ(run.status(), 1);
    EXPECT_THAT(run.places("CreateFile"), ElementsAre("two.cpp:1", "two.cpp:2"));
}

TEST(Audit, NamesABaselineThatIsNoReport)
{
    const TemporaryFolder folder;
    writeFile(folder / "main.cpp", "CopyFile(a);\n");
    for (const char* const content : {"{}", "[]", "{\"names\": []}"}) {
        writeFile(folder / "before.json", content);
        const ProgramResult result =
            runAudit({"--baseline", text(folder / "before.json"), text(folder / "main.cpp")});
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err, EndsWith("before.json: no report that --json wrote\n"));
    }
}
