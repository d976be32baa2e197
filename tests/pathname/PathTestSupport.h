// SPDX-License-Identifier: MIT
//
// What the tests of path names share: texts behind pointers, and volumes of their own.
#ifndef KTQTBASE_TESTS_PATHNAME_PATHTESTSUPPORT_H
#define KTQTBASE_TESTS_PATHNAME_PATHTESTSUPPORT_H

#include <KtQtBase/PathName.h>

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace ktqtbase::test {

using Text = CStdStr<wchar_t>;

// The characters, or null for none, for EXPECT_STREQ.
inline const wchar_t* chars(const Text* text)
{
    return text ? text->c_str() : nullptr;
}

// A volume that records what it is given and turns every 'X' into 'y'.
class RecordingVolume : public CRbUiVolumeDescriptor
{
public:
    explicit RecordingVolume(const wchar_t* localName) : CRbUiVolumeDescriptor(Text(localName)) {}

    bool ValidateFilename(const Text*, bool) const override { return true; }
    bool ValidateSegment(const Text*, bool) const override { return true; }
    void VolCase(Text& name) const override
    {
        seen.push_back(name);
        std::replace(name.begin(), name.end(), L'X', L'y');
    }

    mutable std::vector<Text> seen;
};

// The list of volumes for one test. It is emptied at the end, since the library deletes what it
// finds there.
class ListedVolumes
{
public:
    ListedVolumes(std::initializer_list<CRbUiVolumeDescriptor*> volumes)
    {
        for (CRbUiVolumeDescriptor* volume : volumes)
            volumeList.append(volume);
    }
    ListedVolumes(const ListedVolumes&) = delete;
    ListedVolumes& operator=(const ListedVolumes&) = delete;
    ~ListedVolumes() { volumeList.clear(); }
};

} // namespace ktqtbase::test

#endif
