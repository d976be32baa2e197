// SPDX-License-Identifier: MIT
#include "support/PlainPath.h"

#include "support/DrawnDisk.h"

#include <algorithm>
#include <cstdlib>
#include <locale>

namespace {

using ktqtbase::fuzz::drawnAttributes;
using ktqtbase::fuzz::drawnDisk;
using ktqtbase::fuzz::OptionalText;

constexpr int kNotParsed = 2;
constexpr int kTypeOfHost = 5;
constexpr unsigned int kNoAttributes = 0xFFFFFFFF;

unsigned int attributesOf(const std::wstring& text)
{
    return drawnAttributes(text.c_str());
}

const CRbUiVolumeDescriptor* listedVolume(const std::wstring& drive)
{
    for (const CRbUiVolumeDescriptor* volume : volumeList) {
        if (volume && static_cast<const std::wstring&>(*volume->GetLocalName()) == drive)
            return volume;
    }
    return nullptr;
}

std::size_t lengthWithoutExtension(const slow::Name& name)
{
    const std::size_t dot = name.work.rfind(L'.');
    const std::size_t separator = name.work.rfind(name.separator);
    const bool isOfName = separator == std::wstring::npos || dot > separator;
    return dot != std::wstring::npos && isOfName ? dot : name.work.size();
}

std::wstring fiveDigits(int number)
{
    const std::wstring digits = std::to_wstring(number);
    return std::wstring(5 - digits.size(), L'0') + digits;
}

} // namespace

