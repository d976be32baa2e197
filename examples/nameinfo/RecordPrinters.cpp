// SPDX-License-Identifier: MIT
//
// The forms that other programs read.
#include "QtText.h"
#include "ReportPrinter.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

class JsonPrinter : public ReportPrinter
{
public:
    explicit JsonPrinter(Output& output) : m_output(output) { m_output.write("["); }

    void print(const Row& row) override
    {
        QJsonObject object;
        for (const Cell& cell : row)
            object[cell.heading] = cell.text ? QJsonValue(toQt(*cell.text)) : QJsonValue();
        m_output.write(m_isFirst ? "\n" : ",\n");
        m_output.write(QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString());
        m_isFirst = false;
    }

    void end() override { m_output.write("\n]\n"); }

private:
    Output& m_output;
    bool m_isFirst = true;
};

std::string quoted(const std::string& text)
{
    if (!text.empty() && text.find_first_of(",\"\r\n") == text.npos)
        return text;
    std::string quoted = "\"";
    for (const char ch : text)
        quoted.append(ch == '"' ? 2 : 1, ch);
    return quoted + "\"";
}

std::string csvCell(const Cell& cell)
{
    return cell.text ? quoted(toQt(*cell.text).toStdString()) : std::string();
}

class CsvPrinter : public ReportPrinter
{
public:
    CsvPrinter(Output& output, const Columns& columns) : m_output(output)
    {
        for (const std::string& heading : columns)
            add(heading);
        endLine();
    }

    void print(const Row& row) override
    {
        for (const Cell& cell : row)
            add(csvCell(cell));
        endLine();
    }

private:
    void add(const std::string& cell)
    {
        m_line += m_separator + cell;
        m_separator = ",";
    }

    void endLine()
    {
        m_output.write(m_line + "\r\n");
        m_line.clear();
        m_separator = "";
    }

    Output& m_output;
    std::string m_line;
    const char* m_separator = "";
};

} // namespace

std::unique_ptr<ReportPrinter> jsonArray(Output& output)
{
    return std::make_unique<JsonPrinter>(output);
}

std::unique_ptr<ReportPrinter> csvLines(Output& output, const Columns& columns)
{
    return std::make_unique<CsvPrinter>(output, columns);
}
