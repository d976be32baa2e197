// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_ARGUMENTS_H
#define NAMEINFO_ARGUMENTS_H

#include "NameReport.h"

#include <stdexcept>
#include <string>
#include <vector>

enum class Form
{
    Table,
    WideTable,
    Json,
    Csv
};

// The arguments of the command line.
struct Arguments
{
    std::vector<std::string> names; // any bytes
    std::vector<std::string> lists;
    Questions questions;
    std::vector<std::string> columns; // the headings to show
    Form form = Form::Table;
    bool help = false;
    bool version = false;
};

// A command line that is not understood; the text says why.
class ArgumentError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Throws an ArgumentError.
Arguments readArguments(int count, char** values);

#endif
