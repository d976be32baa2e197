// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_OUTPUT_H
#define NAMEINFO_OUTPUT_H

#include <string_view>

// Standard output. What cannot be written is a std::system_error.
class Output
{
public:
    // Asks whether it is open, before a list is opened in its place.
    Output();

    void write(std::string_view text);
    void flush();

    // Some file systems tell that they are full no sooner than here.
    void close();

    bool isTerminal() const;

    // The columns of the terminal; what COLUMNS says where there is none, or 80.
    int width() const;
};

#endif
