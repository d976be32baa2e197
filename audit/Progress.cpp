// SPDX-License-Identifier: MIT
#include "Progress.h"

#include <cstdio>

#include <unistd.h>

namespace ktqtbase::audit {

Progress::Progress()
    : m_isTerminal(isatty(STDERR_FILENO) == 1), m_next(Clock::now() + std::chrono::seconds(2))
{}

Progress::~Progress()
{
    if (m_isShown)
        std::fputs("\r\033[K", stderr);
}

void Progress::next()
{
    ++m_done;
    show();
}

void Progress::show()
{
    if (!m_isTerminal || Clock::now() < m_next)
        return;
    m_next = Clock::now() + std::chrono::milliseconds(200);
    m_isShown = true;
    std::fprintf(stderr, "\r\033[K%zu of %zu files", m_done, m_total);
}

} // namespace ktqtbase::audit
