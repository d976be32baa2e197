// SPDX-License-Identifier: MIT
//
// A path object as its description reads, step for step, over plain values: what the library's own
// must do, on the drawn disk. Where slow::Name tells how, that is asked.
#ifndef KTQTBASE_FUZZ_SUPPORT_PLAINPATH_H
#define KTQTBASE_FUZZ_SUPPORT_PLAINPATH_H

#include "support/SlowPathName.h"

#include <KtQtBase/VolumeDescriptor.h>

#include <optional>
#include <string>

namespace ktqtbase::fuzz {

using OptionalText = std::optional<std::wstring>;

class PlainPath
{
public:
    PlainPath() { name.type = slow::None; }

    bool isParsed() const { return name.type >= slow::NotFound && name.type <= slow::Directory; }

    void empty();
    int parse(const OptionalText& text, const PlainPath* base);
    // Relative to the folder that the disk names.
    int parseInCurrentDirectory(const OptionalText& text);

    // The edits. Result: the result code.
    int cut(int (*edit)(slow::Name&));
    int appendSlash();
    int append(const OptionalText& text);
    int appendComponent(const OptionalText& text);
    int replaceExtension(const OptionalText& extension);
    int replaceExtensionIfNoMatch(const OptionalText& list);
    int addExtension(const OptionalText& extension);
    int addExtensionIfNoMatch(const OptionalText& list);
    void removeExtension();
    void removeExtensionIfMatch(const OptionalText& list);
    void removeSpaces();
    void changeCase(bool upper);

    // Fills in the parent, which may be this object. Result: false where std::out_of_range is
    // raised instead.
    bool parent(PlainPath& parent) const;

    // Fills in a name that is free, by the next numbers of rand().
    bool uniqueName(PlainPath& result, bool force) const;

    bool exists();
    bool rename(const OptionalText& newName, int resultOfSystem);
    // Only where the parent raises nothing.
    int status(const PlainPath& prefixOfRelatives) const;

    // What the queries fill in; none where they leave a text as it was.
    OptionalText baseName() const;
    OptionalText fileName() const;
    OptionalText extension() const;
    OptionalText fullPath() const;
    bool hasExtensionOf(const OptionalText& list) const;

    slow::Name name; // of type None: nothing is parsed, and there is no text
    const CRbUiVolumeDescriptor* volume = nullptr;
    bool isQualified = false;

private:
    void lookUp();
    void setVolume(const CRbUiVolumeDescriptor* found);
    bool isUsable();
    int cutToFolder(std::size_t extension);
    bool findFreeDigits(std::size_t place);
};

// The first item of a list of extensions.
std::wstring firstItem(const OptionalText& list);

} // namespace ktqtbase::fuzz

#endif
