// SPDX-License-Identifier: MIT
#include "AuditRun.h"
#include "support/RowName.h"

#include <gmock/gmock.h>

using namespace ktqtbase::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct SourceRow
{
    const char* name;
    std::string text;
    std::vector<std::string> places; // of CopyFile
};

void PrintTo(const SourceRow& row, std::ostream* out)
{
    *out << row.text;
}

class AuditedSource : public testing::TestWithParam<SourceRow>
{};

const SourceRow kRows[] = {
    {"Call", "\nx = CopyFile(a, b, 0);\n", {"main.cpp:2"}},
    {"EachCall",
     "CopyFile(a);\n\nCopyFile(b); CopyFile(c);\n",
     {"main.cpp:1", "main.cpp:3", "main.cpp:3"}},
    {"NameWithoutCall", "auto* copy = &CopyFile;\n", {"main.cpp:1"}},
    {"WideLetter", "CopyFileW(a, b, 0);\n", {"main.cpp:1"}},
    {"NarrowLetter", "CopyFileA(a, b, 0);\n", {"main.cpp:1"}},
    {"GlobalScope", "::CopyFile(a, b, 0); return ::CopyFile(b);\n", {"main.cpp:1", "main.cpp:1"}},
    {"Macro", "#define COPY(a) \\\n    CopyFile(a, 0)\n", {"main.cpp:2"}},
    {"CarriageReturns", "int a;\r\nCopyFile(a);\r\n", {"main.cpp:2"}},
    {"ByteOrderMark",
     "\xEF\xBB\xBF"
     "CopyFile(a);\n",
     {"main.cpp:1"}},
    {"LineComment", "// CopyFile(a)\nCopyFile(b);\n", {"main.cpp:2"}},
    {"ContinuedLineComment", "// why \\\nCopyFile(a)\nCopyFile(b);\n", {"main.cpp:3"}},
    {"BlockComment", "/* CopyFile(a)\n CopyFile(b) */ CopyFile(c);\n", {"main.cpp:2"}},
    {"Text", "f(\"CopyFile\", L\"CopyFile(\\\"CopyFile\");\n", {}},
    {"RawText", "f(R\"x(\")\nCopyFile\n)x\");\nCopyFile(a);\n", {"main.cpp:4"}},
    {"DigitSeparators", "int a = 1'000; CopyFile(a); int b = 1'000;\n", {"main.cpp:1"}},
    {"CutName", "Copy\\\nFile(a);\nCopyFile(b);\n", {"main.cpp:1", "main.cpp:3"}},
    {"NameBehindAContinuedLine", "int a; \\\nCopyFile(a);\n", {"main.cpp:2"}},
    {"NameBehindContinuedLines", "\\\r\n\\ \r\nCopyFile(a);\r\n", {"main.cpp:3"}},
    {"GreaterThan",
     "a > ::CopyFile(b); a >= ::CopyFile(b); a >=::CopyFile(b);\n",
     {"main.cpp:1", "main.cpp:1", "main.cpp:1"}},
    {"HeaderName", "#include <CopyFile.h>\n#include \"CopyFile\"\n", {}},
    {"Error", "#error CopyFile isn't here\nCopyFile(a);\n", {"main.cpp:2"}},
    {"DeadCode",
     "#if 0\n#if X\nCopyFile(a);\n#endif\nCopyFile(b);\n#endif\nCopyFile(c);\n",
     {"main.cpp:7"}},
    {"ElseOfDeadCode", "#if 0\nCopyFile(a);\n#else\nCopyFile(b);\n#endif\n", {"main.cpp:4"}},
    {"ConditionalCode", "#if 0 || X\nCopyFile(a);\n#endif\n", {"main.cpp:2"}},
    {"Member", "a.CopyFile(b); a->CopyFile(b);\n", {}},
    {"OtherScope", "Tools::CopyFile(b); Tool<int>::CopyFile(b);\n", {}},
    {"PartOfName", "MyCopyFile(a); CopyFiles(a); CopyFileX(a);\n", {}},
    {"WithoutLineEnd", "CopyFile", {"main.cpp:1"}},
    {"UnclosedText", "f(\"CopyFile\nCopyFile(a);\n", {"main.cpp:2"}},
    {"UnclosedComment", "CopyFile(a); /* CopyFile(b)\n", {"main.cpp:1"}},
    {"ZeroByte", std::string("int a;\0 CopyFile(a);\n", 21), {"main.cpp:1"}},
};

} // namespace

TEST_P(AuditedSource, HasTheNameInThesePlaces)
{
    EXPECT_EQ(auditSource(GetParam().text).places("CopyFile"), GetParam().places);
}

INSTANTIATE_TEST_SUITE_P(Audit, AuditedSource, testing::ValuesIn(kRows), RowName());

TEST(Audit, TellsTheGroupOfEachName)
{
    const AuditRun run = auditSource("BOOL a = CopyFile(b); CreateFile(c); GetTempFileNameW(d);\n"
                                     "CreateThread(e); CFrameWnd f; LOGFONT g; other(MB_OK);\n");
    EXPECT_EQ(run.status(), 0);
    EXPECT_THAT(run.names(), ElementsAre("BOOL works", "CFrameWnd not-here", "CopyFile differs",
                                         "CreateFile inert", "CreateThread not-here",
                                         "GetTempFileName works", "LOGFONTW works", "MB_OK works"));
}

