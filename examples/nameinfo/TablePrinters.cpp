// SPDX-License-Identifier: MIT
#include "ReportPrinter.h"
#include "ShownText.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int kUnlimited = std::numeric_limits<int>::max();
constexpr int kLeastAnswer = 12; // GetDisplayName takes no less

std::string spaces(int count)
{
    return std::string(static_cast<std::size_t>(std::max(count, 0)), ' ');
}

class TablePrinter : public ReportPrinter
{
public:
    TablePrinter(Output& output, Columns columns, Widths widths, bool isShortening)
        : m_output(output), m_columns(std::move(columns)), m_widths(std::move(widths)),
          m_isShortening(isShortening)
    {}

    void print(const Row& row) override
    {
        printHeadings();
        for (std::size_t i = 0; i < row.size(); ++i)
            printCell(show(row[i].text, m_isShortening ? m_widths[i] : kUnlimited), i);
    }

private:
    void printHeadings()
    {
        if (m_hasHeadings)
            return;
        m_hasHeadings = true;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            printCell({m_columns[i], static_cast<int>(m_columns[i].size())}, i);
    }

    void printCell(const ShownText& text, std::size_t column)
    {
        const bool isLast = column + 1 == m_columns.size();
        m_output.write(text.bytes);
        m_output.write(isLast ? "\n" : spaces(m_widths[column] - text.cells) + spaces(kColumnGap));
    }

    Output& m_output;
    Columns m_columns;
    Widths m_widths;
    bool m_isShortening;
    bool m_hasHeadings = false;
};

class BlockPrinter : public ReportPrinter
{
public:
    BlockPrinter(Output& output, const Columns& columns, int room) : m_output(output)
    {
        for (const int width : headingWidths(columns))
            m_labelWidth = std::max(m_labelWidth, width + 2);
        m_room = std::max(room - m_labelWidth, kLeastAnswer);
    }

    void print(const Row& row) override
    {
        if (!m_isFirst)
            m_output.write("\n");
        m_isFirst = false;
        for (const Cell& cell : row)
            printAnswer(std::string(cell.heading) + ":", show(cell.text, m_room));
    }

private:
    void printAnswer(const std::string& label, const ShownText& answer)
    {
        const int gap = m_labelWidth - static_cast<int>(label.size());
        m_output.write(label + spaces(gap) + answer.bytes + "\n");
    }

    Output& m_output;
    int m_labelWidth = 0;
    int m_room = 0;
    bool m_isFirst = true;
};

} // namespace

std::unique_ptr<ReportPrinter> shortTable(Output& output, const Columns& columns, Widths widths)
{
    return std::make_unique<TablePrinter>(output, columns, std::move(widths), true);
}

std::unique_ptr<ReportPrinter> wideTable(Output& output, const Columns& columns, Widths widths)
{
    return std::make_unique<TablePrinter>(output, columns, std::move(widths), false);
}

std::unique_ptr<ReportPrinter> blocks(Output& output, const Columns& columns, int room)
{
    return std::make_unique<BlockPrinter>(output, columns, room);
}
