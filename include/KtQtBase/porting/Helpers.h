// SPDX-License-Identifier: MIT
//
// Small helpers that are macros or functions on Windows: numbers in pieces, results of COM, memory.
//
//     int height = MulDiv(points, resolution, 72);
//     if (FAILED(result))
//         ZeroMemory(buffer, sizeof(buffer));
//
// They are functions here, in the namespace KtPorting and, unless switched off, at global scope.
#ifndef KTQTBASE_PORTING_HELPERS_H
#define KTQTBASE_PORTING_HELPERS_H

#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Scalars.h>

#include <cstddef>
#include <cstring>
#include <limits>

#include <KtQtBase/porting/HostMacros.h> // sets the host's macros aside

namespace KtPorting {

// ---- Numbers -----------------------------------------------------------------------------------

// number * numerator / denominator, with 64 bits in between.
// Result: the nearest whole number, halves away from zero; -1 for a denominator of 0, and where the
// result does not fit.
//   10, 96, 72          => 13
//   1, 1, 2             => 1
//   -1, 1, 2            => -1
//   7, 1, 0             => -1
//   0x7FFFFFFF, 2, 1    => -1
constexpr int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    const long long product = static_cast<long long>(number) * numerator;
    const long long half = (denominator < 0 ? -1LL * denominator : denominator) / 2;
    const long long result = (product < 0 ? product - half : product + half) / denominator;
    // The brackets are for hosts with macros named min and max.
    const bool fits =
        result >= (std::numeric_limits<int>::min)() && result <= (std::numeric_limits<int>::max)();
    return fits ? static_cast<int>(result) : -1;
}

// Two bytes in a word, two words in a number; only the lower half of each argument is used.
//   MAKEWORD(0x34, 0x12)        => 0x1234
//   MAKELONG(0x5678, 0x1234)    => 0x12345678
//   MAKELRESULT(-1, -2)         => 0xFFFEFFFF, never negative
constexpr WORD MAKEWORD(long long low, long long high)
{
    return static_cast<WORD>((low & 0xFF) | (high & 0xFF) << 8);
}

constexpr LONG MAKELONG(long long low, long long high)
{
    return static_cast<LONG>((low & 0xFFFF) | (high & 0xFFFF) << 16);
}

constexpr LRESULT MAKELRESULT(long long low, long long high)
{
    return (low & 0xFFFF) | (high & 0xFFFF) << 16;
}

// The lower and the upper byte of a number's lower 16 bits.
//   0x1234  => LOBYTE 0x34, HIBYTE 0x12
constexpr BYTE LOBYTE(long long value)
{
    return static_cast<BYTE>(value & 0xFF);
}

constexpr BYTE HIBYTE(long long value)
{
    return static_cast<BYTE>(value >> 8 & 0xFF);
}

// A language and its variant as one number: 10 bits and 6 bits.
//   0x09, 0x01  => 0x0409
constexpr WORD MAKELANGID(long long primary, long long variant)
{
    return static_cast<WORD>((primary & 0xFFFF) | (variant & 0x3F) << 10);
}

// A resource's number in the place of its name; only the lower 16 bits are used. No function of
// this library takes one.
inline wchar_t* MAKEINTRESOURCEW(long long number)
{
    return reinterpret_cast<wchar_t*>(number & 0xFFFF);
}

inline wchar_t* MAKEINTRESOURCE(long long number)
{
    return MAKEINTRESOURCEW(number);
}

// A function's number in the place of its name. GetProcAddress finds nothing by it.
inline char* MAKEINTRESOURCEA(long long number)
{
    return reinterpret_cast<char*>(number & 0xFFFF);
}

// Whether a name is a number in fact.
inline bool IS_INTRESOURCE(const void* name)
{
    return reinterpret_cast<unsigned long long>(name) <= 0xFFFF;
}

// ---- Results of COM ----------------------------------------------------------------------------

// Whether a result is a success, which S_FALSE is, too, or a failure.
constexpr bool SUCCEEDED(HRESULT result)
{
    return result >= 0;
}

constexpr bool FAILED(HRESULT result)
{
    return result < 0;
}

// A result's parts: what happened, 16 bits, and who says so, 13 bits.
//   0x80070005  => HRESULT_CODE 5, HRESULT_FACILITY 7
constexpr int HRESULT_CODE(HRESULT result)
{
    return result & 0xFFFF;
}

constexpr int HRESULT_FACILITY(HRESULT result)
{
    return result >> 16 & 0x1FFF;
}

// A result from its parts.
//   severity    in: 1 for a failure, 0 for a success
//   1, 7, 5     => 0x80070005
constexpr HRESULT MAKE_HRESULT(long long severity, long long facility, long long code)
{
    return static_cast<HRESULT>(static_cast<DWORD>(severity) << 31 |
                                static_cast<DWORD>(facility) << 16 | static_cast<DWORD>(code));
}

