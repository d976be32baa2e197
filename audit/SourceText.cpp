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

bool endsLine(char ch)
{
    return ch == '\n' || ch == '\r';
}

} // namespace

std::string readSourceText(const std::string& path)
{
    return decoded(readTextFile(path));
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
