// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_COMPLAINTS_H
#define NAMEINFO_COMPLAINTS_H

#include "Output.h"
#include "Progress.h"

#include <string>

// Writes a line to standard error. What a terminal would take for a command becomes a question
// mark.
void complain(std::string text);

// What is said of names and lists that cannot be read, between the answers.
class Complaints
{
public:
    Complaints(Output& output, Progress& progress) : m_output(output), m_progress(progress) {}

    void add(const std::string& text);
    bool isEmpty() const { return m_isEmpty; }

private:
    Output& m_output;
    Progress& m_progress;
    bool m_isEmpty = true;
};

#endif
