// SPDX-License-Identifier: MIT
//
// The steps of a parse and of the edits, as hosts call them one by one, with arguments that no parse
// would give them.
#include "support/DrawnDisk.h"
#include "support/DrawnVolumes.h"
#include "support/Expect.h"
#include "support/Input.h"
#include "support/Locales.h"
#include "support/SlowPathName.h"

#include <KtQtBase/PathName.h>

#include <algorithm>
#include <cwctype>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace ktqtbase::fuzz;

namespace {

using WideText = CStdStr<wchar_t>;
using OwnedText = std::unique_ptr<WideText>;

struct Drawn
{
    explicit Drawn(Input& input)
        : category(static_cast<path_category>(input.below(6))), index(input.integer()),
          first(static_cast<wchar_t>(input.byte())), second(static_cast<wchar_t>(input.byte())),
          separator(static_cast<wchar_t>(input.oneIn(2) ? L'/' : input.byte())), text(input.text()),
          other(input.text())
    {
        if (separator == L'\0')
            separator = L'\\';
        base.m_type = static_cast<path_type>(input.below(7));
        base.m_category = category;
        if (base.m_type != PT_NONE)
            base.m_pWork = new WideText(input.text());
        if (input.oneIn(2))
            base.m_pRelPath = new WideText(other);
    }

    path_category category;
    int index;
    wchar_t first;
    wchar_t second;
    wchar_t separator;
    std::wstring text;
    std::wstring other;
    CRbUiPathname base;
};

bool holds(const std::wstring& text, wchar_t ch)
{
    return text.find(ch) != text.npos;
}

bool isDrive(wchar_t first, wchar_t second)
{
    return second == L':' && std::iswalpha(static_cast<std::wint_t>(first));
}

// A separator may be a letter, too.
bool namesDrive(wchar_t first, wchar_t second, wchar_t separator)
{
    return first != separator && isDrive(first, second);
}

void raise(std::wstring& text)
{
    if (!text.empty())
        text[0] = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(text[0])));
}

wchar_t secondOf(const std::wstring& text)
{
    return text.size() > 1 ? text[1] : L'\0';
}

int categoryOf(wchar_t first, wchar_t second, wchar_t separator, int otherwise)
{
    const int slashes = first != separator ? 0 : second != separator ? 1 : 2;
    const int categories[] = {otherwise, PC_ROOTED, PC_UNC};
    return namesDrive(first, second, separator) ? PC_DRIVE : categories[slashes];
}

void readWork(const Drawn& drawn)
{
    WideText work(drawn.text);
    wchar_t last = L'l';
    wchar_t first = L'f';
    wchar_t second = L's';
    GetWorkString(&work, drawn.separator, last, first, second);
    std::wstring expected = drawn.text;
    std::replace(expected.begin(), expected.end(), L'\\', drawn.separator);
    expectSame<std::wstring>("work string", work, expected);
    expectSame("last character", last, drawn.text.empty() ? L'l' : drawn.text.back());
    expectSame("first character", first, expected.c_str()[0]);
    expectSame("second character", second, secondOf(expected));
}

void readCategory(const Drawn& drawn, const CRbUiPathname* base)
{
    WideText text(drawn.text);
    path_category category = PC_RELATIVE;
    const int result =
        GetPathCatType(drawn.first, drawn.second, drawn.separator, category, &text, base);
    std::wstring expectedText = drawn.text;
    const int expectedCategory =
        categoryOf(drawn.first, drawn.second, drawn.separator, PC_RELATIVE);
    const bool isBased = base && base->m_type >= PT_NOT_FOUND && base->m_type <= PT_DIRECTORY;
    const bool lacksBase = expectedCategory == PC_RELATIVE && !isBased;
    const bool isBad = expectedCategory != PC_DRIVE && (holds(drawn.text, L':') || lacksBase);
    if (expectedCategory == PC_DRIVE)
        raise(expectedText);
    expectSame("category's result", result, isBad ? 1 : 0);
    expectSame("category", static_cast<int>(category), expectedCategory);
    expectSame<std::wstring>("text of the category", text, expectedText);
}

void classifyPrefix(const Drawn& drawn)
{
    OwnedText text = std::make_unique<WideText>(drawn.text);
    WideText* pointer = text.get();
    path_category category = drawn.category;
    bool raised = false;
    try {
        ParseRelPath(&pointer, drawn.separator, category);
    } catch (const std::out_of_range&) {
        raised = true;
    }
    expectSame("raised", raised, drawn.text.empty());
    std::wstring expectedText = drawn.text;
    int expected = drawn.category;
    if (!raised) {
        const wchar_t second = secondOf(drawn.text);
        expected = categoryOf(drawn.text[0], second, drawn.separator, drawn.category);
        if (namesDrive(drawn.text[0], second, drawn.separator))
            raise(expectedText);
    }
    expectSame("category of a prefix", static_cast<int>(category), expected);
    expectSame<std::wstring>("prefix", *text, expectedText);
}

void closeShare(const Drawn& drawn)
{
    WideText text(drawn.text);
    GetWorkPtrByIndex(drawn.category, &text, drawn.separator, drawn.index);
    const auto start = static_cast<std::size_t>(std::max(drawn.index, 0));
    std::wstring expected = drawn.text;
    if (drawn.category == PC_UNC && start >= drawn.text.size())
        expected += drawn.separator;
    expectSame<std::wstring>("share", text, expected);
}

