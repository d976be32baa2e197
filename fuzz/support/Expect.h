// SPDX-License-Identifier: MIT
//
// What ends a fuzzer's run: a result that differs from the one of the plain reading.
#ifndef KTQTBASE_FUZZ_SUPPORT_EXPECT_H
#define KTQTBASE_FUZZ_SUPPORT_EXPECT_H

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <type_traits>

namespace ktqtbase::fuzz {

// Texts as the source of a test has them, so that a row can be made of them.
template<class Ch>
void print(const std::basic_string<Ch>& text)
{
    std::cerr << '"';
    for (const Ch ch : text) {
        const auto code = static_cast<std::make_unsigned_t<Ch>>(ch);
        if (code >= 0x20 && code < 0x7F && ch != Ch('"') && ch != Ch('\\'))
            std::cerr << static_cast<char>(ch);
        else
            std::cerr << "\\x" << std::hex << +code << std::dec << "\" \"";
    }
    std::cerr << "\" of " << text.size();
}

inline void print(const void* pointer)
{
    std::cerr << pointer;
}

inline void print(long long number)
{
    std::cerr << number;
}

inline void print(int number)
{
    std::cerr << number;
}

inline void print(unsigned long number)
{
    std::cerr << number;
}

inline void print(unsigned int number)
{
    std::cerr << number;
}

inline void print(bool truth)
{
    std::cerr << (truth ? "true" : "false");
}

inline void print(wchar_t ch)
{
    print(std::wstring(1, ch));
}

template<class T>
void print(const std::optional<T>& value)
{
    if (value)
        print(*value);
    else
        std::cerr << "none";
}

// Ends the process where two values differ.
template<class T>
void expectSame(const char* what, const T& got, const std::common_type_t<T>& expected)
{
    if (got == expected)
        return;
    std::cerr << what << " is ";
    print(got);
    std::cerr << "\nand not ";
    print(expected);
    std::cerr << '\n';
    std::abort();
}

inline void expect(const char* what, bool holds)
{
    expectSame(what, holds, true);
}

} // namespace ktqtbase::fuzz

#endif
