// SPDX-License-Identifier: MIT
//
// Locales for one scope, put back at its end, so that no test sees another's.
#ifndef KTQTBASE_TESTS_SUPPORT_LOCALEGUARDS_H
#define KTQTBASE_TESTS_SUPPORT_LOCALEGUARDS_H

#include <clocale>
#include <locale>
#include <stdexcept>
#include <string>

namespace testsupport {

// The C library's LC_CTYPE.
class ProcessCType
{
public:
    explicit ProcessCType(const char* name) : m_before(std::setlocale(LC_CTYPE, nullptr))
    {
        if (!std::setlocale(LC_CTYPE, name))
            throw std::runtime_error("no such locale");
    }
    ~ProcessCType() { std::setlocale(LC_CTYPE, m_before.c_str()); }
    ProcessCType(const ProcessCType&) = delete;
    ProcessCType& operator=(const ProcessCType&) = delete;

private:
    std::string m_before;
};

// The global std::locale.
class GlobalLocale
{
public:
    explicit GlobalLocale(const std::locale& locale) : m_before(std::locale::global(locale)) {}
    ~GlobalLocale() { std::locale::global(m_before); }
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;

private:
    std::locale m_before;
};

// Character classes that no real locale has: only 'x' is white space, 'a' and '@' are each other's
// other case, and no other character has one.
class OddCharacterClasses : public std::ctype<wchar_t>
{
protected:
    bool do_is(mask wanted, wchar_t ch) const override { return (wanted & space) && ch == L'x'; }

    const wchar_t* do_scan_not(mask wanted, const wchar_t* low, const wchar_t* high) const override
    {
        while (low != high && do_is(wanted, *low))
            ++low;
        return low;
    }

    wchar_t do_toupper(wchar_t ch) const override { return ch == L'a' ? L'@' : ch; }
    wchar_t do_tolower(wchar_t ch) const override { return ch == L'@' ? L'a' : ch; }

    const wchar_t* do_toupper(wchar_t* low, const wchar_t* high) const override
    {
        for (; low != high; ++low)
            *low = do_toupper(*low);
        return high;
    }

    const wchar_t* do_tolower(wchar_t* low, const wchar_t* high) const override
    {
        for (; low != high; ++low)
            *low = do_tolower(*low);
        return high;
    }
};

inline std::locale oddLocale()
{
    return std::locale(std::locale::classic(), new OddCharacterClasses);
}

} // namespace testsupport

#endif
