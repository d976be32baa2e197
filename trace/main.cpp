// SPDX-License-Identifier: MIT
//
// ktqt-trace: runs a program, and tells which functions of libKtQtBase it called that do nothing
// here, or other things than on Windows.
#include "Program.h"
#include "Report.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>

#include <cstdio>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr int kWrongUse = 2;
constexpr int kNothingWritten = 2;

struct Options
{
    QString output;
    std::string only;
    bool isJson = false;
};

void complain(const QString& reason)
{
    std::fprintf(stderr, "ktqt-trace: %s\n", qPrintable(reason));
}

// ---- The command line --------------------------------------------------------------------------

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        "Runs a program and lists the functions of libKtQtBase that it called and that do nothing\n"
        "here (inert), or other things than on Windows (differs): how often, from where first,\n"
        "and the result that an inert one gives. The list goes to standard error.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({"json", "Write the list as JSON."});
    parser.addOption({"output", "Write the list to this file.", "file"});
    parser.addOption({"only", "List the functions of this status: inert or differs.", "status"});
    parser.addPositionalArgument("program", "The program to run.", "PROGRAM");
    parser.addPositionalArgument("arguments", "Its arguments.", "[ARGUMENTS]");
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
}

// Reads the command line; where help or the version is asked for, tells it and ends.
bool parse(QCommandLineParser& parser, const QStringList& words)
{
    const bool isParsed = parser.parse(words);
    if (!isParsed)
        complain(parser.errorText() + " See ktqt-trace --help.");
    else if (parser.isSet("help"))
        parser.showHelp();
    else if (parser.isSet("version"))
        parser.showVersion();
    return isParsed;
}

bool isRight(const QCommandLineParser& parser)
{
    const QString only = parser.value("only");
    if (parser.positionalArguments().isEmpty())
        complain("name a program to run; see ktqt-trace --help");
    else if (parser.isSet("only") && only != "inert" && only != "differs")
        complain("--only takes inert or differs");
    else
        return true;
    return false;
}

Options optionsOf(const QCommandLineParser& parser)
{
    return {parser.value("output"), parser.value("only").toStdString(), parser.isSet("json")};
}

// ---- The recorder ------------------------------------------------------------------------------

// It lies beside this program where both were built, and in the library folder where they are
// installed.
QString recorderFile()
{
    const QString folder = QCoreApplication::applicationDirPath() + '/';
    const QString beside = folder + KTQTBASE_TRACE_RECORDER;
    return QFile::exists(beside) ? beside
                                 : folder + KTQTBASE_TRACE_INSTALLED "/" KTQTBASE_TRACE_RECORDER;
}

// The loader takes a list of files, and one whose name holds a separator by another name.
QByteArray loadableName(const QString& file)
{
    QByteArray name = QFile::encodeName(file);
    if (name.toStdString().find_first_of(KTQTBASE_TRACE_SEPARATORS) == std::string::npos)
        return name;
    const int open = ::open(name.constData(), O_RDONLY | O_CLOEXEC);
    return "/proc/" + QByteArray::number(getpid()) + "/fd/" + QByteArray::number(open);
}

// What the user preloads stays first: some libraries insist on that.
trace::Variables variablesFor(const QString& recorder, const QString& recordFile)
{
    const QByteArray preloaded = qgetenv(KTQTBASE_TRACE_PRELOAD);
    const QByteArray all =
        (preloaded.isEmpty() ? preloaded : preloaded + ':') + loadableName(recorder);
    return {KTQTBASE_TRACE_PRELOAD "=" + all.toStdString(),
            trace::kFileVariable + ("=" + QFile::encodeName(recordFile).toStdString())};
}

// ---- The run -----------------------------------------------------------------------------------

bool print(const trace::Record& record, const trace::Run& run, const Options& options, FILE* to)
{
    const std::string text = options.isJson ? trace::jsonOf(record, run, options.only)
                                            : trace::tableOf(record, run, options.only);
    const bool isWritten =
        std::fwrite(text.data(), 1, text.size(), to) == text.size() && std::fflush(to) == 0;
    if (!isWritten)
        complain("cannot write " + (options.output.isEmpty() ? "the list" : options.output));
    return isWritten;
}

// An output that cannot be written is told before the program runs, not after hours.
FILE* openOutput(const QString& name)
{
    FILE* const file = name.isEmpty() ? stderr : std::fopen(QFile::encodeName(name), "we");
    if (file == nullptr)
        complain("cannot write " + name);
    return file;
}

// All of it is written, so that a full disk is met here and not by the program.
const trace::Record* makeRecord(QTemporaryFile& file)
{
    const QByteArray zeros(sizeof(trace::Record), '\0');
    if (file.open() && file.write(zeros) == zeros.size() && file.flush())
        return reinterpret_cast<trace::Record*>(file.map(0, zeros.size()));
    return nullptr;
}

int traceProgram(char* const* arguments, const trace::Variables& environment,
                 const Options& options)
{
    FILE* const output = openOutput(options.output);
    if (output == nullptr)
        return kWrongUse;
    QTemporaryFile file;
    const trace::Record* const record = makeRecord(file);
    if (record == nullptr) {
        complain("cannot write a temporary file: " + file.errorString());
        return kWrongUse;
    }
    const int status = trace::runProgram(
        arguments,
        trace::withVariables(environment, variablesFor(recorderFile(), file.fileName())));
    if (status < 0)
        return -status;
    return print(*record, {arguments[0], status}, options, output) ? status : kNothingWritten;
}

// ---- The arguments -----------------------------------------------------------------------------

QStringList textsOf(const std::vector<char*>& arguments)
{
    QStringList texts;
    for (const char* const argument : arguments)
        texts.append(QString::fromLocal8Bit(argument));
    return texts;
}

} // namespace

int main(int argc, char** argv)
{
    // The application takes out what it knows; the program gets all that was given.
    std::vector<char*> arguments(argv, argv + argc);
    const trace::Variables environment = trace::ownEnvironment();
    // File names are UTF-8 to this program in every locale.
    qputenv("LC_ALL", "C.UTF-8");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("ktqt-trace");
    QCoreApplication::setApplicationVersion(KTQTBASE_TRACE_VERSION);
    QCommandLineParser parser;
    describe(parser);
    if (!parse(parser, textsOf(arguments)) || !isRight(parser))
        return kWrongUse;
    const auto count = static_cast<size_t>(parser.positionalArguments().size());
    arguments.push_back(nullptr);
    return traceProgram(&arguments[arguments.size() - 1 - count], environment, optionsOf(parser));
}
