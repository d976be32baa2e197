// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_COLUMNS_H
#define NAMEINFO_COLUMNS_H

#include "NameReport.h"

#include <optional>
#include <string>
#include <vector>

// How many cells of the terminal each column of a table takes.
using Widths = std::vector<int>;

// The widths of the headings alone.
Widths headingWidths(const std::vector<std::string>& columns);

// Makes the columns wide enough for a row.
void widen(Widths& widths, const Row& row);

// Widths for answers that nobody has seen yet: enough for the answers of a column that has only a
// few, and so much for one that shows names.
Widths assumedWidths(const std::vector<std::string>& columns, int nameWidth);

constexpr int kColumnGap = 2;

// Makes the widest columns narrower until all fit into a room, with the gaps between them.
// Result: none where a column would become too narrow.
std::optional<Widths> fitted(Widths widths, const std::vector<std::string>& columns, int room);

#endif
