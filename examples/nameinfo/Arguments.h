// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_ARGUMENTS_H
#define NAMEINFO_ARGUMENTS_H

#include "NameReport.h"
#include "NameSource.h"

#include <optional>
#include <string>
#include <vector>

// The arguments of the command line.
struct Arguments
{
    NameSource source;
    Questions questions;
    std::vector<std::string> columns; // the headings to show; empty for all
    bool json = false;
    bool hasNames = false;
};

// Result: none if the command line is not understood, or has neither a name nor a list.
std::optional<Arguments> readArguments(int count, char** values);

#endif
