// SPDX-License-Identifier: MIT
#include "Progress.h"

#include <cstdio>

#include <unistd.h>

Progress::Progress()
    : m_isWanted(isatty(STDERR_FILENO) == 1), m_next(Clock::now() + std::chrono::seconds(2))
{}

void Progress::start(const char* done)
{
    m_done = done;
    m_count = 0;
}

void Progress::next()
{
    ++m_count;
    if (!m_isWanted || Clock::now() < m_next)
        return;
    m_next = Clock::now() + std::chrono::milliseconds(200);
    m_isShown = true;
    show();
}

void Progress::show() const
{
    std::fprintf(stderr, "\r\033[K%zu names %s", m_count, m_done);
}

void Progress::hide()
{
    if (m_isShown)
        std::fputs("\r\033[K", stderr);
    m_isShown = false;
}

void Progress::stop()
{
    hide();
    m_isWanted = false;
}
