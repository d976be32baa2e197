// SPDX-License-Identifier: MIT
//
// The wide string's own operations beside std::wstring and one call of the ctype facet over the
// whole range.
#include "support/Rows.h"

#include <KtQtBase/WideString.h>

#include <cstddef>
#include <locale>

namespace {

using bench::Row;
using Facet = std::ctype<wchar_t>;

const std::size_t kLengths[] = {20, 60, 250};

CStdStr<wchar_t> letters(std::size_t length)
{
    CStdStr<wchar_t> text;
    for (std::size_t i = 0; i < length; ++i)
        text.push_back(static_cast<wchar_t>((i % 2 ? L'a' : L'A') + i % 25));
    return text;
}

CStdStr<wchar_t> padded(std::size_t length)
{
    return L"   \t" + letters(length - 8) + L"\t   ";
}

void trimLeft(std::wstring& text)
{
    const std::locale locale;
    const auto& facet = std::use_facet<Facet>(locale);
    const wchar_t* const first = text.data();
    const wchar_t* const kept = facet.scan_not(Facet::space, first, first + text.size());
    text.erase(0, static_cast<std::size_t>(kept - first));
}

// A facet has no backward scan, so each character is asked about from the end.
void trimRight(std::wstring& text)
{
    const std::locale locale;
    const auto& facet = std::use_facet<Facet>(locale);
    std::size_t end = text.size();
    while (end > 0 && facet.is(Facet::space, text[end - 1]))
        --end;
    text.resize(end);
}

void addFind(std::size_t length)
{
    const CStdStr<wchar_t> text = letters(length) + L"needle";
    Row("Find", std::to_string(length))
        .library([text] { return [text] { benchmark::DoNotOptimize(text.Find(L"needle")); }; })
        .reference("std::wstring", [text] {
            return [copy = std::wstring(text)] { benchmark::DoNotOptimize(copy.find(L"needle")); };
        });
}

void addParts(std::size_t length)
{
    const CStdStr<wchar_t> text = letters(length);
    const auto half = static_cast<int>(length / 2);
    const std::size_t count = length / 2;
    Row("Mid", std::to_string(length))
        .library([=] { return [=] { benchmark::DoNotOptimize(text.Mid(2, half)); }; })
        .reference("std::wstring", [=] {
            return
                [=, copy = std::wstring(text)] { benchmark::DoNotOptimize(copy.substr(2, count)); };
        });
    Row("Left", std::to_string(length))
        .library([=] { return [=] { benchmark::DoNotOptimize(text.Left(half)); }; })
        .reference("std::wstring", [=] {
            return
                [=, copy = std::wstring(text)] { benchmark::DoNotOptimize(copy.substr(0, count)); };
        });
}

// Both assign the text again before each trim, into storage that they keep.
void addTrims(std::size_t length)
{
    const CStdStr<wchar_t> text = padded(length);
    Row("TrimLeft", std::to_string(length))
        .library([text] {
            return [text, work = text]() mutable {
                work = text;
                work.TrimLeft();
            };
        })
        .reference("std::wstring, facet", [text] {
            return [text = std::wstring(text), work = std::wstring(text)]() mutable {
                work = text;
                trimLeft(work);
            };
        });
    Row("TrimRight", std::to_string(length))
        .library([text] {
            return [text, work = text]() mutable {
                work = text;
                work.TrimRight();
            };
        })
        .reference("std::wstring, facet", [text] {
            return [text = std::wstring(text), work = std::wstring(text)]() mutable {
                work = text;
                trimRight(work);
            };
        });
}

void addCase(std::size_t length)
{
    const CStdStr<wchar_t> text = letters(length);
    Row("toUpper", std::to_string(length))
        .library(
            [text] { return [work = text]() mutable { work.toUpper(std::locale::classic()); }; })
        .reference("std::wstring, facet", [text] {
            return [work = std::wstring(text)]() mutable {
                const auto& facet = std::use_facet<Facet>(std::locale::classic());
                facet.toupper(work.data(), work.data() + work.size());
            };
        });
    Row("strMakeLower", std::to_string(length))
        .library([text] { return [work = text]() mutable { KtErrorEat::strMakeLower(work); }; })
        .reference("std::wstring, facet", [text] {
            return [work = std::wstring(text)]() mutable {
                const std::locale locale;
                const auto& facet = std::use_facet<Facet>(locale);
                facet.tolower(work.data(), work.data() + work.size());
            };
        });
}

} // namespace

void bench::addStringRows()
{
    for (const std::size_t length : kLengths) {
        addFind(length);
        addParts(length);
        addTrims(length);
        addCase(length);
    }
}
