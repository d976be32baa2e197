// SPDX-License-Identifier: MIT
//
// ktqt-trace over programs that call what their arguments say; hosts/calls.cpp has the words.
#include "support/RowName.h"
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <map>

namespace {

using ktqtbase::test::RowName;
using ktqtbase::test::TemporaryFolder;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;
using testing::UnorderedElementsAre;

// Under AddressSanitizer the recorder may come before the sanitizer's library, and a crash is one.
class Sanitizer : public testing::Environment
{
public:
    void SetUp() override
    {
        qputenv("ASAN_OPTIONS",
                qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0:handle_segv=0:handle_abort=0");
    }
};
const auto* const kSanitizer = testing::AddGlobalTestEnvironment(new Sanitizer);

ProgramResult trace(const QStringList& arguments)
{
    return runProgram(KTQT_TRACE, arguments);
}

// ---- What was counted --------------------------------------------------------------------------

struct Traced
{
    ProgramResult program;
    QJsonObject report;

    QJsonObject function(const char* name) const
    {
        for (const QJsonValue& value : report["functions"].toArray())
            if (value["name"] == name)
                return value.toObject();
        return QJsonObject();
    }

    QJsonObject firstCaller(const char* name) const
    {
        return function(name)["firstCaller"].toObject();
    }

