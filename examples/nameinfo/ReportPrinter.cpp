// SPDX-License-Identifier: MIT
#include "ReportPrinter.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <algorithm>
#include <cwchar>

namespace {

// A text as a terminal shows it, and the number of cells that it takes there.
struct Shown
{
    std::string bytes;
    int cells = 0;
};

Shown show(const std::optional<std::wstring>& text)
{
    if (!text)
        return {"-", 1};
    if (text->empty())
        return {"\"\"", 2};
    Shown shown;
    for (wchar_t ch : *text) {
        const int cells = wcwidth(ch);
        const QString visible = cells < 0 ? QStringLiteral("\\x%1").arg(int(ch), 2, 16, QChar('0'))
                                          : QString::fromWCharArray(&ch, 1);
        shown.bytes += visible.toStdString();
        shown.cells += cells < 0 ? static_cast<int>(visible.size()) : cells;
    }
    return shown;
}

using Line = std::vector<Shown>;

Line headings(const Row& row)
{
    Line line;
    for (const Cell& cell : row)
        line.push_back(
            {cell.heading, static_cast<int>(std::char_traits<char>::length(cell.heading))});
    return line;
}

Line answers(const Row& row)
{
    Line line;
    for (const Cell& cell : row)
        line.push_back(show(cell.text));
    return line;
}

std::vector<int> columnWidths(const std::vector<Line>& lines)
{
    std::vector<int> widths(lines.front().size(), 0);
    for (const Line& line : lines) {
        for (std::size_t column = 0; column < widths.size(); ++column)
            widths[column] = std::max(widths[column], line[column].cells);
    }
    return widths;
}

void printLine(std::ostream& out, const Line& line, const std::vector<int>& widths)
{
    for (std::size_t column = 0; column < line.size(); ++column) {
        out << line[column].bytes;
        if (column + 1 < line.size())
            out << std::string(static_cast<std::size_t>(widths[column] - line[column].cells + 2),
                               ' ');
    }
    out << '\n';
}

} // namespace

void printTable(std::ostream& out, const std::vector<Row>& rows)
{
    if (rows.empty())
        return;
    std::vector<Line> lines{headings(rows.front())};
    std::transform(rows.begin(), rows.end(), std::back_inserter(lines), answers);
    const std::vector<int> widths = columnWidths(lines);
    for (const Line& line : lines)
        printLine(out, line, widths);
}

void printJson(std::ostream& out, const std::vector<Row>& rows)
{
    QJsonArray array;
    for (const Row& row : rows) {
        QJsonObject object;
        for (const Cell& cell : row)
            object[cell.heading] =
                cell.text ? QJsonValue(QString::fromStdWString(*cell.text)) : QJsonValue();
        array.append(object);
    }
    out << QJsonDocument(array).toJson().constData();
}