namespace ktqtbase::fuzz {

std::wstring firstItem(const OptionalText& list)
{
    const std::wstring items = list.value_or(L"");
    return items.substr(0, items.find(L';'));
}

void PlainPath::empty()
{
    volume = nullptr;
    name.volumeLength = 0;
    name.type = slow::None;
    name.work.clear();
    name.prefix.reset();
}

void PlainPath::setVolume(const CRbUiVolumeDescriptor* found)
{
    volume = found;
    name.volumeLength = found ? static_cast<int>(found->GetLocalName()->size()) : 0;
    if (!found)
        return;
    CStdStr<wchar_t> work(name.work);
    found->VolCase(work);
    name.work = work;
}

void PlainPath::lookUp()
{
    name.type = slow::Wildcard;
    if (slow::isPattern(name))
        return;
    const unsigned int attributes =
        attributesOf(name.prefix ? *name.prefix + L"/" + name.work : name.work);
    if (attributes == kNoAttributes)
        name.type = slow::NotFound;
    else
        name.type = attributes & 0x10 ? slow::Directory : slow::File;
}

int PlainPath::parse(const OptionalText& text, const PlainPath* base)
{
    if (!text)
        return 1;
    const wchar_t separator = name.separator;
    const slow::Parse parse =
        slow::parse(*text, base && base->isParsed() ? base->fullPath() : std::nullopt, separator);
    const CRbUiVolumeDescriptor* const volumeOfBase = base ? base->volume : nullptr;
    empty();
    if (parse.category)
        name.category = *parse.category;
    if (!parse.good)
        return 1;
    name = parse.name;
    if (name.category == slow::Drive)
        setVolume(listedVolume(name.work.substr(0, 2)));
    else if (name.category == slow::Relative)
        setVolume(volumeOfBase);
    lookUp();
    isQualified = isQualified || text->find(L':') != text->npos ||
                  name.work.find(separator) != name.work.npos;
    return 0;
}

int PlainPath::parseInCurrentDirectory(const OptionalText& text)
{
    if (!text)
        return 1;
    PlainPath base;
    const std::wstring& folder = drawnDisk().currentDirectory;
    if (!folder.empty()) {
        const int result = base.parse(folder, nullptr);
        base.appendSlash();
        if (result != 0)
            return 4;
    }
    return parse(text, &base);
}

int PlainPath::cut(int (*edit)(slow::Name&))
{
    return isParsed() ? edit(name) : kNotParsed;
}

int PlainPath::appendSlash()
{
    if (!isParsed())
        return kNotParsed;
    const wchar_t last = name.work.empty() ? L':' : name.work.back();
    if (last != L':' && last != name.separator)
        name.work += name.separator;
    return 0;
}

int PlainPath::append(const OptionalText& text)
{
    if (!isParsed())
        return kNotParsed;
    name.work += text.value_or(L"");
    name.type = slow::NotFound;
    return 0;
}

int PlainPath::appendComponent(const OptionalText& text)
{
    if (!isParsed())
        return kNotParsed;
    if (name.work.empty() || name.work.back() != name.separator)
        name.work += name.separator;
    return append(text);
}

int PlainPath::replaceExtension(const OptionalText& extension)
{
    if (!isParsed())
        return kNotParsed;
    if (!extension)
        return 1;
    name.work = name.work.substr(0, lengthWithoutExtension(name));
    if (!extension->empty())
        name.work += (extension->front() == L'.' ? L"" : L".") + *extension;
    name.type = slow::NotFound;
    return 0;
}

int PlainPath::replaceExtensionIfNoMatch(const OptionalText& list)
{
    return hasExtensionOf(list) ? 0 : replaceExtension(firstItem(list));
}

int PlainPath::addExtension(const OptionalText& extension)
{
    if (!extension)
        return 1;
    if (!isParsed())
        return kNotParsed;
    return append(extension->empty() ? L"" : L"." + *extension);
}

int PlainPath::addExtensionIfNoMatch(const OptionalText& list)
{
    return hasExtensionOf(list) ? 0 : addExtension(firstItem(list));
}

void PlainPath::removeExtension()
{
    replaceExtension(L"");
}

void PlainPath::removeExtensionIfMatch(const OptionalText& list)
{
    if (hasExtensionOf(list))
        removeExtension();
}

void PlainPath::removeSpaces()
{
    if (name.work == L"." || name.work == L"..")
        return;
    const std::wstring base = slow::baseOf(name);
    const std::size_t dot = std::min(base.rfind(L'.'), base.size());
    name.work.resize(name.work.size() - base.size());
    name.work += slow::withoutBlanks(base.substr(0, dot)) + base.substr(dot);
}

void PlainPath::changeCase(bool upper)
{
    std::wstring base = baseName().value_or(L"");
    name.work.resize(name.work.size() - base.size());
    for (const wchar_t ch : base)
        name.work += upper ? std::toupper(ch, std::locale()) : std::tolower(ch, std::locale());
}

bool PlainPath::parent(PlainPath& parent) const
{
    if (!isParsed())
        return true;
    const slow::Name of = slow::parentOf(name);
    parent = *this;
    parent.name = of;
    parent.name.raised = false;
    if (of.type == slow::None)
        parent.empty();
    return !of.raised;
}

bool PlainPath::findFreeDigits(std::size_t place)
{
    for (int tries = 0; tries < 200; ++tries) {
        const std::wstring digits = fiveDigits(std::rand() % 100000);
        if (name.type == kTypeOfHost)
            continue;
        name.work.replace(name.work.size() - place, digits.size(), digits);
        if (name.type == slow::Wildcard)
            return true;
        lookUp();
        if (name.type == slow::NotFound)
            return true;
    }
    return false;
}

bool PlainPath::isUsable()
{
    if (name.type == slow::Wildcard)
        return true;
    if (name.type != kTypeOfHost)
        lookUp();
    return name.type == slow::NotFound;
}

// The room for the stem behind the folder, which is all that is left of the name.
int PlainPath::cutToFolder(std::size_t extension)
{
    if (cut(slow::trim) == 3 && name.category == slow::Relative)
        name.work.clear();
    const int folder = static_cast<int>(name.work.size());
    return std::min(1023 - folder, 1019) - static_cast<int>(extension) - 6;
}

bool PlainPath::uniqueName(PlainPath& result, bool force) const
{
    if (name.type == slow::None)
        return false;
    result = PlainPath(*this);
    if (!force && result.isUsable())
        return true;
    std::wstring stem = result.fileName().value_or(L"");
    if (stem.empty())
        stem = L"ktTmp";
    const std::wstring extension = result.extension().value_or(L"");
    const int room = result.cutToFolder(extension.size());
    if (room < 1) {
        result.empty();
        return false;
    }
    stem = stem.substr(0, static_cast<std::size_t>(room)) + L"00000";
    result.append(extension.empty() ? stem : stem + L"." + extension);
    if (!result.findFreeDigits(extension.size() + 1 + 5))
        result.empty();
    return true;
}

bool PlainPath::exists()
{
    if (name.type == kTypeOfHost)
        return true;
    if (name.type == slow::None || name.type == slow::Wildcard)
        return false;
    lookUp();
    return name.type != slow::NotFound;
}

bool PlainPath::rename(const OptionalText& newName, int resultOfSystem)
{
    if (!isParsed() || resultOfSystem != 0)
        return false;
    name.work = newName.value_or(L"");
    return true;
}

int PlainPath::status(const PlainPath& prefixOfRelatives) const
{
    if (name.type == slow::None)
        return 0;
    PlainPath path = *this;
    PlainPath folder;
    path.parent(folder);
    int status = 0;
    path.cut(slow::trimSlash);
    path.parse(path.fullPath().value_or(L"").c_str(), &prefixOfRelatives);
    if (path.name.type != slow::None) {
        const unsigned int attributes = attributesOf(path.name.work);
        if (attributes != kNoAttributes)
            status = attributes & 1 ? 3 : 7;
    }
    if (folder.name.type != slow::None &&
        folder.parse(folder.fullPath().value_or(L"").c_str(), &prefixOfRelatives) == 0) {
        folder.cut(slow::trimSlash);
        if (!(attributesOf(folder.name.work) & 1))
            status |= 8;
    }
    return path.volume && path.volume->CheckReadOnly() ? status & 0xF3 : status;
}

OptionalText PlainPath::baseName() const
{
    return name.type == slow::None ? std::nullopt : std::make_optional(slow::baseOf(name));
}

OptionalText PlainPath::fileName() const
{
    const std::wstring base = baseName().value_or(L"");
    const bool isSingleName = isParsed() || name.type == kTypeOfHost;
    if (!isSingleName || name.type == slow::Wildcard || base.empty())
        return std::nullopt;
    return base.substr(0, base.rfind(L'.'));
}

OptionalText PlainPath::extension() const
{
    return name.type == slow::None ? std::nullopt : slow::extensionOf(name);
}

OptionalText PlainPath::fullPath() const
{
    if (name.type == slow::None)
        return std::nullopt;
    return isParsed() ? slow::fullPath(name) : name.work;
}

bool PlainPath::hasExtensionOf(const OptionalText& list) const
{
    return slow::hasExtensionOf(name, list.value_or(L""));
}

} // namespace ktqtbase::fuzz
