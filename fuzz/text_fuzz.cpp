// SPDX-License-Identifier: MIT
//
// Texts between wide, multibyte and Qt's, and the operations of the wide string, each beside what the
// C library, Qt or a plain loop makes of the same.
#include "support/Expect.h"
#include "support/Input.h"
#include "support/Locales.h"

#include <KtQtBase/WideString.h>

#include "string/CaseFolding.h"
#include "string/QtText.h"
#include "string/TextConversion.h"

#include <QtCore/QVector>

#include <cstdlib>
#include <vector>

using namespace ktqtbase::fuzz;

namespace {

using WideText = CStdStr<wchar_t>;
using ktqtbase::NarrowText;

// What the C library converts a text to; none where it refuses it.
std::optional<std::string> narrowed(const std::wstring& text)
{
    // Some characters take six bytes.
    std::vector<char> room(6 * text.size() + 1);
    const std::size_t length = std::wcstombs(room.data(), text.c_str(), room.size());
    if (length == static_cast<std::size_t>(-1))
        return std::nullopt;
    return std::string(room.data(), length);
}

void narrow(const std::wstring& text)
{
    const NarrowText narrow(text.c_str());
    const auto expected = narrowed(text);
    expectSame("converted", narrow.converted(), expected.has_value());
    if (!expected)
        return;
    expectSame("narrow text", std::string(narrow.c_str()), *expected);
    expectSame("narrow length", narrow.length(), expected->size());
}

// As the C library converts a text one character after the other.
std::wstring widened(const std::string& text, bool& converts)
{
    std::wstring wide;
    std::mbstate_t state{};
    std::size_t place = 0;
    for (;;) {
        wchar_t ch = 0;
        const std::size_t bytes =
            std::mbrtowc(&ch, text.c_str() + place, text.size() + 1 - place, &state);
        converts = bytes <= text.size() + 1;
        if (!converts || bytes == 0)
            return wide;
        wide += ch;
        place += bytes;
    }
}

void widen(const std::string& text, std::size_t size)
{
    std::vector<wchar_t> area(size, L'Z');
    const bool result = ktqtbase::widen(text.c_str(), area.data(), size);
    bool converts = true;
    const std::wstring wide = widened(text, converts) + L'\0';
    // What does not fit is not looked at.
    const bool isCut = wide.size() > size;
    std::wstring expected = wide.substr(0, size);
    expected.resize(size, L'Z');
    expectSame("widened", result || size == 0, converts || isCut);
    expectSame("wide text", std::wstring(area.begin(), area.end()), expected);
    expect("widened into nothing", ktqtbase::widen(text.c_str(), nullptr, size));
}

// The C library's own function for the whole text.
void widenWhole(const std::string& text)
{
    std::vector<wchar_t> area(text.size() + 1);
    std::vector<wchar_t> expected(area);
    const std::size_t length = std::mbstowcs(expected.data(), text.c_str(), expected.size());
    const bool converts = length != static_cast<std::size_t>(-1);
    expectSame("widened as a whole", ktqtbase::widen(text.c_str(), area.data(), area.size()),
               converts);
    if (converts)
        expectSame("whole wide text", std::wstring(area.data()), std::wstring(expected.data()));
}

bool isAscii(const std::wstring& text)
{
    for (const wchar_t ch : text) {
        if (static_cast<unsigned int>(ch) > 0x7F)
            return false;
    }
    return true;
}

void narrowAsAscii(const std::wstring& text)
{
    std::vector<char16_t> units(text.size());
    const bool result = ktqtbase::narrowAscii(text.data(), text.size(), units.data());
    expectSame("ASCII", result, isAscii(text));
    if (result)
        expectSame("units", std::wstring(units.begin(), units.end()), text);
}

void toQtAndBack(const std::wstring& text)
{
    const QString qt = ktqtbase::toQt(text.c_str());
    const auto* const codes = reinterpret_cast<const char32_t*>(text.c_str());
    expect("Qt's text", qt == QString::fromUcs4(codes, static_cast<int>(text.size())));
    std::wstring expected;
    for (const auto code : qt.toUcs4()) {
        if (code == 0)
            break;
        expected += static_cast<wchar_t>(code);
    }
    expectSame<std::wstring>("text from Qt", ktqtbase::toWide(qt), expected);
    expect("no text for Qt", ktqtbase::toQt(nullptr).isNull());
}

void takeParts(const std::wstring& text, int first, int count)
{
    std::wstring mid;
    std::wstring left;
    for (long long i = 0; i < static_cast<long long>(text.size()); ++i) {
        const wchar_t ch = text[static_cast<std::size_t>(i)];
        if (i >= first && i < static_cast<long long>(std::max(first, 0)) + count)
            mid += ch;
        if (i < count)
            left += ch;
    }
    expectSame<std::wstring>("Mid", WideText(text).Mid(first, count), mid);
    expectSame<std::wstring>("Left", WideText(text).Left(count), left);
}

int placeOf(const std::wstring& text, const std::wstring& wanted)
{
    for (std::size_t i = 0; i + wanted.size() <= text.size(); ++i) {
        if (text.compare(i, wanted.size(), wanted) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

void trim(const std::wstring& text)
{
    std::size_t start = 0;
    while (start < text.size() && std::isspace(text[start], std::locale()))
        ++start;
    std::size_t end = text.size();
    while (end > 0 && std::isspace(text[end - 1], std::locale()))
        --end;
    expectSame<std::wstring>("TrimLeft", WideText(text).TrimLeft(), text.substr(start));
    expectSame<std::wstring>("TrimRight", WideText(text).TrimRight(), text.substr(0, end));
}

void changeCase(const std::wstring& text)
{
    WideText upper(text);
    WideText lower(text);
    KtErrorEat::strMakeUpper(upper);
    KtErrorEat::strMakeLower(lower);
    std::wstring expectedUpper;
    std::wstring expectedLower;
    for (const wchar_t ch : text) {
        expectedUpper += std::toupper(ch, std::locale());
        expectedLower += std::tolower(ch, std::locale());
    }
    expectSame<std::wstring>("upper case", upper, expectedUpper);
    expectSame<std::wstring>("lower case", lower, expectedLower);
}

std::wstring folded(std::wstring text)
{
    for (wchar_t& ch : text) {
        if (ch >= L'A' && ch <= L'Z')
            ch = static_cast<wchar_t>(ch + (L'a' - L'A'));
    }
    return text;
}

void compare(const std::wstring& a, const std::wstring& b)
{
    const bool expected = folded(a) == folded(b);
    expectSame("equal but for case", ktqtbase::equalFolded(a.c_str(), b.c_str()), expected);
    // The range may go on.
    const std::wstring longer = a + L"more";
    expectSame("equal range", ktqtbase::equalFolded(longer.c_str(), a.size(), b.c_str()), expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Input input(bytes, size);
    const unsigned int locales = input.byte();
    useCtype(locales & 1);
    useGlobalLocale(locales & 2);
    const int first = input.integer();
    const int count = input.integer();
    const std::wstring text = input.text();
    const std::wstring name = text.c_str();
    const std::wstring other = input.oneIn(3) ? folded(name) : input.name();
    const std::string narrowText = input.bytes().c_str();

    narrow(name);
    narrowAsAscii(text);
    toQtAndBack(name);
    widen(narrowText, static_cast<std::size_t>(std::max(count, 0)) % 2048);
    widenWhole(narrowText);
    takeParts(text, first, count);
    expectSame("Find", WideText(text).Find(other.c_str()), placeOf(text, other));
    trim(text);
    changeCase(text);
    compare(name, other);
    return 0;
}
