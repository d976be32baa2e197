// SPDX-License-Identifier: MIT
//
// Looking a volume up by its local name at the end of the list, beside a search through a plain
// vector of the same names.
#include "support/Name.h"
#include "support/Rows.h"

#include <KtQtBase/VolumeDescriptor.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using bench::Row;

CStdStr<wchar_t> volumeName(int number)
{
    return CStdStr<wchar_t>(L"Volume ") + std::to_wstring(1000 + number);
}

// The list grown to a length for one measurement, then as it was.
class LongList
{
public:
    explicit LongList(int length) : m_before(volumeList)
    {
        for (int number = volumeList.size(); number < length; ++number) {
            m_volumes.push_back(std::make_unique<CRbUiNTFSVolumeDescriptor>(volumeName(number)));
            volumeList.append(m_volumes.back().get());
        }
    }
    LongList(const LongList&) = delete;
    LongList& operator=(const LongList&) = delete;
    ~LongList() { volumeList = m_before; }

private:
    QList<CRbUiVolumeDescriptor*> m_before;
    std::vector<std::unique_ptr<CRbUiVolumeDescriptor>> m_volumes;
};

auto searchVector(int length)
{
    std::vector<std::unique_ptr<std::wstring>> names;
    for (int number = 0; number < length; ++number)
        names.push_back(std::make_unique<std::wstring>(volumeName(number)));
    auto shared = std::make_shared<decltype(names)>(std::move(names));
    return [shared, wanted = std::wstring(volumeName(length - 1))] {
        const auto found = std::find_if(shared->begin(), shared->end(),
                                        [&](const auto& name) { return *name == wanted; });
        benchmark::DoNotOptimize(found);
    };
}

void addLookup(int length)
{
    Row("FindVolumeDescriptor", std::to_string(length))
        .library([=] {
            return [list = std::make_shared<LongList>(length),
                    path = std::make_shared<bench::Name>(), name = volumeName(length - 1)] {
                benchmark::DoNotOptimize(path->FindVolumeDescriptor(name));
            };
        })
        .reference("std::vector", [=] { return searchVector(length); });
}

} // namespace

void bench::addVolumeRows()
{
    for (const int length : {8, 32, 128, 512})
        addLookup(length);
}
