// SPDX-License-Identifier: MIT
#include "support/SlowPathName.h"

#include <algorithm>
#include <cwctype>
#include <locale>
#include <vector>

namespace {

using slow::Name;

int lengthOf(const std::wstring& text)
{
    return static_cast<int>(text.size());
}

wchar_t at(const std::wstring& text, int index)
{
    return text[static_cast<std::size_t>(index)];
}

std::wstring firstOf(const std::wstring& text, int count)
{
    std::wstring first;
    for (int i = 0; i < count; ++i)
        first += at(text, i);
    return first;
}

std::wstring from(const std::wstring& text, int index)
{
    std::wstring rest;
    for (int i = index; i < lengthOf(text); ++i)
        rest += at(text, i);
    return rest;
}

int lastIndex(const std::wstring& text, wchar_t ch)
{
    int found = -1;
    for (int i = 0; i < lengthOf(text); ++i) {
        if (at(text, i) == ch)
            found = i;
    }
    return found;
}

int firstIndex(const std::wstring& text, wchar_t ch)
{
    for (int i = 0; i < lengthOf(text); ++i) {
        if (at(text, i) == ch)
            return i;
    }
    return -1;
}

bool endsWith(const std::wstring& text, wchar_t ch)
{
    return !text.empty() && at(text, lengthOf(text) - 1) == ch;
}

bool isClosed(const Name& name)
{
    return endsWith(name.work, name.separator);
}

bool isLetter(wchar_t ch)
{
    return std::iswalpha(static_cast<std::wint_t>(ch)) != 0;
}

wchar_t lower(wchar_t ch)
{
    return ch >= L'A' && ch <= L'Z' ? static_cast<wchar_t>(ch - L'A' + L'a') : ch;
}

wchar_t upper(wchar_t ch)
{
    return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(ch)));
}

std::wstring lowered(const std::wstring& text)
{
    std::wstring result;
    for (wchar_t ch : text)
        result += lower(ch);
    return result;
}

wchar_t secondOf(const std::wstring& text)
{
    return lengthOf(text) > 1 ? at(text, 1) : L'\0';
}

bool beginsWithDrive(const std::wstring& text)
{
    return lengthOf(text) >= 2 && at(text, 1) == L':' && isLetter(at(text, 0));
}

int cut(Name& name, int length)
{
    name.work = firstOf(name.work, length);
    name.type = slow::NotFound;
    return 0;
}

int cutDrive(Name& name, int length)
{
    cut(name, length);
    if (length == 2)
        name.work += name.separator;
    return 0;
}

// What becomes of a name that takes over its prefix.
void takePrefix(Name& parent)
{
    parent.work = *parent.prefix;
    parent.prefix.reset();
    if (parent.work.empty()) {
        parent.raised = true;
    } else if (at(parent.work, 0) == parent.separator) {
        parent.category = secondOf(parent.work) == parent.separator ? slow::Unc : slow::Rooted;
    } else if (beginsWithDrive(parent.work)) {
        parent.category = slow::Drive;
        parent.work[0] = upper(parent.work[0]);
    }
}

std::wstring shortenedBase(const Name& name, int width)
{
    const std::wstring base = slow::baseOf(name);
    const std::wstring extension = slow::extensionOf(name).value_or(L"");
    const int e = lengthOf(extension);
    if (e == 0 || width < e + 3)
        return firstOf(base, width - 2) + L"~";
    return firstOf(base, width - 2 - e) + L"~." + extension;
}

std::wstring tail(const Name& name, int prefix, int width)
{
    const int length = lengthOf(name.work);
    int start = prefix;
    while (start < length && length - start + prefix + 4 > width) {
        ++start;
        while (start < length && at(name.work, start) != name.separator)
            ++start;
    }
    return from(name.work, start);
}

bool isBlank(wchar_t ch)
{
    return std::isspace(ch, std::locale());
}

std::wstring withoutQuotes(const std::wstring& text)
{
    const std::wstring bare = slow::withoutBlanks(text);
    const int length = lengthOf(bare);
    const bool isQuoted = length >= 2 && at(bare, 0) == L'"' && at(bare, length - 1) == L'"';
    return isQuoted ? from(firstOf(bare, length - 1), 1) : text;
}

int countOf(const std::wstring& text, wchar_t wanted)
{
    int count = 0;
    for (const wchar_t ch : text) {
        if (ch == wanted)
            ++count;
    }
    return count;
}

std::wstring withSeparators(std::wstring text, wchar_t separator)
{
    for (wchar_t& ch : text) {
        if (ch == L'\\')
            ch = separator;
    }
    return text;
}

int categoryOf(const std::wstring& text, wchar_t separator)
{
    if (at(text, 0) == separator)
        return secondOf(text) == separator ? slow::Unc : slow::Rooted;
    return beginsWithDrive(text) ? slow::Drive : slow::Relative;
}

} // namespace

std::wstring slow::baseOf(const Name& name)
{
    const int separator = lastIndex(name.work, name.separator);
    return from(name.work, (separator != -1 ? separator : lastIndex(name.work, L':')) + 1);
}

std::optional<std::wstring> slow::extensionOf(const Name& name)
{
    const std::wstring base = baseOf(name);
    const int dot = lastIndex(base, L'.');
    return dot == -1 ? std::nullopt : std::make_optional(from(base, dot + 1));
}

std::wstring slow::withoutBlanks(const std::wstring& text)
{
    int end = lengthOf(text);
    while (end > 0 && isBlank(at(text, end - 1)))
        --end;
    int start = 0;
    while (start < end && isBlank(at(text, start)))
        ++start;
    return from(firstOf(text, end), start);
}

