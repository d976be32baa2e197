// SPDX-License-Identifier: MIT
#include "Output.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int kUsualWidth = 80;
constexpr int kLargestWidth = 10000;

void check(bool isDone)
{
    if (!isDone)
        throw std::system_error(errno, std::generic_category(), "standard output");
}

int widthInEnvironment()
{
    const char* const text = std::getenv("COLUMNS");
    int width = 0;
    if (text)
        std::from_chars(text, text + std::strlen(text), width);
    return width;
}

} // namespace

Output::Output()
{
    check(fcntl(STDOUT_FILENO, F_GETFD) != -1);
}

void Output::write(std::string_view text)
{
    check(std::fwrite(text.data(), 1, text.size(), stdout) == text.size());
}

void Output::flush()
{
    check(std::fflush(stdout) == 0);
}

void Output::close()
{
    check(std::fclose(stdout) == 0);
}

bool Output::isTerminal() const
{
    return isatty(STDOUT_FILENO) == 1;
}

int Output::width() const
{
    winsize size = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return std::min<int>(size.ws_col, kLargestWidth);
    const int width = widthInEnvironment();
    return width > 0 ? std::min(width, kLargestWidth) : kUsualWidth;
}
