// SPDX-License-Identifier: MIT
//
// Wide text to the multibyte text of the current LC_CTYPE and back. Every conversion of the library
// that libc does passes through here, so that a text that does not convert is met in one place.
#ifndef KTQTBASE_STRING_TEXTCONVERSION_H
#define KTQTBASE_STRING_TEXTCONVERSION_H

#include "string/TextRoom.h"

#include <cstddef>

namespace ktqtbase {

// Narrows ASCII text, which is the same bytes in every LC_CTYPE, and the same units in UTF-16. For
// a usual file name the C library's conversion costs more than the system call that follows it.
//   wide      in: the text, of so many characters
//   narrow    out: as many bytes (char) or units (char16_t), without a terminator
// Result: whether the text is ASCII; narrow is not to be used where it is not.
template<class Unit>
bool narrowAscii(const wchar_t* wide, std::size_t length, Unit* narrow);

// A wide text in multibyte form, or none where the text is null or does not convert.
class NarrowText
{
public:
    explicit NarrowText(const wchar_t* wide);
    NarrowText(const NarrowText&) = delete;
    NarrowText& operator=(const NarrowText&) = delete;

    bool converted() const { return m_text; }

    // The terminated text and its length in bytes. Only where converted() is true.
    char* data() { return m_text; }
    const char* c_str() const { return m_text; }
    std::size_t length() const { return m_length; }

private:
    void convert(const wchar_t* wide, std::size_t size);

    char* m_text = nullptr;
    std::size_t m_length = 0;
    TextRoom<char> m_room;
};

// Converts multibyte text to wide text, as mbstowcs does: no terminator is written where the text
// fills the whole area.
//   narrow    in: the text, zero-terminated
//   wide      out: the text; null writes nothing
//   size      in: its room in characters
// Result: false where a byte does not convert; wide then holds what lies before it, terminated.
bool widen(const char* narrow, wchar_t* wide, std::size_t size);

// Sets the process's LC_CTYPE to plain UTF-8, for good.
void useUtf8Locale();

} // namespace ktqtbase

#endif
