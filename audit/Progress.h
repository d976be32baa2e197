// SPDX-License-Identifier: MIT
//
// Tells somebody at a terminal how far a long audit is.
#ifndef KTQTBASE_AUDIT_PROGRESS_H
#define KTQTBASE_AUDIT_PROGRESS_H

#include <chrono>
#include <cstddef>

namespace ktqtbase::audit {

// Writes one line over and over again to standard error, if that is a terminal, from the third
// second on. The line is gone when the object is.
class Progress
{
public:
    Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    void setTotal(std::size_t total) { m_total = total; }
    void next();
    void show();

private:
    using Clock = std::chrono::steady_clock;

    bool m_isTerminal;
    bool m_isShown = false;
    std::size_t m_done = 0;
    std::size_t m_total = 0;
    Clock::time_point m_next;
};

} // namespace ktqtbase::audit

#endif
