// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "NameSource.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>
#include <charconv>
#include <sstream>

namespace {

struct FlagOption
{
    const char* name;
    bool Questions::*flag;
};

constexpr FlagOption kFlags[] = {{"parent", &Questions::parent},
                                 {"unique", &Questions::unique},
                                 {"status", &Questions::status},
                                 {"validate", &Questions::validate}};

struct FormOption
{
    const char* name;
    Form form;
};

constexpr FormOption kForms[] = {
    {"wide", Form::WideTable}, {"json", Form::Json}, {"csv", Form::Csv}};

constexpr const char* kValues[] = {"list", "extension", "match", "width", "columns"};

constexpr int kWholeName = -1; // a width of GetDisplayName

// Names are any bytes. So each byte is a character for Qt, and one of the same value.
QStringList widened(int count, char** values)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString::fromLatin1(values[i]));
    return list;
}

std::string narrowed(const QString& text)
{
    return text.toLatin1().toStdString();
}

std::vector<std::string> narrowed(const QStringList& list)
{
    std::vector<std::string> texts;
    for (const QString& text : list)
        texts.push_back(narrowed(text));
    return texts;
}

void addOptions(QCommandLineParser& parser)
{
    for (const FlagOption& flag : kFlags)
        parser.addOption(QCommandLineOption(QString(flag.name)));
    for (const FormOption& form : kForms)
        parser.addOption(QCommandLineOption(QString(form.name)));
    for (const char* const name : kValues)
        parser.addOption({QString(name), QString(), QString(name)});
    parser.addOption(QCommandLineOption(QStringList{"h", "help"}));
    parser.addOption(QCommandLineOption(QStringList{"v", "version"}));
}

[[noreturn]] void refuse(const QString& option, const std::string& wanted, const std::string& value)
{
    throw ArgumentError("--" + narrowed(option) + " wants " + wanted + ", not \"" + value + "\"");
}

std::optional<std::wstring> readText(const QCommandLineParser& parser, const QString& option)
{
    if (!parser.isSet(option))
        return std::nullopt;
    const std::string value = narrowed(parser.value(option));
    std::wstring text;
    if (!decodeUtf8(value, text))
        refuse(option, "UTF-8 text", value);
    return text;
}

std::optional<int> readWidth(const QCommandLineParser& parser)
{
    if (!parser.isSet("width"))
        return std::nullopt;
    const std::string value = narrowed(parser.value("width"));
    if (value == "all")
        return kWholeName;
    int width = 0;
    const char* const end = value.data() + value.size();
    const std::from_chars_result result = std::from_chars(value.data(), end, width);
    if (result.ec != std::errc() || result.ptr != end || width < 0)
        refuse("width", "a whole number from 0 to 2147483647, or all", value);
    return width;
}

std::vector<std::string> readLists(const QCommandLineParser& parser)
{
    std::vector<std::string> lists = narrowed(parser.values("list"));
    if (std::count(lists.begin(), lists.end(), std::string()) > 0)
        refuse("list", "the name of a file, or - for standard input", "");
    return lists;
}

Questions readQuestions(const QCommandLineParser& parser)
{
    Questions questions;
    for (const FlagOption& flag : kFlags)
        questions.*flag.flag = parser.isSet(flag.name);
    questions.extensions = readText(parser, "extension");
    questions.match = readText(parser, "match");
    questions.width = readWidth(parser);
    return questions;
}

Form readForm(const QCommandLineParser& parser)
{
    Form chosen = Form::Table;
    for (const FormOption& form : kForms) {
        if (!parser.isSet(form.name))
            continue;
        if (chosen != Form::Table)
            throw ArgumentError("only one of --wide, --json and --csv can be had");
        chosen = form.form;
    }
    return chosen;
}

std::string joined(const std::vector<std::string>& headings)
{
    std::string text;
    for (const std::string& heading : headings)
        text += (text.empty() ? "" : ", ") + heading;
    return text;
}

std::vector<std::string> readColumns(const QCommandLineParser& parser, const Questions& questions)
{
    const std::vector<std::string> known = headingsFor(questions);
    std::vector<std::string> columns;
    std::istringstream value(narrowed(parser.value("columns")));
    for (std::string heading; std::getline(value, heading, ',');)
        columns.push_back(heading);
    if (columns.empty())
        columns.emplace_back();
    for (const std::string& heading : columns) {
        if (std::count(known.begin(), known.end(), heading) == 0)
            refuse("columns", "headings of " + joined(known) + " (others need their options)",
                   heading);
    }
    return columns;
}

std::vector<std::string> columnsFor(const QCommandLineParser& parser, const Arguments& arguments)
{
    if (parser.isSet("columns"))
        return readColumns(parser, arguments.questions);
    return arguments.form == Form::Table ? tableHeadingsFor(arguments.questions)
                                         : headingsFor(arguments.questions);
}

void readValues(Arguments& arguments, const QCommandLineParser& parser)
{
    arguments.names = narrowed(parser.positionalArguments());
    arguments.lists = readLists(parser);
    arguments.questions = readQuestions(parser);
    arguments.form = readForm(parser);
    arguments.columns = columnsFor(parser, arguments);
    if (arguments.names.empty() && arguments.lists.empty())
        throw ArgumentError("there is neither a name nor a list");
}

// Qt's sentence, as the beginning of a longer one.
std::string withoutPeriod(std::string text)
{
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

} // namespace

Arguments readArguments(int count, char** values)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    addOptions(parser);
    if (!parser.parse(widened(count, values)))
        throw ArgumentError(withoutPeriod(narrowed(parser.errorText())));
    Arguments arguments;
    arguments.help = parser.isSet("help");
    arguments.version = parser.isSet("version");
    if (!arguments.help && !arguments.version)
        readValues(arguments, parser);
    return arguments;
}
