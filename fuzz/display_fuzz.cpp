// SPDX-License-Identifier: MIT
//
// The forms of a name for people, and which names match, for names of every category and type as a
// host may set them.
#include "support/DrawnVolumes.h"
#include "support/Input.h"
#include "support/Locales.h"
#include "support/PathPair.h"

#include <cwctype>
#include <vector>

using namespace ktqtbase::fuzz;

namespace {

constexpr int kLeastWidth = 12;

// Not of the list, since no parse looks for it.
DrawnVolume& volumeNamed(const std::wstring& name)
{
    static DrawnVolume volume(L"");
    static_cast<std::wstring&>(*volume.m_pLocalName) = name;
    return volume;
}

void draw(Input& input, PathPair& pair)
{
    slow::Name& name = pair.plain.name;
    name.type = static_cast<int>(input.below(7));
    name.category = static_cast<int>(input.below(6));
    const unsigned int separator = input.byte();
    pair.setSeparator(separator <= 0x80 ? L'/' : static_cast<wchar_t>(separator - 0x80));
    if (name.type == slow::None)
        return;
    name.work = input.text();
    if (input.oneIn(2))
        name.prefix = input.text();
    if (input.oneIn(2))
        pair.plain.volume = &volumeNamed(L"");
}

void copyToReal(PathPair& pair)
{
    const slow::Name& name = pair.plain.name;
    pair.real.m_type = static_cast<path_type>(name.type);
    pair.real.m_category = static_cast<path_category>(name.category);
    pair.real.m_pVolume = pair.plain.volume;
    if (name.type != slow::None)
        pair.real.m_pWork = new CStdStr<wchar_t>(name.work);
    if (name.prefix)
        pair.real.m_pRelPath = new CStdStr<wchar_t>(*name.prefix);
}

void showAt(PathPair& pair, int width, bool intoItself)
{
    const std::wstring expected =
        pair.plain.isParsed() ? slow::displayName(pair.plain.name, width) : L"";
    CStdStr<wchar_t> text(L"before");
    CStdStr<wchar_t>& shown = intoItself && pair.real.m_pWork ? *pair.real.m_pWork : text;
    pair.real.GetDisplayName(shown, width);
    expectSame<std::wstring>("shown", shown, expected);
    if (width != -1)
        expect("shown in its width",
               static_cast<int>(shown.size()) <= std::max(width, kLeastWidth));
    if (pair.real.m_pWork)
        pair.real.m_pWork->assign(pair.plain.name.work);
}

// A text that is like a path but for what does not count, or hardly.
std::wstring variantOf(std::wstring text, unsigned int kind, wchar_t separator)
{
    for (wchar_t& ch : text) {
        const auto code = static_cast<std::wint_t>(ch);
        if (kind & 1)
            ch = static_cast<wchar_t>(kind & 2 ? std::towlower(code) : std::towupper(code));
    }
    if (kind & 4)
        text += separator;
    if ((kind & 8) && !text.empty())
        text.pop_back();
    return text.c_str();
}

// Whether a path has no NUL, which ends a text that is passed on by its pointer.
bool isPlainText(const OptionalText& path)
{
    return !path || path->find(L'\0') == path->npos;
}

void matchText(const PathPair& pair, const std::wstring& other)
{
    const OptionalText path = pair.plain.fullPath();
    if (!isPlainText(path))
        return;
    const bool expected = path && slow::matches(*path, other, pair.plain.name.separator);
    expectSame("match", pair.real.PathMatch(other.c_str()), expected);
}

void matchObject(const PathPair& pair, const PathPair& other)
{
    const OptionalText path = pair.plain.fullPath();
    const OptionalText otherPath = other.plain.fullPath();
    if (!isPlainText(path) || !isPlainText(otherPath))
        return;
    const bool expected = pair.plain.volume == other.plain.volume && path && otherPath &&
                          slow::matches(*path, *otherPath, pair.plain.name.separator);
    expectSame("match of objects", pair.real.PathMatch(&other.real), expected);
    expect("match of itself", pair.real.PathMatch(&pair.real));
}

void copyCharacters(const CRbUiPathname& path, const std::wstring& text, int count)
{
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(std::max(count, 0)));
    const auto given = count < 0 ? count : static_cast<int>(length);
    std::vector<wchar_t> room(length + (count < 0 ? 0 : 1), L'?');
    path.lstrncpy_x(room.data(), text.c_str(), given);
    std::wstring expected = text.substr(0, length);
    if (count >= 0)
        expected += L'\0';
    expectSame("copied", std::wstring(room.begin(), room.end()), expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Input input(bytes, size);
    useCtype(input.oneIn(2));
    const int width = input.integer();
    const unsigned int kind = input.below(16);
    const std::wstring volumeName = input.text();
    PathPair pair;
    draw(input, pair);
    PathPair other;
    draw(input, other);
    volumeNamed(volumeName);
    pair.plain.name.volumeLength = pair.plain.volume ? static_cast<int>(volumeName.size()) : 0;
    copyToReal(pair);
    copyToReal(other);

    showAt(pair, width, input.oneIn(2));
    matchText(pair, input.name());
    matchText(pair,
              variantOf(pair.plain.fullPath().value_or(L""), kind, pair.plain.name.separator));
    matchObject(pair, other);
    expectSame("match of nothing", pair.real.PathMatch(static_cast<const wchar_t*>(nullptr)),
               false);
    copyCharacters(pair.real, volumeName, width);
    expectSameFields(pair);
    return 0;
}
