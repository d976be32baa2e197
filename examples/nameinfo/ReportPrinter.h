// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_REPORTPRINTER_H
#define NAMEINFO_REPORTPRINTER_H

#include "NameReport.h"

#include <ostream>

// Prints rows under their headings, each column as wide as its widest text. An answer that there is
// none of is a dash, an empty one a pair of quotes.
void printTable(std::ostream& out, const std::vector<Row>& rows);

// Prints rows as a JSON array of objects; an answer that there is none of is null.
void printJson(std::ostream& out, const std::vector<Row>& rows);

#endif