bool slow::isPattern(const Name& name)
{
    const std::wstring last = baseOf(name);
    return countOf(last, L'*') + countOf(last, L'?') > 0;
}

int slow::trimSlash(Name& name)
{
    if (!isClosed(name))
        return 0;
    if (name.category > Relative)
        return 4;
    const int length = lengthOf(name.work) - 1;
    if (name.category == Drive && length == 2)
        return 3;
    if (name.category == Unc && length <= name.volumeLength)
        return 3;
    if (name.category == Rooted && length == 0)
        return 3;
    return cut(name, length);
}

int slow::trim(Name& name)
{
    if (isClosed(name))
        return 0;
    if (name.category > Relative)
        return 4;
    const int slash = lastIndex(name.work, name.separator);
    if (name.category == Drive) {
        const int place = slash != -1 ? slash : firstIndex(name.work, L':');
        return place == -1 ? 4 : cutDrive(name, place + 1);
    }
    if (slash == -1)
        return name.category == Relative ? 3 : 4;
    if (name.category == Unc && slash < name.volumeLength)
        return 3;
    return cut(name, slash + 1);
}

int slow::trimComponent(Name& name)
{
    if (name.category > Relative)
        return 4;
    const int slash = lastIndex(name.work, name.separator);
    if (name.category == Drive)
        return cutDrive(name, slash != -1 ? slash : firstIndex(name.work, L':') + 1);
    if (slash == -1)
        return name.category == Relative ? 3 : 4;
    if (name.category == Unc && slash < name.volumeLength)
        return 3;
    return cut(name, name.category == Rooted && slash == 0 ? 1 : slash);
}

Name slow::parentOf(const Name& name)
{
    Name parent = name;
    parent.type = Directory;
    if (isClosed(parent))
        trimSlash(parent);
    int place = lastIndex(parent.work, parent.separator);
    if (place == -1)
        place = lastIndex(parent.work, L':');
    if (place != -1)
        parent.work = firstOf(parent.work, place + 1);
    else if (parent.prefix)
        takePrefix(parent);
    else
        parent.type = None;
    return parent;
}

bool slow::hasExtensionOf(const Name& name, const std::wstring& list)
{
    const std::wstring extension = lowered(extensionOf(name).value_or(L""));
    if (list.empty() || extension.empty())
        return list.empty() && extension.empty();
    // An item ends at a terminator, and a terminator in the extension agrees with that.
    const std::wstring compared = extension.substr(0, extension.find(L'\0'));
    std::vector<std::wstring> items(1);
    for (wchar_t ch : list) {
        if (ch == L';')
            items.emplace_back();
        else
            items.back() += lower(ch);
    }
    return std::find(items.begin(), items.end(), compared) != items.end();
}

std::wstring slow::displayName(const Name& name, int width)
{
    const int w = width < 12 ? 12 : width;
    if (width == -1 || w >= lengthOf(name.work))
        return name.work;
    const std::wstring base = baseOf(name);
    if (w < lengthOf(base))
        return shortenedBase(name, w);
    if (name.category > Relative)
        return L"";
    if (name.category == Rooted || name.category == Relative)
        return w >= lengthOf(base) + 4 ? L"..." + tail(name, 0, w) : base;
    const int v = name.volumeLength;
    if (w < lengthOf(base) + v + 5)
        return base;
    return firstOf(name.work, v) + L"\\..." + tail(name, v, w);
}

std::wstring slow::fullPath(const Name& name)
{
    if (name.category == Rooted || !name.prefix)
        return name.work;
    const std::wstring joint(endsWith(*name.prefix, name.separator) ? 0 : 1, name.separator);
    return *name.prefix + joint + name.work;
}

bool slow::matches(std::wstring path, std::wstring text, wchar_t separator)
{
    if (beginsWithDrive(text))
        text[0] = upper(text[0]);
    if (endsWith(path, separator) && !endsWith(text, separator))
        text += separator;
    else if (endsWith(text, separator) && !endsWith(path, separator))
        path += separator;
    return lowered(path) == lowered(text);
}

bool slow::isValidFilename(const std::wstring& name, bool allowWildcards)
{
    if (lengthOf(name) > 1023)
        return false;
    const int colon = lastIndex(name, L':');
    if (colon != -1 && (colon != 1 || !isLetter(at(name, 0))))
        return false;
    for (int i = 1; i + 1 < lengthOf(name); ++i) {
        if (at(name, i) == L'\\' && at(name, i + 1) == L'\\')
            return false;
    }
    const std::wstring forbidden = allowWildcards ? L"<>|/\"" : L"*<>?|/\"";
    return std::none_of(name.begin(), name.end(),
                        [&](wchar_t ch) { return firstIndex(forbidden, ch) != -1; });
}

slow::Parse slow::parse(const std::wstring& text, const std::optional<std::wstring>& base,
                        wchar_t separator)
{
    Parse result;
    const std::wstring bare = withoutBlanks(withoutQuotes(text));
    if (bare.empty() || countOf(bare, L':') > 1)
        return result;
    std::wstring work = withSeparators(bare, separator);
    result.category = result.name.category = categoryOf(work, separator);
    const bool isDrive = result.category == Drive;
    const bool hasColon = countOf(work, L':') > 0;
    if (result.category == Unc || (!isDrive && hasColon) || (result.category == Relative && !base))
        return result;
    if (isDrive)
        work[0] = upper(at(work, 0));
    if (result.category == Rooted)
        result.name.prefix = L"";
    else if (result.category == Relative && !base->empty())
        result.name.prefix = *base;
    result.good = true;
    result.name.work = work;
    result.name.separator = separator;
    result.name.type = isPattern(result.name) ? Wildcard : NotFound;
    result.qualified = countOf(text, L':') > 0 || countOf(work, separator) > 0;
    return result;
}
