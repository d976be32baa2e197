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

constexpr std::size_t kTextForControl = 20;
constexpr int kMostContinuedLines = 1000;
constexpr int kDeepestNumber = 10000;

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

// Not the ends of lines, tabs and the like, nor the end of a file of DOS and the escape character.
bool isControl(char ch)
{
    const auto byte = static_cast<unsigned char>(ch);
    return byte < 0x08 || (byte >= 0x0E && byte < 0x20 && byte != 0x1A && byte != 0x1B);
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

// Part of a number, or of what the lexer takes for one, at which it calls itself again.
bool goesDeeper(char ch)
{
    return std::strchr("+-'\\", ch) || static_cast<unsigned char>(ch) >= 0x80;
}

bool endsNumber(char ch)
{
    return std::strchr(" \t\v\f\r\n\"(),;", ch);
}

void checkNumbers(const std::string& text)
{
    int depth = 0;
    for (const char ch : text) {
        if (endsNumber(ch))
            depth = 0;
        else if (goesDeeper(ch) && ++depth > kDeepestNumber)
            throw std::runtime_error("a number that goes on for more than 10,000 characters");
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
    checkNumbers(text);
    return text;
}

bool isNoText(const std::string& text)
{
    const auto count = static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isControl));
    return text.find('\0') != std::string::npos || count > text.size() / kTextForControl;
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
