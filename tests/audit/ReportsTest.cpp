// SPDX-License-Identifier: MIT
#include "AuditRun.h"

#include <gmock/gmock.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

using namespace ktqtbase::test;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace {

constexpr const char* kSource = "BOOL a = CopyFile(b);\n"
                                "CreateFile(c); CreateFile(d);\n"
                                "EnterCriticalSection(e);\n"
                                "GetTempFileName(f);\n"
                                "    CreateThread(g);\n";

// A source with names of all groups, and what is said of it.
class Audited
{
public:
    explicit Audited(const QStringList& options, const std::string& name = "main.cpp")
    {
        fs::create_directories((m_folder / name).parent_path());
        writeFile(m_folder / name, kSource);
        m_result = runAudit(options + QStringList{path(name)});
    }

    const std::string& text() const { return m_result.out; }
    QString path(const std::string& name) const { return ktqtbase::test::text(m_folder / name); }
    QJsonObject json() const
    {
        return QJsonDocument::fromJson(QByteArray::fromStdString(m_result.out)).object();
    }

private:
    TemporaryFolder m_folder;
    ProgramResult m_result;
};

std::string compact(const QJsonValue& value)
{
    return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact).toStdString();
}

QJsonArray sarifResults(const Audited& audited)
{
    return audited.json()["runs"].toArray().at(0).toObject()["results"].toArray();
}

} // namespace

TEST(Audit, SumsUpForAPerson)
{
    const Audited audited({});
    EXPECT_THAT(audited.text(), HasSubstr("0 binaries, 1 source\n\n5 functions used\n"));
    EXPECT_THAT(audited.text(), HasSubstr("  works         1   20 %  ████████\n"));
    EXPECT_THAT(audited.text(), HasSubstr("  inert         2   40 %  ▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒\n"));
    EXPECT_THAT(audited.text(), HasSubstr("1 known class, type or constant used: 1 works\n"));
    EXPECT_THAT(audited.text(),
                HasSubstr("  Family   used     works   differs     inert  not here\n"
                          "  Files       3         1         1         1         0  ███"));
}

TEST(Audit, ListsTheGroupsWithWhatTheCatalogueSays)
{
    const Audited audited({});
    EXPECT_THAT(audited.text(),
                HasSubstr("\nNOT HERE (1)\n\nThreads\n  std::thread and std::mutex.\n"
                          "  CreateThread 1 use: "));
    EXPECT_THAT(audited.text(),
                HasSubstr("\nINERT (2)\n\nFiles\n  CreateFile returns null; 2 uses: "));
    EXPECT_THAT(audited.text(), HasSubstr("    Here: no file is opened. On Windows: opens a file. "
                                          "Instead: QFile::open.\n"));
    EXPECT_THAT(audited.text(),
                HasSubstr("\nWORKS (2)\n\nFiles\n  GetTempFileName\n\nTypes\n  BOOL\n"));
}

TEST(Audit, ListsOnlyWhatIsAskedFor)
{
    const Audited audited({"--only", "inert,works"});
    EXPECT_THAT(audited.text(), HasSubstr("5 functions used"));
    EXPECT_THAT(audited.text(), HasSubstr("INERT (2)"));
    EXPECT_THAT(audited.text(), HasSubstr("WORKS (2)"));
    EXPECT_THAT(audited.text(), Not(HasSubstr("NOT HERE (1)")));
    EXPECT_THAT(audited.text(), Not(HasSubstr("DIFFERS (1)")));
}

TEST(Audit, LooksAtOneFamily)
{
    const Audited audited({"--family", "threads", "--json"});
    EXPECT_EQ(compact(audited.json()["summary"].toObject()["functions"]),
              R"({"differs":0,"inert":1,"not-here":1,"used":2,"works":0})");
    EXPECT_EQ(audited.json()["names"].toArray().size(), 2);
}

TEST(Audit, TellsAProgramAll)
{
    const Audited audited({"--json"});
    const QJsonObject report = audited.json();
    EXPECT_EQ(report["version"].toString().toStdString(), AUDIT_VERSION);
    EXPECT_EQ(
        compact(report["summary"]),
        R"({"binaries":0,"functions":{"differs":1,"inert":2,"not-here":1,"used":5,"works":1},)"
        R"("others":{"differs":0,"inert":0,"not-here":0,"used":1,"works":1},"sources":1})");
    EXPECT_EQ(compact(report["families"].toArray().at(0)),
              R"({"advice":"QFile.","family":"files","names":{"differs":1,"inert":1,"not-here":0,)"
              R"("used":3,"works":1},"title":"Files"})");
    QJsonObject name = report["names"].toArray().at(1).toObject();
    name.remove("places");
    EXPECT_EQ(compact(name),
              R"({"family":"files","group":"inert","header":"KtQtBase/windows/Files.h",)"
              R"("here":"no file is opened","instead":"QFile::open",)"
              R"("kind":"function","name":"CreateFile","result":"null",)"
              R"("uses":2,"windows":"opens a file"})");
}

