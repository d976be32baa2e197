// SPDX-License-Identifier: MIT
//
// The rules of NTFS names, with limits and prefix as a creator may set them, and what else a volume
// tells of a name.
#include "support/DrawnVolumes.h"
#include "support/Expect.h"
#include "support/Input.h"
#include "support/Locales.h"
#include "support/SlowPathName.h"

#include <cwctype>

using namespace ktqtbase::fuzz;

namespace {

using WideText = CStdStr<wchar_t>;

constexpr unsigned int kNowhere = 0xFFFFFFFF;

bool isLetter(wchar_t ch)
{
    return std::iswalpha(static_cast<std::wint_t>(ch)) != 0;
}

bool holdsOneOf(const std::wstring& text, const std::wstring& set)
{
    for (const wchar_t ch : text) {
        if (ch == L'\0')
            return false;
        if (set.find(ch) != set.npos)
            return true;
    }
    return false;
}

bool isTooLong(const std::wstring& text, int limit)
{
    return static_cast<long long>(text.size()) > limit;
}

bool hasGoodColons(const std::wstring& name, wchar_t drive)
{
    std::size_t last = 0;
    bool holdsColon = false;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == L':') {
            last = i;
            holdsColon = true;
        }
    }
    return !holdsColon || (last == 1 && isLetter(drive));
}

// Behind the first character.
bool holdsPrefix(const std::wstring& name, const std::wstring& prefix)
{
    for (std::size_t i = 1; i + prefix.size() <= name.size(); ++i) {
        if (name.compare(i, prefix.size(), prefix) == 0)
            return true;
    }
    return false;
}

bool isGoodName(const CRbUiVolumeDescriptor& volume, const std::wstring& name, bool wildcards)
{
    return !isTooLong(name, volume.m_maxPathLen) && hasGoodColons(name, name.c_str()[0]) &&
           !holdsPrefix(name, volume.m_pUncPrefix) &&
           !holdsOneOf(name, wildcards ? L"<>|/\"" : L"*<>?|/\"");
}

bool isGoodSegment(const CRbUiVolumeDescriptor& volume, const std::wstring& name, bool wildcards)
{
    return !isTooLong(name, volume.m_maxComponentLen) &&
           !holdsOneOf(name, wildcards ? L":<>/\\|\"" : L"*:<>?/\\|\"");
}

std::wstring folded(std::wstring text)
{
    for (wchar_t& ch : text) {
        if (ch >= L'A' && ch <= L'Z')
            ch = static_cast<wchar_t>(ch + (L'a' - L'A'));
    }
    return text;
}

unsigned int placeOf(const std::wstring& text, wchar_t ch, bool toTerminator)
{
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const bool isEnd = toTerminator ? text.c_str()[i] == L'\0' : i == text.size();
        if (text.c_str()[i] == ch && (!isEnd || toTerminator))
            return static_cast<unsigned int>(i);
        if (isEnd)
            break;
    }
    return kNowhere;
}

void validate(const CRbUiVolumeDescriptor& volume, const std::wstring& text)
{
    const WideText name(text);
    for (const bool wildcards : {false, true}) {
        expectSame("valid name", volume.ValidateFilename(&name, wildcards),
                   isGoodName(volume, text, wildcards));
        expectSame("valid segment", volume.ValidateSegment(&name, wildcards),
                   isGoodSegment(volume, text, wildcards));
    }
}

void validateAsUsual(const std::wstring& text, int ch)
{
    static const CRbUiNTFSVolumeDescriptor usual(L"C:");
    validate(usual, text);
    const WideText name(text);
    if (text.find(L'\0') == text.npos)
        expectSame("valid name of a usual volume", usual.ValidateFilename(&name, true),
                   slow::isValidFilename(text, true));
    expectSame("valid drive", ValidateVolChar(&name, ch),
               hasGoodColons(text, static_cast<wchar_t>(ch)));
}

void match(const CRbUiVolumeDescriptor& volume, const std::wstring& a, const std::wstring& b)
{
    const WideText first(a);
    const WideText second(b);
    const bool isEqual = folded(a.c_str()) == folded(b.c_str());
    const bool byCase = volume.IsCaseSensitive();
    expectSame("match", volume.VolMatch(a.c_str(), &second), byCase ? a.c_str() == b : isEqual);
    expectSame("match of strings", volume.VolMatch(&first, &second), byCase ? a == b : isEqual);
    expect("match of nothing", !volume.VolMatch(static_cast<const wchar_t*>(nullptr), &second) &&
                                   !volume.VolMatch(a.c_str(), nullptr) &&
                                   !volume.VolMatch(&first, nullptr));
}

void classify(std::wstring fileSystem, unsigned int longest)
{
    FS_TYPE type = FS_NOFS;
    GetDriveTypeByVol(fileSystem.data(), type, longest);
    const std::wstring name = fileSystem.c_str();
    FS_TYPE expected = longest == 12 ? FS_FAT : FS_VFAT;
    if (name.find(L"NFS") != name.npos)
        expected = FS_NFS;
    if (name == L"NTFS")
        expected = FS_NTFS;
    if (name == L"HPFS")
        expected = FS_HPFS;
    if (name == L"CDFS")
        expected = FS_CDFS;
    expectSame("file system", static_cast<int>(type), static_cast<int>(expected));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static DrawnVolume volume(L"C:");
    Input input(bytes, size);
    const unsigned int flags = input.byte();
    useCtype(flags & 1);
    volume.m_bUseCSearch = flags & 2;
    volume.m_flags = static_cast<unsigned char>(flags);
    volume.m_maxPathLen = flags & 4 ? input.integer() : 1023;
    volume.m_maxComponentLen = flags & 8 ? input.integer() : 255;
    const std::wstring prefix = flags & 16 ? input.name() : L"\\\\";
    volume.m_pUncPrefix = prefix.c_str();
    const auto ch = static_cast<wchar_t>(input.oneIn(8) ? input.number() : input.byte());
    const std::wstring text = input.text();
    const std::wstring other = input.oneIn(3) ? folded(text) : input.text();

    validate(volume, text);
    validateAsUsual(text, ch);
    match(volume, text, other);
    expectSame("place", volume.Find(WideText(text), ch), placeOf(text, ch, volume.m_bUseCSearch));
    classify(text, flags);
    return 0;
}
