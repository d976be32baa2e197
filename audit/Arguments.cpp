// SPDX-License-Identifier: MIT
#include "Arguments.h"

#include <QtCore/QCommandLineParser>

namespace ktqtbase::audit {

const char* const kUsage =
    R"(Usage: ktqt-audit [OPTION]... FILE|FOLDER|compile_commands.json...
       ktqt-audit --explain NAME

Holds what a Windows program needs against what KtQtBase has: works, differs, inert (is there and
does nothing) or not here. Reads Windows programs, DLLs, objects and libraries, those of ELF and
Mach-O, and C and C++ sources and resource scripts.

What it shows:
  --explain NAME      all that is known about one name
  --only GROUPS       list these groups only: works, differs, inert, not-here
  --family FAMILY     look at the names of one family only, such as files
  --baseline FILE     look only at what is new since an earlier report of --json

How it shows it:
  --json, --csv, --sarif, --html    a report in that form
  --output FILE       write the report to a file

  --fail-on GROUPS    exit with 1 if a name of these groups is used
  --catalogue FOLDER  take the catalogue from a folder
  --help, --version

Exit status: 0; 1 if --fail-on says so; 2 if a file or an argument cannot be read.
)";

namespace {

struct FormatOption
{
    const char* name;
    Format format;
};

constexpr FormatOption kFormats[] = {
    {"json", Format::Json}, {"csv", Format::Csv}, {"sarif", Format::Sarif}, {"html", Format::Html}};

constexpr const char* kValues[] = {"explain", "only",    "family",   "baseline",
                                   "output",  "fail-on", "catalogue"};

// Names of files are any bytes. So each byte is a character for Qt, and one of the same value.
QStringList wide(int count, char** values)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString::fromLatin1(values[i]));
    return list;
}

std::string narrow(const QString& text)
{
    return text.toLatin1().toStdString();
}

void addOptions(QCommandLineParser& parser)
{
    for (const char* const name : kValues)
        parser.addOption({QString(name), QString(), QString(name)});
    for (const FormatOption& format : kFormats)
        parser.addOption(QCommandLineOption(QString(format.name)));
    parser.addOption(QCommandLineOption(QStringList{"h", "help"}));
    parser.addOption(QCommandLineOption(QStringList{"v", "version"}));
}

std::vector<Group> groups(const QCommandLineParser& parser, const QString& option)
{
    std::vector<Group> groups;
    for (const QString& word : parser.value(option).split(',')) {
        if (!parser.isSet(option))
            continue;
        const std::optional<Group> group = groupOfWord(narrow(word));
        if (!group)
            throw ArgumentError("--" + narrow(option) + ": there is no group \"" + narrow(word) +
                                "\"");
        groups.push_back(*group);
    }
    return groups;
}

Format format(const QCommandLineParser& parser)
{
    Format chosen = Format::Text;
    for (const FormatOption& format : kFormats) {
        if (!parser.isSet(format.name))
            continue;
        if (chosen != Format::Text)
            throw ArgumentError("a report has one form only");
        chosen = format.format;
    }
    return chosen;
}

// An empty text would be taken for an option that is not there.
std::string value(const QCommandLineParser& parser, const QString& option)
{
    std::string text = narrow(parser.value(option));
    if (parser.isSet(option) && text.empty())
        throw ArgumentError("--" + narrow(option) + " needs a value");
    return text;
}

void readValues(Arguments& arguments, const QCommandLineParser& parser)
{
    arguments.format = format(parser);
    arguments.output = value(parser, "output");
    arguments.catalogue = value(parser, "catalogue");
    arguments.family = value(parser, "family");
    arguments.explain = value(parser, "explain");
    arguments.baseline = value(parser, "baseline");
    arguments.only = groups(parser, "only");
    arguments.failOn = groups(parser, "fail-on");
    for (const QString& path : parser.positionalArguments())
        arguments.paths.push_back(narrow(path));
    if (!arguments.explain.empty() && arguments.format != Format::Text)
        throw ArgumentError("--explain has one form only");
    if (arguments.paths.empty() && arguments.explain.empty())
        throw ArgumentError("there is nothing to read");
}

} // namespace

Arguments readArguments(int count, char** values)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(wide(count, values)))
        throw ArgumentError(narrow(parser.errorText()));
    Arguments arguments;
    arguments.help = parser.isSet("help");
    arguments.version = parser.isSet("version");
    if (!arguments.help && !arguments.version)
        readValues(arguments, parser);
    return arguments;
}

} // namespace ktqtbase::audit