TEST(Audit, WritesATableWithARowForEachPlace)
{
    const Audited audited({"--csv", "--only", "inert"}, "a,\"b\".cpp");
    const std::string file = "\"" + audited.path(R"(a,""b"".cpp)").toStdString() + "\",,";
    const std::string advice =
        ",Here: no file is opened. On Windows: opens a file. Instead: QFile::open.\r\n";
    EXPECT_THAT(audited.text(),
                testing::StartsWith("name,kind,group,family,uses,file,member,line,advice\r\n"
                                    "CreateFile,function,inert,Files,2," +
                                    file + "2" + advice + "CreateFile,function,inert,Files,2," +
                                    file + "2" + advice));
}

TEST(Audit, TellsCodeHostsEachPlaceWhereSomethingIsAmiss)
{
    const Audited audited({"--sarif"}, "a b.cpp");
    EXPECT_EQ(audited.json()["version"].toString(), "2.1.0");
    const QJsonArray results = sarifResults(audited);
    ASSERT_EQ(results.size(), 5);
    EXPECT_EQ(
        compact(results.at(0)),
        R"({"level":"error","locations":[{"physicalLocation":{"artifactLocation":{"uri":"file://)" +
            audited.path("a%20b.cpp").toStdString() +
            R"("},"region":{"startColumn":5,"startLine":5}}}],"message":{"text":)"
            R"("CreateThread is not here. std::thread and std::mutex."},"ruleId":"not-here"})");
    EXPECT_EQ(results.at(1).toObject()["level"].toString(), "warning");
    EXPECT_EQ(results.at(4).toObject()["level"].toString(), "note");
}

TEST(Audit, TellsCodeHostsOnlyOfTheGroupsThatAreAskedFor)
{
    EXPECT_EQ(sarifResults(Audited({"--sarif", "--only", "inert"})).size(), 3);
}

TEST(Audit, ShowsAPageThatNeedsNothingElse)
{
    const Audited page({"--html"}, "x</script>.cpp");
    const std::string start = R"(<script type="application/json" id="data">)";
    const std::size_t begin = page.text().find(start) + start.size();
    const std::string data = page.text().substr(begin, page.text().find('\n', begin) - begin);
    const std::string json = data.substr(0, data.find("</script>"));
    const QJsonObject report = QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
    EXPECT_EQ(report["names"].toArray().size(), 6);
    EXPECT_EQ(report["inputs"].toArray().at(0).toString(), page.path("x</script>.cpp"));
    EXPECT_THAT(page.text(), Not(HasSubstr("http")));
    EXPECT_THAT(page.text(), HasSubstr("prefers-color-scheme: dark"));
}

TEST(Audit, WritesAFile)
{
    const TemporaryFolder folder;
    writeFile(folder / "report.txt", std::string(100000, 'x'));
    const Audited audited({"--output", text(folder / "report.txt")});
    EXPECT_EQ(audited.text(), "");
    EXPECT_THAT(readFile(folder / "report.txt"), testing::EndsWith("\nTypes\n  BOOL\n"));
}

TEST(Audit, ExplainsAName)
{
    const ProgramResult result = runAudit({"--explain", "CreateFileA"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "CreateFile, function: inert\n"
                          "  Family: Files\n"
                          "  Header: KtQtBase/windows/Files.h\n"
                          "  Result: null\n"
                          "  Here: no file is opened\n"
                          "  On Windows: opens a file\n"
                          "  Instead: QFile::open\n"
                          "  Test: CreateFile.OpensNothing\n");
}

TEST(Audit, ExplainsANameInEachScope)
{
    EXPECT_THAT(runAudit({"--explain", "CopyFile"}).out,
                HasSubstr("\nKtKernel32::CopyFile, function"));
    EXPECT_THAT(runAudit({"--explain", "Parse"}).out,
                HasSubstr("CRbUiPathname::Parse, method: differs"));
    EXPECT_THAT(runAudit({"--explain", "KtKernel32::CopyFile"}).out,
                testing::StartsWith("KtKernel32::CopyFile, function"));
}

TEST(Audit, ExplainsANameThatThePortingHeadersHave)
{
    const std::string text = runAudit({"--explain", "EnumForms"}).out;
    EXPECT_THAT(text, testing::StartsWith("EnumFormsW, function: inert\n"));
    EXPECT_THAT(text, HasSubstr("EnumForms, function: inert\n  Family: Other names\n"
                                "  Header: KtQtBase/Porting.h\n"));
}

TEST(Audit, ExplainsANameThatIsNotHere)
{
    EXPECT_EQ(runAudit({"--explain", "CreateWindowExW"}).out, "CreateWindowEx, function: not here\n"
                                                              "  Family: Windows\n"
                                                              "  DLL on Windows: user32.dll\n"
                                                              "  Advice: QWidget.\n");
}