void makePrefix(const Drawn& drawn, const CRbUiPathname* base)
{
    WideText untouched(L"untouched");
    WideText* prefix = &untouched;
    const WideText rooted(drawn.text);
    GetRelPath(drawn.category, &rooted, &prefix, &base);
    const OwnedText owned(prefix == &untouched ? nullptr : prefix);
    WideText expected;
    if (base)
        base->GetFullPath(expected);
    if (drawn.category == PC_ROOTED)
        expect("prefix of a root", prefix && *prefix == rooted);
    else if (drawn.category != PC_RELATIVE)
        expect("no prefix", prefix == &untouched);
    else
        expect("prefix of a base", expected.empty() ? !prefix : prefix && *prefix == expected);
}

void lookUp(const Drawn& drawn, bool hasPrefix)
{
    const WideText work(drawn.text);
    const WideText prefix(drawn.other);
    const WideText* workPointer = &work;
    const WideText* prefixPointer = hasPrefix ? &prefix : nullptr;
    path_type type = PT_NONE;
    path_type* typePointer = &type;
    GetAttByPath(&workPointer, &prefixPointer, &typePointer);
    const std::wstring name = hasPrefix ? drawn.other + L"/" + drawn.text : drawn.text;
    const unsigned int attributes = drawnAttributes(name.c_str());
    int expected = attributes & 0x10 ? PT_DIRECTORY : PT_FILE;
    if (attributes == 0xFFFFFFFF)
        expected = PT_NOT_FOUND;
    expectSame("type", static_cast<int>(type), expected);

    path_type pattern = PT_FILE;
    const bool isPattern = holds(drawn.text, L'*') || holds(drawn.text, L'?');
    expectSame("pattern", IsPathType(work, &pattern), isPattern);
    expectSame("type of a pattern", static_cast<int>(pattern),
               static_cast<int>(isPattern ? PT_WILDCARD : PT_FILE));
}

void cutExtension(const Drawn& drawn)
{
    WideText text(drawn.text);
    WideText* pointer = &text;
    GetPathStrNoExt(&pointer, drawn.separator);
    std::size_t length = drawn.text.size();
    for (std::size_t i = drawn.text.size(); i-- > 0;) {
        if (drawn.text[i] == L'.') {
            length = i;
            break;
        }
        if (drawn.text[i] == drawn.separator)
            break;
    }
    if (drawn.separator != L'.')
        expectSame<std::wstring>("without extension", text, drawn.text.substr(0, length));
}

void raiseDrive(const Drawn& drawn)
{
    WideText text(drawn.text);
    upperPathFirstChar(text);
    std::wstring expected = drawn.text;
    if (isDrive(expected.c_str()[0], secondOf(expected)))
        raise(expected);
    expectSame<std::wstring>("drive", text, expected);
}

void tidy(const Drawn& drawn)
{
    CRbUiPathname path;
    const std::wstring bare = slow::withoutBlanks(drawn.text);
    WideText stripped(drawn.text);
    path.StripSpaces(stripped);
    expectSame<std::wstring>("stripped", stripped, bare);
    WideText unquoted(drawn.text);
    CRbUiPathname::Unquote(unquoted);
    const bool isQuoted = bare.size() >= 2 && bare.front() == L'"' && bare.back() == L'"';
    expectSame<std::wstring>("unquoted", unquoted,
                             isQuoted ? bare.substr(1, bare.size() - 2) : drawn.text);
}

void closeFileSystem(const Drawn& drawn)
{
    WideText name(drawn.text);
    const bool isClosed = !drawn.text.empty() && drawn.text.back() == L'/';
    expectSame("file system", drawn.base.GetFileSystem(name), drawn.text.empty() ? 1 : 0);
    expectSame<std::wstring>("name of the file system", name,
                             drawn.text + (drawn.text.empty() || isClosed ? L"" : L"/"));
}

void findVolume(const Drawn& drawn)
{
    const void* expected = nullptr;
    for (const CRbUiVolumeDescriptor* volume : volumeList) {
        if (volume && !expected && !drawn.text.empty() && *volume->GetLocalName() == drawn.text)
            expected = volume;
    }
    const void* const found = drawn.base.FindVolumeDescriptor(WideText(drawn.text));
    expectSame("volume", found, expected);
}

// The form that fills a caller's area, which has no room to spare here.
void fillPath(const CRbUiPathname& path)
{
    WideText expected;
    const bool isParsed = path.GetFullPath(expected);
    const std::wstring text = expected.c_str();
    std::vector<wchar_t> area(text.size() + 1, L'Z');
    expectSame("full path filled", path.GetFullPath(area.data()), isParsed);
    expectSame("area of the full path", std::wstring(area.data()), text);
    expect("no area", !path.GetFullPath(static_cast<wchar_t*>(nullptr)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Input input(bytes, size);
    const DrawnVolumes volumes(input);
    const unsigned int flags = input.byte();
    useCtype(flags & 1);
    useGlobalLocale(flags & 2);
    const Drawn drawn(input);
    const CRbUiPathname* const base = flags & 4 ? nullptr : &drawn.base;
    readWork(drawn);
    readCategory(drawn, base);
    classifyPrefix(drawn);
    closeShare(drawn);
    makePrefix(drawn, base);
    lookUp(drawn, flags & 8);
    cutExtension(drawn);
    raiseDrive(drawn);
    tidy(drawn);
    closeFileSystem(drawn);
    findVolume(drawn);
    fillPath(drawn.base);
    return 0;
}
