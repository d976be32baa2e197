// SPDX-License-Identifier: MIT
//
// Reads a list of names as nameinfo does and prints the answers; plain second readings tell which
// names the list holds, and what was printed of them.
//
// The first byte of an input chooses the form and the questions, the others are the list.
#include "support/DrawnDisk.h"
#include "support/Expect.h"
#include "support/MemoryFile.h"
#include "support/PlainFormats.h"
#include "support/PlainUtf8.h"

#include "examples/nameinfo/LineReader.h"
#include "examples/nameinfo/NameSource.h"
#include "examples/nameinfo/ReportPrinter.h"

#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <cwchar>

using namespace ktqtbase::fuzz;

namespace {

using Name = std::optional<std::wstring>; // nothing for what is no name
using Names = std::vector<Name>;
using Rows = std::vector<Row>;

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr int kRoom = 80;
constexpr std::size_t kLongestShown = 24; // of a list that is shown as a terminal has it
constexpr std::size_t kMostRows = 2;      // since each takes as long as the reading of many names

std::string& printed()
{
    static std::string text;
    return text;
}

// What the first byte means.
struct Choice
{
    explicit Choice(unsigned byte)
        : form(byte & 3), asksMuch(byte & 4), isGiven(byte & 8), isReadAhead(byte & 16),
          isLong(byte == 255)
    {}

    unsigned form;
    bool asksMuch;
    bool isGiven; // the list's first line as a name of the command line, too
    bool isReadAhead;
    bool isLong; // a name of about the longest length in front, which takes long to read
};

Questions questionsOf(const Choice& choice)
{
    Questions questions;
    if (choice.asksMuch) {
        questions.parent = questions.unique = questions.status = questions.validate = true;
        questions.extensions = L"txt;c;";
        questions.width = 20;
        questions.match = L"C:\\a";
    }
    return questions;
}

// ---- The second reading of the names -----------------------------------------------------------

Name nameOf(const std::string& bytes)
{
    const bool isTooLong = bytes.size() > LineReader::kLongestLine;
    return isTooLong || bytes.find('\0') != bytes.npos ? std::nullopt : plain::decode(bytes);
}

// A carriage return belongs to a line's end; without an end it belongs to the name.
std::vector<std::string> linesOf(const std::string& list)
{
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = std::min(list.find('\n', at), list.size());
        lines.push_back(list.substr(at, end - at));
        if (end < list.size() && end > at && list[end - 1] == '\r')
            lines.back().pop_back();
        at = end + 1;
    }
    return lines;
}

Names namesOf(const std::vector<std::string>& given, const std::string& list)
{
    Names names;
    std::vector<std::string> lines = linesOf(list);
    if (!lines.empty() && lines[0].substr(0, 3) == kByteOrderMark)
        lines[0].erase(0, 3);
    for (const std::string& name : given)
        names.push_back(plain::decode(name));
    for (const std::string& line : lines)
        names.push_back(nameOf(line));
    return names;
}

// ---- The first reading, and what is printed ----------------------------------------------------

Names readNames(const NameSource& source)
{
    Names names;
    source.read([&](const std::wstring& name) { names.emplace_back(name); },
                [&](const std::string&) { names.emplace_back(); });
    return names;
}

void checkReadingAhead(const NameSource& source, Names names)
{
    Names ahead;
    source.readAhead([&](const std::wstring& name) { ahead.emplace_back(name); });
    names.erase(std::remove(names.begin(), names.end(), Name()), names.end());
    expect("reading ahead finds the same names", ahead == names);
}

Rows rowsOf(const Names& names, const Questions& questions)
{
    Rows rows;
    for (const Name& name : names) {
        if (name && rows.size() < kMostRows)
            rows.push_back(describe(*name, questions));
    }
    return rows;
}

const Columns& columnsFor(const Questions& questions)
{
    static const Columns few = headingsFor(Questions());
    static const Columns many = headingsFor(questionsOf(Choice(4)));
    return questions.parent ? many : few;
}

void print(ReportPrinter& printer, const Rows& rows)
{
    for (const Row& row : rows)
        printer.print(row);
    printer.end();
}

// ---- The second reading of what was printed ----------------------------------------------------

