// SPDX-License-Identifier: MIT
//
// Tells in which order the library's global objects die: a volume in its destructor, the prefix of
// relative names when its work string is freed.
#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

class LastVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    LastVolume() : CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(L"C:")) {}
    ~LastVolume() override
    {
        std::puts(g_CurrentDirPrefix.m_type == PT_NONE ? "volume, prefix gone" : "volume");
    }
};

const void* g_prefixText = nullptr;

// Shares the list's storage for as long as the list lives.
const QList<CRbUiVolumeDescriptor*>* g_sharer = nullptr;

void freeAndTell(void* block)
{
    if (block && block == g_prefixText)
        std::puts(g_sharer->isDetached() ? "prefix, list gone" : "prefix");
    std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* block = std::malloc(size ? size : 1))
        return block;
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept
{
    freeAndTell(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    freeAndTell(block);
}

int main()
{
    volumeList.append(new LastVolume);
    g_sharer = new QList<CRbUiVolumeDescriptor*>(volumeList);
    if (g_CurrentDirPrefix.ParseRelative(L"/no such/", nullptr, false) != 0)
        return 1;
    g_prefixText = g_CurrentDirPrefix.m_pWork;
}
