// SPDX-License-Identifier: MIT
#include "pathname/PathTypeLookup.h"

#include <KtQtBase/windows/Files.h>

#include "pathname/PathInternals.h"
#include "platform/Platform.h"
#include "string/WideBlock.h"

#include <cstring>

namespace {

bool holdsWildcard(const wchar_t* text, std::size_t length)
{
    using ktqtbase::WideBlock;
    ktqtbase::Found wildcard;
    std::size_t i = 0;
    for (; length - i >= WideBlock::kSize; i += WideBlock::kSize) {
        const WideBlock block(text + i);
        wildcard.add(block.placesOf(L'*'));
        wildcard.add(block.placesOf(L'?'));
    }
    for (; i < length; ++i)
        wildcard.add(text[i] == L'*' || text[i] == L'?');
    return wildcard.anywhere();
}

// The file that a function was loaded from, or an empty text.
const char* fileOf(const void* function)
{
    const char* fileName = "";
    ktqtbase::platform::moduleFileName(function, &fileName);
    return fileName;
}

} // namespace

namespace ktqtbase {

bool holdsWildcard(const CStdStr<wchar_t>& text)
{
    return ::holdsWildcard(text.data(), text.size());
}

bool isPattern(const CStdStr<wchar_t>& work, wchar_t separator)
{
    // Most names hold no wildcard anywhere, so that their last component need not be found.
    if (!holdsWildcard(work))
        return false;
    const std::size_t last = lastComponent(work, separator);
    return ::holdsWildcard(work.data() + last, work.size() - last);
}

bool findOwnGetFileAttributes()
{
    const char* const used = fileOf(reinterpret_cast<const void*>(&GetFileAttributes));
    const char* const own = fileOf(reinterpret_cast<const void*>(&findOwnGetFileAttributes));
    return std::strcmp(used, own) == 0;
}

unsigned int attributesByWideName(const CStdStr<wchar_t>& work, const CStdStr<wchar_t>* prefix)
{
    if (!prefix)
        return GetFileAttributes(work.c_str());
    CStdStr<wchar_t> text;
    text.reserve(prefix->size() + 1 + work.size());
    text.append(*prefix).append(1, kSlash).append(work);
    return GetFileAttributes(text.c_str());
}

} // namespace ktqtbase
