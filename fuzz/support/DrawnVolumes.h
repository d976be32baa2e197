// SPDX-License-Identifier: MIT
//
// The list of volumes, as an input has it.
#ifndef KTQTBASE_FUZZ_SUPPORT_DRAWNVOLUMES_H
#define KTQTBASE_FUZZ_SUPPORT_DRAWNVOLUMES_H

#include "support/Input.h"

#include <KtQtBase/VolumeDescriptor.h>

#include <algorithm>

namespace ktqtbase::fuzz {

// A host's volume with a case convention of its own.
class DrawnVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    using CRbUiNTFSVolumeDescriptor::CRbUiNTFSVolumeDescriptor;

    void VolCase(CStdStr<wchar_t>& name) const override
    {
        if (convention == 1)
            std::replace(name.begin(), name.end(), L'X', L'y');
        else if (convention == 2)
            KtErrorEat::strMakeUpper(name);
        else if (convention == 3)
            name.clear();
        else if (convention == 4)
            name.append(L"*");
    }

    unsigned int convention = 0;
};

// Puts volumes, and entries without one, into the list, which is empty again at the end.
class DrawnVolumes
{
public:
    explicit DrawnVolumes(Input& input)
    {
        static DrawnVolume volumes[] = {DrawnVolume(L"C:"), DrawnVolume(L"C:"), DrawnVolume(L"D:"),
                                        DrawnVolume(L"\u00C9:"), DrawnVolume(L"")};
        const unsigned int listed = input.byte();
        const unsigned int kinds = input.byte();
        for (unsigned int i = 0; i < 5; ++i) {
            volumes[i].convention = (kinds >> 5) * (listed >> i & 1);
            volumes[i].m_flags = static_cast<unsigned char>((kinds >> i & 1) << 5);
            if (listed >> i & 1)
                volumeList.append(&volumes[i]);
        }
        if (listed & 0x80)
            volumeList.prepend(nullptr);
    }
    DrawnVolumes(const DrawnVolumes&) = delete;
    DrawnVolumes& operator=(const DrawnVolumes&) = delete;
    ~DrawnVolumes() { volumeList.clear(); }
};

} // namespace ktqtbase::fuzz

#endif