TEST(Audit, FindsNamesInTheLibrarysScopes)
{
    const AuditRun run =
        auditSource("KtKernel32::CopyFile(a);\nint (CRbUiPathname::*f)() = &CRbUiPathname::Parse;\n"
                    "Parse(b);\n");
    EXPECT_THAT(run.places("KtKernel32::CopyFile"), ElementsAre("main.cpp:1"));
    EXPECT_THAT(run.places("CRbUiPathname::Parse"), ElementsAre("main.cpp:2"));
    EXPECT_THAT(run.places("CopyFile"), IsEmpty());
    EXPECT_THAT(run.places("Parse"), IsEmpty());
}

TEST(Audit, FoldsTheLettersOfNamesThatAreNotHere)
{
    const AuditRun run =
        auditSource("CreateWindowExW(a);\nCreateWindowExA(a);\nCreateWindowEx(a);\n"
                    "CommandLineToArgvW(b); CommandLineToArgv(b);\n");
    EXPECT_THAT(run.places("CreateWindowEx"),
                ElementsAre("main.cpp:1", "main.cpp:2", "main.cpp:3"));
    EXPECT_THAT(run.places("CommandLineToArgvW"), ElementsAre("main.cpp:4"));
}

TEST(Audit, FoldsAnEntryThatHasItsLetter)
{
    const AuditRun run = auditSource("EnumForms(a);\nEnumFormsW(a);\nEnumFormsA(a);\n");
    EXPECT_THAT(run.places("EnumFormsW"), ElementsAre("main.cpp:1", "main.cpp:2", "main.cpp:3"));
}

TEST(Audit, FoldsTheNamesOfThePortingHeadersIntoTheLibrarysOwn)
{
    const AuditRun run = auditSource("CopyFileW(a); EnumForms(b); LOGFONT c; LPLOGFONTW d;\n");
    EXPECT_THAT(run.names(), ElementsAre("CopyFile differs", "EnumFormsW inert", "LOGFONTW works",
                                         "LPLOGFONT works"));
}

TEST(Audit, FindsMacrosInSmallLetters)
{
    EXPECT_THAT(auditSource("afx_msg void OnPaint();\n").names(), ElementsAre("afx_msg works"));
}

TEST(Audit, TakesAWordInSmallLettersForAFunctionOnlyWhereItIsCalled)
{
    const AuditRun run = auditSource("int ldap_open = 1;\nldap_open(a);\n");
    EXPECT_THAT(run.places("ldap_open"), ElementsAre("main.cpp:2"));
}

TEST(Audit, ReadsAResourceScriptInUtf16)
{
    const std::string text = "/* */ MB_OK\nBOOL\n";
    std::string wide = "\xFF\xFE";
    for (const char ch : text)
        wide += {ch, '\0'};
    const AuditRun run = auditSource(wide, "main.rc");
    EXPECT_THAT(run.places("MB_OK"), ElementsAre("main.rc:1"));
    EXPECT_THAT(run.places("BOOL"), ElementsAre("main.rc:2"));
}

TEST(Audit, TellsOfAResourceScriptThatIsCutOff)
{
    const AuditRun run = auditSource("\xFF\xFE"
                                     "a",
                                     "main.rc");
    EXPECT_EQ(run.status(), 2);
    EXPECT_THAT(run.errors(),
                testing::EndsWith("main.rc: not UTF-16 text, though it begins with its "
                                  "mark\n"));
}

TEST(Audit, TellsTheColumnsOfALongLine)
{
    const TemporaryFolder folder;
    std::string line = "\xC3\xA4 ";
    for (int i = 0; i < 60000; ++i)
        line += "CreateFile(); ";
    writeFile(folder / "main.cpp", "int a;\n" + line + "\n");
    const std::string report = runAudit({"--sarif", text(folder / "main.cpp")}).out;
    for (const char* const column : {"3", "17", "839989"})
        EXPECT_TRUE(report.find(std::string("\"startColumn\":") + column + "}") !=
                    std::string::npos)
            << column;
}

std::string repeated(const std::string& part, int times)
{
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

// Clang's lexer calls itself for each of these parts.
TEST(Audit, ReadsTheOtherSourcesWhereSomeCrashTheirReader)
{
    const TemporaryFolder folder;
    writeFile(folder / "a.cpp", "CopyFile(a);\n");
    writeFile(folder / "b.cpp", repeated("\\\n", 100000));
    writeFile(folder / "c.cpp", repeated("\\ \r\n", 100000));
    writeFile(folder / "d.cpp", repeated("\\\r", 100000));
    writeFile(folder / "e.cpp", repeated("1e+", 1000000));
    writeFile(folder / "f.cpp", repeated("1\xC3\xA9", 1000000));
    writeFile(folder / "g.cpp", "\nCopyFile(a);\n");
    const AuditRun run({text(folder.path())});
    EXPECT_EQ(run.status(), 2);
    std::string expected;
    for (const char* const name : {"b.cpp", "c.cpp", "d.cpp", "e.cpp", "f.cpp"})
        expected += "ktqt-audit: " + (folder / name).string() + ": it makes its reader crash\n";
    EXPECT_EQ(run.errors(), expected);
    EXPECT_THAT(run.places("CopyFile"), testing::ElementsAre("a.cpp:1", "g.cpp:2"));
}

TEST(Audit, ReadsMoreSourcesThanOneProcessDoes)
{
    const TemporaryFolder folder;
    for (int i = 100; i < 300; ++i)
        writeFile(folder / (std::to_string(i) + ".cpp"), "CopyFile(a);\n");
    const AuditRun run({text(folder.path())});
    EXPECT_EQ(run.status(), 0);
    const std::vector<std::string> places = run.places("CopyFile");
    ASSERT_EQ(places.size(), 200u);
    EXPECT_EQ(places.front(), "100.cpp:1");
    EXPECT_EQ(places.back(), "299.cpp:1");
}
