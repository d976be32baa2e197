// SPDX-License-Identifier: MIT
//
// The text of a name that is parsed: found in what a host hands in, copied, and looked through.
#ifndef KTQTBASE_PATHNAME_NAMETEXT_H
#define KTQTBASE_PATHNAME_NAMETEXT_H

#include <KtQtBase/VolumeDescriptor.h>

#include "string/WhiteSpace.h"
#include "string/WideBlock.h"

#include <algorithm>
#include <cwchar>
#include <memory>

namespace ktqtbase {

using OwnedText = std::unique_ptr<CStdStr<wchar_t>>;

inline bool isQuoted(const TextRange& text)
{
    return text.size() >= 2 && *text.begin == kDoubleQuote && text.end[-1] == kDoubleQuote;
}

// A name without its quotes and the blanks around and inside them, found in place.
inline TextRange bareName(const wchar_t* name)
{
    const WhiteSpace isSpace;
    const TextRange text = trimmed({name, name + std::wcslen(name)}, isSpace);
    return isQuoted(text) ? trimmed({text.begin + 1, text.end - 1}, isSpace) : text;
}

// Which of the characters that a parse has to know of a name holds; a drive's colon is none.
struct NameMarks
{
    bool colon;
    bool backslash;
    bool wildcard;
};

// Copies a text and looks for its marks on the way: at the length of a usual name each call of a
// search or a copy costs as much again. The two may overlap where out lies first. The marks are
// written out, since the exported constants would be fetched for each name.
inline NameMarks copyAndMark(TextRange text, wchar_t* out)
{
    Found colon;
    Found backslash;
    Found wildcard;
    for (; text.size() >= WideBlock::kSize; text.begin += WideBlock::kSize) {
        const WideBlock block(text.begin);
        colon.add(block.placesOf(L':'));
        backslash.add(block.placesOf(L'\\'));
        wildcard.add(block.placesOf(L'*'));
        wildcard.add(block.placesOf(L'?'));
        block.copyTo(out);
        out += WideBlock::kSize;
    }
    for (; text.size() > 0; ++text.begin) {
        colon.add(*text.begin == L':');
        backslash.add(*text.begin == L'\\');
        wildcard.add(*text.begin == L'*' || *text.begin == L'?');
        *out++ = *text.begin;
    }
    return {colon.anywhere(), backslash.anywhere(), wildcard.anywhere()};
}

// How many characters of a name may be a drive, whose colon a sound name may hold.
inline std::size_t driveLength(const TextRange& name)
{
    const bool mayBeDrive =
        name.size() > 1 && name.begin[1] == L':' && *name.begin != L':' && *name.begin != L'\\';
    return mayBeDrive ? 2 : 0;
}

// Copies a name into the string of the parse before, where there is one: to fill a string costs
// less than to free it and to get another. The name may lie in that string.
inline NameMarks fill(OwnedText& text, const TextRange& name)
{
    if (!text) {
        text = std::make_unique<CStdStr<wchar_t>>();
        // And room for the separator that AppendSlash puts behind a folder.
        text->reserve(name.size() + 1);
    }
    // A string in which the name lies is never the shorter one, and its end is cut off last.
    if (text->size() < name.size())
        text->resize(name.size());
    const std::size_t drive = driveLength(name);
    wchar_t* const out = &(*text)[0];
    std::copy(name.begin, name.begin + drive, out);
    const NameMarks marks = copyAndMark({name.begin + drive, name.end}, out + drive);
    if (text->size() > name.size())
        text->resize(name.size());
    return marks;
}

} // namespace ktqtbase

#endif