void checkJson(const Rows& rows)
{
    const auto objects = plain::readJson(printed());
    expect("the output is JSON", objects.has_value());
    expect("there is an object for each name", objects->size() == rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        expect("an object holds each answer once", (*objects)[i].size() == rows[i].size());
        for (const Cell& cell : rows[i]) {
            const auto found = (*objects)[i].find(cell.heading);
            expect("an object holds each answer", found != (*objects)[i].end());
            expect("JSON says what the answer is", found->second == cell.text);
        }
    }
}

void checkCsv(const Rows& rows, const Columns& columns)
{
    const auto lines = plain::readCsv(printed());
    expect("the output is CSV", lines.has_value());
    expect("there is a line for each name and the headings", lines->size() == rows.size() + 1);
    expect("the headings are the columns", lines->front() == columns);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const plain::CsvLine& line = (*lines)[i + 1];
        expect("a line has a cell for each column", line.size() == columns.size());
        for (std::size_t k = 0; k < line.size(); ++k)
            expect("CSV says what the answer is",
                   plain::decode(line[k]) == rows[i][k].text.value_or(L""));
    }
}

int cellsOf(const std::wstring& line)
{
    int cells = 0;
    for (const wchar_t ch : line) {
        expect("a terminal gets nothing that it cannot show", wcwidth(ch) >= 0);
        cells += wcwidth(ch);
    }
    return cells;
}

void checkLines(std::size_t expected)
{
    const std::vector<std::string> lines = linesOf(printed());
    expect("there are as many lines as answers ask for", lines.size() == expected);
    for (const std::string& line : lines) {
        const auto text = plain::decode(line);
        expect("the output is UTF-8", text.has_value());
        expect("no line is wider than the room", cellsOf(*text) <= kRoom);
    }
}

void checkTable(const Rows& rows, const Columns& columns, Output& output)
{
    Widths widths = headingWidths(columns);
    for (const Row& row : rows)
        widen(widths, row);
    const auto fitting = fitted(widths, columns, kRoom);
    if (fitting) {
        print(*shortTable(output, columns, *fitting), rows);
        checkLines(rows.empty() ? 0 : rows.size() + 1);
    }
}

void checkBlocks(const Rows& rows, const Columns& columns, Output& output)
{
    print(*blocks(output, columns, kRoom), rows);
    checkLines(rows.empty() ? 0 : rows.size() * (columns.size() + 1) - 1);
}

void checkForm(unsigned form, const Rows& rows, const Columns& columns)
{
    Output output;
    if (form == 0) {
        print(*jsonArray(output), rows);
        checkJson(rows);
    } else if (form == 1) {
        print(*csvLines(output, columns), rows);
        checkCsv(rows, columns);
    } else if (form == 2) {
        checkTable(rows, columns, output);
    } else {
        checkBlocks(rows, columns, output);
    }
}

} // namespace

// nameinfo's standard output, kept in memory.
Output::Output()
{
    printed().clear();
}

void Output::write(std::string_view text)
{
    printed() += text;
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    expect("there is UTF-8", std::setlocale(LC_CTYPE, "C.UTF-8"));
    for (const wchar_t* drive : {L"C:", L"D:"})
        volumeList.append(new CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(drive)));
    ktuiSetCurrentDirPrefix();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const MemoryFile file;
    if (size == 0)
        return -1;
    const Choice choice(data[0]);
    std::string list(reinterpret_cast<const char*>(data) + 1, size - 1);
    std::vector<std::string> given;
    if (choice.isGiven)
        given.push_back(list.substr(0, list.find_first_of(std::string("\n\0", 2))));
    if (choice.isLong)
        list.insert(0, LineReader::kLongestLine - size / 2, 'x');
    file.setContent(list);
    const NameSource source(given, {file.name()});
    const Names names = readNames(source);
    expect("both readings find the same names", names == namesOf(given, list));
    if (choice.isReadAhead)
        checkReadingAhead(source, names);
    // What the library makes of a name of its greatest length takes long and prints no other way.
    const Questions questions = questionsOf(choice);
    if (!choice.isLong)
        checkForm(list.size() > kLongestShown ? choice.form & 1 : choice.form,
                  rowsOf(names, questions), columnsFor(questions));
    return 0;
}
