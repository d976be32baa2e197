// SPDX-License-Identifier: MIT
#include "Complaints.h"

#include <cstdio>

void complain(std::string text)
{
    for (char& ch : text) {
        const auto byte = static_cast<unsigned char>(ch);
        if (byte < 0x20 || byte == 0x7F)
            ch = '?';
    }
    std::fprintf(stderr, "nameinfo: %s\n", text.c_str());
}

// The answers before it come first where both go to one place.
void Complaints::add(const std::string& text)
{
    m_output.flush();
    m_progress.hide();
    complain(text);
    m_isEmpty = false;
}