// The result that stands for an error number. What is a result already, and 0, stay as they are.
//   ERROR_ACCESS_DENIED    => E_ACCESSDENIED
constexpr HRESULT HRESULT_FROM_WIN32(long long error)
{
    const auto result = static_cast<HRESULT>(static_cast<DWORD>(error));
    return result <= 0 ? result : MAKE_HRESULT(1, 7, HRESULT_CODE(result));
}

// ---- Memory ------------------------------------------------------------------------------------

// Fills or copies memory. CopyMemory's two places do not overlap, those of MoveMemory may.
inline void ZeroMemory(void* destination, std::size_t length)
{
    std::memset(destination, 0, length);
}

inline void FillMemory(void* destination, std::size_t length, BYTE value)
{
    std::memset(destination, value, length);
}

inline void CopyMemory(void* destination, const void* source, std::size_t length)
{
    std::memcpy(destination, source, length);
}

inline void MoveMemory(void* destination, const void* source, std::size_t length)
{
    std::memmove(destination, source, length);
}

// ---- Arrays and arguments ----------------------------------------------------------------------

// The number of an array's elements.
template<class T, std::size_t Count>
constexpr std::size_t ARRAYSIZE(const T (&)[Count])
{
    return Count;
}

template<class T, std::size_t Count>
constexpr std::size_t _countof(const T (&)[Count])
{
    return Count;
}

// Uses an argument, so that no compiler says that nobody does.
template<class T>
constexpr void UNREFERENCED_PARAMETER(const T&)
{}

} // namespace KtPorting

KTQTBASE_PORTING_USING(KtPorting, MulDiv);
KTQTBASE_PORTING_USING(KtPorting, MAKEWORD);
KTQTBASE_PORTING_USING(KtPorting, MAKELONG);
KTQTBASE_PORTING_USING(KtPorting, MAKELRESULT);
KTQTBASE_PORTING_USING(KtPorting, LOBYTE);
KTQTBASE_PORTING_USING(KtPorting, HIBYTE);
KTQTBASE_PORTING_USING(KtPorting, MAKELANGID);
KTQTBASE_PORTING_USING(KtPorting, MAKEINTRESOURCE);
KTQTBASE_PORTING_USING(KtPorting, MAKEINTRESOURCEA);
KTQTBASE_PORTING_USING(KtPorting, MAKEINTRESOURCEW);
KTQTBASE_PORTING_USING(KtPorting, IS_INTRESOURCE);
KTQTBASE_PORTING_USING(KtPorting, SUCCEEDED);
KTQTBASE_PORTING_USING(KtPorting, FAILED);
KTQTBASE_PORTING_USING(KtPorting, HRESULT_CODE);
KTQTBASE_PORTING_USING(KtPorting, HRESULT_FACILITY);
KTQTBASE_PORTING_USING(KtPorting, MAKE_HRESULT);
KTQTBASE_PORTING_USING(KtPorting, HRESULT_FROM_WIN32);
KTQTBASE_PORTING_USING(KtPorting, ZeroMemory);
KTQTBASE_PORTING_USING(KtPorting, FillMemory);
KTQTBASE_PORTING_USING(KtPorting, CopyMemory);
KTQTBASE_PORTING_USING(KtPorting, MoveMemory);
KTQTBASE_PORTING_USING(KtPorting, ARRAYSIZE);
KTQTBASE_PORTING_USING(KtPorting, _countof);
KTQTBASE_PORTING_USING(KtPorting, UNREFERENCED_PARAMETER);

// The failures that every COM interface knows, besides S_OK and S_FALSE.
KTQTBASE_PORTING_CONSTANT(E_NOTIMPL, HRESULT, 0x80004001U);      // not implemented
KTQTBASE_PORTING_CONSTANT(E_NOINTERFACE, HRESULT, 0x80004002U);  // no such interface
KTQTBASE_PORTING_CONSTANT(E_POINTER, HRESULT, 0x80004003U);      // a pointer that must not be null
KTQTBASE_PORTING_CONSTANT(E_ABORT, HRESULT, 0x80004004U);        // given up
KTQTBASE_PORTING_CONSTANT(E_FAIL, HRESULT, 0x80004005U);         // no reason told
KTQTBASE_PORTING_CONSTANT(E_PENDING, HRESULT, 0x8000000AU);      // not there yet
KTQTBASE_PORTING_CONSTANT(E_UNEXPECTED, HRESULT, 0x8000FFFFU);   // should never happen
KTQTBASE_PORTING_CONSTANT(E_ACCESSDENIED, HRESULT, 0x80070005U); // not allowed
KTQTBASE_PORTING_CONSTANT(E_HANDLE, HRESULT, 0x80070006U);       // a wrong handle
KTQTBASE_PORTING_CONSTANT(E_OUTOFMEMORY, HRESULT, 0x8007000EU);  // no memory
KTQTBASE_PORTING_CONSTANT(E_INVALIDARG, HRESULT, 0x80070057U);   // a wrong argument

#include <KtQtBase/porting/HostMacros.h> // gives them back

#endif
