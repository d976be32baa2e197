// SPDX-License-Identifier: MIT
//
// The process's locales as a test wants them, put back when it ends.
#ifndef KTQTBASE_TESTS_SUPPORT_LOCALESCOPE_H
#define KTQTBASE_TESTS_SUPPORT_LOCALESCOPE_H

#include <clocale>
#include <locale>
#include <stdexcept>
#include <string>

namespace ktqtbase::test {

// Sets one category of the C library.
class LocaleScope
{
public:
    explicit LocaleScope(const char* name, int category = LC_ALL)
        : m_before(std::setlocale(LC_ALL, nullptr))
    {
        if (!std::setlocale(category, name))
            throw std::runtime_error("no such locale");
    }
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;
    ~LocaleScope() { std::setlocale(LC_ALL, m_before.c_str()); }

private:
    std::string m_before;
};

// Sets the global std::locale.
class GlobalLocaleScope
{
public:
    explicit GlobalLocaleScope(const std::locale& locale) : m_before(std::locale::global(locale)) {}
    GlobalLocaleScope(const GlobalLocaleScope&) = delete;
    GlobalLocaleScope& operator=(const GlobalLocaleScope&) = delete;
    ~GlobalLocaleScope() { std::locale::global(m_before); }

private:
    std::locale m_before;
};

// Takes the underscore for white space and nothing else.
class UnderscoreIsSpace : public std::ctype<wchar_t>
{
    bool do_is(mask, wchar_t ch) const override { return ch == L'_'; }
    const wchar_t* do_scan_not(mask, const wchar_t* low, const wchar_t* high) const override
    {
        while (low != high && *low == L'_')
            ++low;
        return low;
    }
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

} // namespace ktqtbase::test

#endif
