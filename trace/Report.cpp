// SPDX-License-Identifier: MIT
#include "Report.h"

#include "Places.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <tuple>

namespace {

struct Function
{
    const char* name;
    const char* status;
    const char* result; // empty for one that works in its own way
};

constexpr Function kTraced[] = {
#define TRACED(index, symbol, name, status, result) {name, status, result},
#include "TracedFunctions.inc"
#undef TRACED
};

struct Row
{
    Function function;
    uint64_t calls;
    const trace::Caller* caller;
    trace::Place place;
};
using Rows = std::vector<Row>;

// ---- The rows ----------------------------------------------------------------------------------

// A constructor has two symbols and one row.
void add(const Row& row, Rows& rows)
{
    const auto same = std::find_if(rows.begin(), rows.end(), [&row](const Row& other) {
        return std::strcmp(other.function.name, row.function.name) == 0;
    });
    if (same == rows.end())
        rows.push_back(row);
    else
        same->calls += row.calls;
}

bool isEarlier(const Row& a, const Row& b)
{
    const auto key = [](const Row& row) {
        return std::make_tuple(std::strcmp(row.function.status, "inert") != 0, ~row.calls,
                               std::string(row.function.name));
    };
    return key(a) < key(b);
}

void findPlaces(Rows& rows)
{
    std::vector<const trace::Caller*> callers;
    for (const Row& row : rows)
        callers.push_back(row.caller);
    const std::vector<trace::Place> places = trace::placesOf(callers);
    for (size_t i = 0; i < rows.size(); ++i)
        rows[i].place = places[i];
}

Rows rowsOf(const trace::Record& record, const std::string& only)
{
    Rows rows;
    for (size_t i = 0; i < trace::kFunctions; ++i)
        if (record.counters[i].calls > 0 && (only.empty() || only == kTraced[i].status))
            add({kTraced[i], record.counters[i].calls, &record.callers[i], {}}, rows);
    std::sort(rows.begin(), rows.end(), isEarlier);
    findPlaces(rows);
    return rows;
}

// ---- As a table --------------------------------------------------------------------------------

std::string withoutFolder(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string offsetOf(const Row& row)
{
    char text[32];
    std::snprintf(text, sizeof(text), "0x%llx",
                  static_cast<unsigned long long>(row.caller->offset));
    return text;
}

std::string callerOf(const Row& row)
{
    const trace::Place& place = row.place;
    if (row.caller->module[0] == '\0')
        return "unknown";
    const std::string where = place.line > 0
                                  ? withoutFolder(place.file) + ':' + std::to_string(place.line)
                                  : withoutFolder(row.caller->module) + '+' + offsetOf(row);
    return place.function.empty() ? where : place.function + " (" + where + ')';
}

std::vector<std::string> cellsOf(const Row& row)
{
    const char* const result = row.function.result;
    return {row.function.name, std::to_string(row.calls), row.function.status,
            *result == '\0' ? "-" : result, callerOf(row)};
}

std::string padded(const std::string& cell, size_t width)
{
    return cell + std::string(width - cell.size() + 2, ' ');
}

std::string lined(const std::vector<std::vector<std::string>>& lines)
{
    std::string text;
    std::vector<size_t> widths(lines[0].size());
    for (const auto& cells : lines)
        for (size_t i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], cells[i].size());
    for (const auto& cells : lines) {
        for (size_t i = 0; i + 1 < cells.size(); ++i)
            text += padded(cells[i], widths[i]);
        text += cells.back() + '\n';
    }
    return text;
}

std::string reasonForNothing(const trace::Record& record, const trace::Run& run)
{
    if (record.processes == 0)
        return "ktqt-trace: the loader of " + run.program + " takes no other library\n";
    if (record.libraries == 0)
        return "ktqt-trace: " + run.program + " did not load " KTQTBASE_TRACE_LIBRARY "\n";
    return "ktqt-trace: " + run.program + " called none of the functions that are counted\n";
}

// ---- As JSON -----------------------------------------------------------------------------------

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

QJsonObject firstCallerOf(const Row& row)
{
    QJsonObject caller = {{"module", row.caller->module}, {"offset", text(offsetOf(row))}};
    if (!row.place.function.empty())
        caller["function"] = text(row.place.function);
    if (row.place.line > 0) {
        caller["file"] = text(row.place.file);
        caller["line"] = row.place.line;
    }
    return caller;
}

QJsonObject objectOf(const Row& row)
{
    return {{"name", row.function.name},
            {"calls", static_cast<qint64>(row.calls)},
            {"status", row.function.status},
            {"result", row.function.result},
            {"firstCaller", firstCallerOf(row)}};
}

} // namespace

std::string trace::tableOf(const Record& record, const Run& run, const std::string& only)
{
    const Rows rows = rowsOf(record, only);
    if (rows.empty())
        return reasonForNothing(record, run);
    std::vector<std::vector<std::string>> lines = {
        {"Function", "Calls", "Status", "Result", "First caller"}};
    for (const Row& row : rows)
        lines.push_back(cellsOf(row));
    return lined(lines);
}

std::string trace::jsonOf(const Record& record, const Run& run, const std::string& only)
{
    QJsonArray functions;
    for (const Row& row : rowsOf(record, only))
        functions.append(objectOf(row));
    return QJsonDocument(QJsonObject{{"program", text(run.program)},
                                     {"exitStatus", run.status},
                                     {"libraryLoaded", record.libraries > 0},
                                     {"functions", functions}})
        .toJson()
        .toStdString();
}