    std::map<std::string, int> calls() const
    {
        std::map<std::string, int> all;
        for (const QJsonValue& value : report["functions"].toArray())
            all[value["name"].toString().toStdString()] = value["calls"].toInt();
        return all;
    }
};

Traced traced(const QStringList& command, const QStringList& options = {})
{
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder / "report.json");
    Traced result;
    result.program = trace(QStringList{"--json", "--output", file} + options + command);
    const std::string json = ktqtbase::test::readFile(folder / "report.json");
    result.report = QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
    return result;
}

// Every host that calls anything has called GetVersion before its main.
Traced tracedCalls(const QStringList& words)
{
    return traced(QStringList{TRACE_CALLS} + words);
}

TEST(Trace, CountsTheCallsOfEachFunction)
{
    EXPECT_THAT(
        tracedCalls({"close", "3", "open", "5", "close", "1"}).calls(),
        UnorderedElementsAre(Pair("CloseHandle", 4), Pair("FindClose", 5), Pair("GetVersion", 1)));
}

TEST(Trace, CountsTheCallsOfAllThreads)
{
    const auto calls = tracedCalls({"threads", "100000"}).calls();
    EXPECT_EQ(calls.at("CloseHandle"), 200000);
    EXPECT_EQ(calls.at("FindClose"), 200000);
}

TEST(Trace, CountsACallBeforeMain)
{
    EXPECT_THAT(tracedCalls({}).calls(), UnorderedElementsAre(Pair("GetVersion", 1)));
}

TEST(Trace, CountsTheCallsOfALoadedModule)
{
    const Traced host = tracedCalls({"module", TRACE_MODULE});
    EXPECT_EQ(host.function("CloseHandle")["calls"], 1);
    EXPECT_EQ(host.firstCaller("CloseHandle")["module"], TRACE_MODULE);
}

TEST(Trace, CountsTheCallsOfAChild)
{
    EXPECT_EQ(tracedCalls({"close", "1", "fork"}).calls().at("CloseHandle"), 2);
}

TEST(Trace, CountsTheCallsOfTheProgramThatAProcessBecomes)
{
    EXPECT_THAT(tracedCalls({"close", "1", "exec", "close", "2"}).calls(),
                UnorderedElementsAre(Pair("CloseHandle", 3), Pair("GetVersion", 2)));
}

TEST(Trace, CountsTheCallsOfAProgramThatAScriptStarts)
{
    const Traced script = traced({"sh", "-c", R"("$0" close 2; exit 5)", TRACE_CALLS});
    EXPECT_EQ(script.function("CloseHandle")["calls"], 2);
    EXPECT_EQ(script.program.status, 5);
}

TEST(Trace, LeavesOutCallsInsideTheLibrary)
{
    EXPECT_THAT(tracedCalls({"inside"}).calls(),
                UnorderedElementsAre(Pair("KtKernel32::GetFileSize", 1),
                                     Pair("KtKernel32::GetTickCount", 1), Pair("GetVersion", 1)));
}

TEST(Trace, FindsALibraryThatCameBackElsewhere)
{
    const Traced host = traced({TRACE_RELOADS, TRACE_MODULE, TRACE_LIBRARY});
    EXPECT_EQ(host.program.status, 0) << host.program.err;
    EXPECT_THAT(host.calls(), UnorderedElementsAre(Pair("CloseHandle", 2)));
}

// ---- What a call meets -------------------------------------------------------------------------

TEST(Trace, LeavesResultsArgumentsAndErrnoAsTheyAre)
{
    const ProgramResult alone = runProgram(TRACE_INERT, {});
    const ProgramResult host = trace({TRACE_INERT});
    EXPECT_THAT(alone.out, StartsWith("CreateFile 0 1 4711\n"));
    EXPECT_EQ(host.out, alone.out);
    EXPECT_EQ(host.status, alone.status);
}

TEST(Trace, TellsTheResultThatEachInertFunctionGives)
{
    const std::map<QString, int> numbers = {
        {"0", 0}, {"null", 0}, {"nothing", 0}, {"1", 1}, {"true", 1}};
    const Traced host = traced({TRACE_INERT});
    const auto functions = host.report["functions"].toArray();
    EXPECT_GT(functions.size(), 50);
    for (const QJsonValue& function : functions) {
        const std::string result = std::to_string(numbers.at(function["result"].toString()));
        const std::string line = function["name"].toString().toStdString() + ' ' + result + " 1 ";
        EXPECT_THAT('\n' + host.program.out, HasSubstr('\n' + line));
        EXPECT_EQ(function["calls"].toInt() % 2, 0) << line;
    }
}

// What the row's program replaces is the program's own function and not counted.
struct Replacement
{
    const char* name;
    const char* program;
};

class TraceReplacement : public testing::TestWithParam<Replacement>
{};

INSTANTIATE_TEST_SUITE_P(Trace, TraceReplacement,
                         testing::Values(Replacement{"InTheProgram", TRACE_REPLACES},
                                         Replacement{"InALibrary", TRACE_REPLACES_BY_LIBRARY}),
                         RowName());

TEST_P(TraceReplacement, IsCalledAsWithoutIt)
{
    const Traced host = traced({GetParam().program});
    EXPECT_EQ(host.program.out, "asked for /mine\n0\nasked for //yours\n");
    EXPECT_EQ(host.report["libraryLoaded"], true);
    EXPECT_THAT(host.calls(), IsEmpty());
}

// ---- How the program ends ----------------------------------------------------------------------

struct Ending
{
    const char* name;
    QStringList words;
    int status;
};

class TraceEnding : public testing::TestWithParam<Ending>
{};

INSTANTIATE_TEST_SUITE_P(Trace, TraceEnding,
                         testing::Values(Ending{"Return", {}, 0}, Ending{"Exit", {"exit", "3"}, 3},
                                         Ending{"ExitAtOnce", {"_exit", "4"}, 4},
                                         Ending{"Abort", {"abort"}, 128 + SIGABRT},
                                         Ending{"Crash", {"crash"}, 128 + SIGSEGV},
                                         Ending{"Kill", {"kill"}, 128 + SIGKILL}),
                         RowName());

TEST_P(TraceEnding, IsPassedOnAndLosesNothing)
{
    const Traced host = tracedCalls(QStringList{"close", "2"} + GetParam().words);
    EXPECT_EQ(host.program.status, GetParam().status);
    EXPECT_EQ(host.report["exitStatus"], GetParam().status);
    EXPECT_EQ(host.calls().at("CloseHandle"), 2);
}

// Ends ktqt-trace once the program that it runs has said something.
void runUntilASignal(ChildProcess& process)
{
    ASSERT_TRUE(process.start(KTQT_TRACE, {TRACE_CALLS, "close", "2", "wait"}));
    while (!process->canReadLine() && process->waitForReadyRead(ChildProcess::kPatience)) {
    }
    kill(static_cast<pid_t>(process->processId()), SIGTERM);
    ASSERT_TRUE(process->waitForFinished(ChildProcess::kPatience));
}

TEST(Trace, PassesASignalOnAndTellsWhatWasCalled)
{
    ChildProcess process;
    runUntilASignal(process);
    EXPECT_EQ(process->exitCode(), 128 + SIGTERM);
    EXPECT_THAT(process->readAllStandardError().toStdString(), HasSubstr("CloseHandle"));
}

TEST(Trace, PassesASignalOnThatComesBeforeItKnowsTheProgram)
{
    ChildProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", SLOW_SPAWN);
    environment.insert("LD_LIBRARY_PATH", SLOW_SPAWN_FOLDER);
    environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0");
    process->setProcessEnvironment(environment);
    runUntilASignal(process);
    EXPECT_EQ(process->exitCode(), 128 + SIGTERM);
}

TEST(Trace, LeavesNoFileWhereNobodyReadsTheTable)
{
    const TemporaryFolder folder;
    const char* const command = R"(TMPDIR=$1 "$2" "$3" close 1 2>&1 >/dev/null | true)";
    runProgram("sh", {"-c", command, "sh", QString::fromStdString(folder.path()), KTQT_TRACE,
                      TRACE_CALLS});
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(Trace, TellsWhatItCannotRun)
{
    const ProgramResult absent = trace({"/no/such/program"});
    EXPECT_EQ(absent.status, 127);
    EXPECT_EQ(absent.err, "ktqt-trace: cannot run /no/such/program: No such file or directory\n");
    EXPECT_EQ(trace({"/"}).status, 126);
}

// ---- What is told ------------------------------------------------------------------------------

TEST(Trace, TellsTheFunctionFileAndLineOfTheFirstCall)
{
    const Traced host = tracedCalls({"line", "close", "2"});
    const QJsonObject caller = host.firstCaller("CloseHandle");
    EXPECT_EQ(caller["line"].toInt(), std::stoi(host.program.out));
    EXPECT_THAT(caller["file"].toString().toStdString(), EndsWith("tests/trace/hosts/calls.cpp"));
    EXPECT_THAT(caller["function"].toString().toStdString(), HasSubstr("closeHandles(int)"));
}

TEST(Trace, TellsTheStatusAndTheResult)
{
    const Traced host = tracedCalls({"inside"});
    EXPECT_EQ(host.function("KtKernel32::GetFileSize")["status"], "inert");
    EXPECT_EQ(host.function("KtKernel32::GetFileSize")["result"], "0");
    EXPECT_EQ(host.function("KtKernel32::GetTickCount")["status"], "differs");
    EXPECT_EQ(host.function("KtKernel32::GetTickCount")["result"], "");
}

TEST(Trace, ListsOneStatusAlone)
{
    EXPECT_THAT(traced({TRACE_CALLS, "inside"}, {"--only", "inert"}).calls(),
                UnorderedElementsAre(Pair("KtKernel32::GetFileSize", 1), Pair("GetVersion", 1)));
    EXPECT_THAT(traced({TRACE_CALLS, "inside"}, {"--only", "differs"}).calls(),
                UnorderedElementsAre(Pair("KtKernel32::GetTickCount", 1)));
}

TEST(Trace, PrintsATableBesideThePrograms)
{
    const ProgramResult host = trace({TRACE_CALLS, "say", "mine", "close", "12"});
    EXPECT_EQ(host.out, "mine\n");
    EXPECT_THAT(host.err, StartsWith("Function     Calls  Status  Result  First caller\n"
                                     "CloseHandle  12     inert   0       "));
}

TEST(Trace, WritesTheTableToAFile)
{
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder / "table");
    const ProgramResult host = trace({"--output", file, TRACE_CALLS, "close", "1"});
    EXPECT_EQ(host.err, "");
    EXPECT_THAT(ktqtbase::test::readFile(folder / "table"), HasSubstr("CloseHandle  1 "));
}

TEST(Trace, RunsNothingWhereTheOutputCannotBeWritten)
{
    const ProgramResult host = trace({"--output", "/no/such/folder/x", TRACE_CALLS, "say", "x"});
    EXPECT_EQ(host.status, 2);
    EXPECT_EQ(host.out, "");
    EXPECT_EQ(host.err, "ktqt-trace: cannot write /no/such/folder/x\n");
}

TEST(Trace, TellsThatTheListDidNotFitOnTheDisk)
{
    const ProgramResult host = trace({"--output", "/dev/full", TRACE_CALLS, "say", "x"});
    EXPECT_EQ(host.status, 2);
    EXPECT_EQ(host.out, "x\n");
    EXPECT_EQ(host.err, "ktqt-trace: cannot write /dev/full\n");
}

TEST(Trace, TellsThatTheLibraryWasNotLoaded)
{
    const ProgramResult host = trace({"sh", "-c", "exit 6"});
    EXPECT_EQ(host.status, 6);
    EXPECT_THAT(host.err, StartsWith("ktqt-trace: sh did not load libKtQtBase.so."));
}

// ---- The command line --------------------------------------------------------------------------

TEST(Trace, LeavesTheProgramsArgumentsToIt)
{
    EXPECT_EQ(
        trace({"sh", "-c", "printf '%s|' \"$@\"", "sh", "--json", "", "-platform", "é x"}).out,
        "--json||-platform|é x|");
}

TEST(Trace, TellsItsVersionAndItsOptions)
{
    EXPECT_EQ(trace({"--version"}).out, "ktqt-trace " TRACE_VERSION "\n");
    EXPECT_THAT(trace({"--help"}).out, HasSubstr("--only <status>"));
}

TEST(Trace, RefusesWrongUse)
{
    EXPECT_EQ(trace({}).status, 2);
    EXPECT_EQ(trace({"--only", "works", TRACE_CALLS}).status, 2);
    const ProgramResult unknown = trace({"--bogus", TRACE_CALLS});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, "ktqt-trace: Unknown option 'bogus'. See ktqt-trace --help.\n");
}

