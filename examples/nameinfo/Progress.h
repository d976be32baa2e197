// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_PROGRESS_H
#define NAMEINFO_PROGRESS_H

#include <chrono>
#include <cstddef>

// Tells somebody at a terminal how far a long run is. Writes one line over and over again to
// standard error, if that is a terminal, from the third second on. The line is gone when the object
// is.
class Progress
{
public:
    Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { hide(); }

    // Begins something with names; what is done with them is a word such as "measured".
    void start(const char* done);
    void next();

    // Makes room for another line.
    void hide();

    // For good.
    void stop();

private:
    using Clock = std::chrono::steady_clock;

    void show() const;

    bool m_isWanted;
    bool m_isShown = false;
    const char* m_done = "";
    std::size_t m_count = 0;
    Clock::time_point m_next;
};

#endif
