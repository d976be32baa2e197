// SPDX-License-Identifier: MIT
//
// A terminal that a test looks at.
#ifndef KTQTBASE_TESTS_SUPPORT_TERMINAL_H
#define KTQTBASE_TESTS_SUPPORT_TERMINAL_H

#include <string>

#include <cstdlib>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

// A program may write some 4,000 characters to it before somebody takes its text.
class Terminal
{
public:
    explicit Terminal(unsigned short width) : m_file(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        grantpt(m_file);
        unlockpt(m_file);
        const winsize size = {24, width, 0, 0};
        ioctl(m_file, TIOCSWINSZ, &size);
        m_kept = open(name(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal()
    {
        close(m_kept);
        close(m_file);
    }

    const char* name() const { return ptsname(m_file); }

    // What was written since the last time. What is on its way is waited for: it comes before a mark
    // that is sent behind it.
    std::string text() const
    {
        std::string text;
        char byte = kMark;
        if (write(m_kept, &byte, 1) != 1)
            return text;
        while (read(m_file, &byte, 1) == 1 && byte != kMark)
            text += byte;
        return text;
    }

private:
    static constexpr char kMark = '\x01';

    int m_file;
    int m_kept = -1; // what was written is gone when nobody has the terminal open
};

#endif
