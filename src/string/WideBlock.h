// SPDX-License-Identifier: MIT
//
// Eight wide characters at once, by instructions that every x86-64 processor has. Of a plain loop a
// compiler makes two to three times the code, for it may not narrow by saturation; and behind a
// system call each line of code is fetched anew, so that little code matters more than fast code.
#ifndef KTQTBASE_STRING_WIDEBLOCK_H
#define KTQTBASE_STRING_WIDEBLOCK_H

#include <cstddef>

#include <emmintrin.h>

namespace ktqtbase {

class WideBlock
{
public:
    static constexpr std::size_t kSize = 8;

    // text    in: kSize characters at least
    explicit WideBlock(const wchar_t* text)
        : m_first(load(text)), m_second(load(text + kSize / 2)),
          m_words(_mm_packs_epi32(m_first, m_second))
    {}

    // Writes the characters.
    void copyTo(wchar_t* text) const
    {
        store(text, m_first);
        store(text + kSize / 2, m_second);
    }

    // Writes kSize bytes, or units of UTF-16, which are the same text where it is ASCII.
    void narrowTo(char* text) const
    {
        const __m128i bytes = _mm_packus_epi16(m_words, m_words);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(text), bytes);
    }

    void narrowTo(char16_t* text) const
    {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(text), m_words);
    }

    // Where an ASCII character stands, for Found.
    __m128i placesOf(wchar_t ch) const
    {
        return _mm_cmpeq_epi16(m_words, _mm_set1_epi16(static_cast<short>(ch)));
    }

    // Where a character stands that is not ASCII, for Found.
    __m128i placesOfOthers() const
    {
        const __m128i isAbove = _mm_cmpgt_epi16(m_words, _mm_set1_epi16(0x7F));
        const __m128i isNegative = _mm_cmplt_epi16(m_words, _mm_setzero_si128());
        return _mm_or_si128(isAbove, isNegative);
    }

private:
    static __m128i load(const wchar_t* text)
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    }

    static void store(wchar_t* text, __m128i characters)
    {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(text), characters);
    }

    __m128i m_first;
    __m128i m_second;
    __m128i m_words; // each character in 16 bits, as the nearest value that these hold
};

// Whether something stands anywhere in a text that is looked at by blocks, and at its end by single
// characters.
class Found
{
public:
    void add(__m128i places) { m_places = _mm_or_si128(m_places, places); }
    void add(bool isFound) { m_isFound |= isFound; }

    bool anywhere() const { return m_isFound || _mm_movemask_epi8(m_places) != 0; }

private:
    __m128i m_places = _mm_setzero_si128();
    bool m_isFound = false;
};

} // namespace ktqtbase

#endif
