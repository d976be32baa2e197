// SPDX-License-Identifier: MIT
#include "SourceText.h"
#include "TextFile.h"

#include <llvm/ADT/ArrayRef.h>
#include <llvm/Support/ConvertUTF.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace ktqtbase::audit {

namespace {

constexpr int kMostContinuedLines = 1000;

std::string decoded(std::string text)
{
    const std::string mark = text.substr(0, 2);
    if (mark != "\xFF\xFE" && mark != "\xFE\xFF")
        return text;
    std::string utf8;
    if (!llvm::convertUTF16ToUTF8String(llvm::ArrayRef<char>(text.data(), text.size()), utf8))
        throw std::runtime_error("not UTF-16 text, though it begins with its mark");
    return utf8;
}

// Clang's lexer calls itself for each of several lines that have a backslash and nothing else, and
// at some depth crashes.
void checkContinuedLines(const std::string& text)
{
    const char* const end = text.data() + text.size();
    const char* place = text.data();
    int count = 0;
    for (;;) {
        const char* const backslash = std::find(place, end, '\\');
        if (backslash == end)
            return;
        const char* const next = behindContinuedLine(backslash);
        const bool goesOn = next != backslash;
        count = goesOn ? (backslash == place ? count : 0) + 1 : 0;
        if (count > kMostContinuedLines)
            throw std::runtime_error("more than 1,000 continued lines without anything in them");
        place = goesOn ? next : backslash + 1;
    }
}

bool endsLine(char ch)
{
    return ch == '\n' || ch == '\r';
}

} // namespace

std::string readSourceText(const std::string& path)
{
    std::string text = decoded(readTextFile(path));
    checkContinuedLines(text);
    return text;
}

const char* behindContinuedLine(const char* place)
{
    if (*place != '\\')
        return place;
    const char* const end = place + 1 + std::strspn(place + 1, " \t\v\f");
    if (!endsLine(*end))
        return place;
    return end + (endsLine(end[1]) && end[1] != *end ? 2 : 1);
}

} // namespace ktqtbase::audit