// ---- Where it lies -----------------------------------------------------------------------------

// The loader separates the files that it is to put before others by blanks.
TEST(Trace, RunsWhereItIsInstalledUnderANameWithBlanks)
{
    const TemporaryFolder folder;
    const auto program = folder / "a b é" / "bin" / "ktqt-trace";
    const auto recorder = folder / "a b é" / "bin" / TRACE_INSTALLED / "libktqt-trace.so";
    std::filesystem::create_directories(program.parent_path());
    std::filesystem::create_directories(recorder.parent_path().lexically_normal());
    std::filesystem::copy(KTQT_TRACE, program);
    std::filesystem::copy(TRACE_RECORDER, recorder.lexically_normal());
    const QString output = QString::fromStdString(folder / "é");
    const ProgramResult host = runProgram("env", {"LC_ALL=C", QString::fromStdString(program),
                                                  "--output", output, TRACE_CALLS, "close", "3"});
    EXPECT_EQ(host.err, "");
    EXPECT_THAT(ktqtbase::test::readFile(folder / "é"), HasSubstr("CloseHandle  3 "));
}

TEST(Trace, LeavesTheProgramItsLocale)
{
    EXPECT_EQ(runProgram("env", {"LC_ALL=C", KTQT_TRACE, "sh", "-c", "echo $LC_ALL"}).out, "C\n");
}

TEST(Trace, KeepsWhatTheUserPutsBeforeOtherLibraries)
{
    qputenv("LD_PRELOAD", TRACE_RECORDER);
    const ProgramResult host = trace({"sh", "-c", "echo $LD_PRELOAD"});
    qunsetenv("LD_PRELOAD");
    EXPECT_THAT(host.out, StartsWith(TRACE_RECORDER ":"));
}

} // namespace
