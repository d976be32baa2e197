// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_REPORTPRINTER_H
#define NAMEINFO_REPORTPRINTER_H

#include "Columns.h"
#include "NameReport.h"
#include "Output.h"

#include <memory>
#include <string>
#include <vector>

// Prints rows as they come.
class ReportPrinter
{
public:
    ReportPrinter() = default;
    ReportPrinter(const ReportPrinter&) = delete;
    ReportPrinter& operator=(const ReportPrinter&) = delete;
    virtual ~ReportPrinter() = default;

    virtual void print(const Row& row) = 0;
    virtual void end() {}
};

using Columns = std::vector<std::string>;

// A table under its headings, whose longer cells are shortened or put everything out of line.
std::unique_ptr<ReportPrinter> shortTable(Output& output, const Columns& columns, Widths widths);
std::unique_ptr<ReportPrinter> wideTable(Output& output, const Columns& columns, Widths widths);

// A line for each answer, no wider than a room; an empty line between two names.
std::unique_ptr<ReportPrinter> blocks(Output& output, const Columns& columns, int room);

// A JSON array of objects, one a line.
std::unique_ptr<ReportPrinter> jsonArray(Output& output);

// RFC 4180's lines, the headings first.
std::unique_ptr<ReportPrinter> csvLines(Output& output, const Columns& columns);

#endif
