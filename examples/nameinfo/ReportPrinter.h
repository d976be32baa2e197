// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_REPORTPRINTER_H
#define NAMEINFO_REPORTPRINTER_H

#include "NameReport.h"

#include <ostream>

// Prints rows under their headings, each column as wide as its widest text. A missing answer is a
// dash, an empty one a pair of quotes.
void printTable(std::ostream& out, const std::vector<Row>& rows);

// Prints rows as a JSON array of objects; a missing answer is null.
void printJson(std::ostream& out, const std::vector<Row>& rows);

#endif
