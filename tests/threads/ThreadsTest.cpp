// SPDX-License-Identifier: MIT
//
// Eight threads at once, each with objects of its own, while nobody changes what they share: the
// global objects, the locale and the working directory. Each must see what one thread alone saw.
// ThreadSanitizer looks on in a build of its own.
#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/WindowsFunctions.h>

#include "support/RandomNames.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

namespace {

using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::writeFile;

constexpr int kThreads = 8;
constexpr int kRounds = 200;

// What one thread does, by its number, and all that it sees.
using Work = std::function<std::wstring(int)>;

void expectTheSameInThreads(const Work& work)
{
    std::vector<std::wstring> alone;
    for (int i = 0; i < kThreads; ++i)
        alone.push_back(work(i));
    std::vector<std::wstring> together(kThreads);
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&together, &work, i] { together[std::size_t(i)] = work(i); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(together, alone);
    for (const std::wstring& seen : alone)
        EXPECT_FALSE(seen.empty());
}

std::wstring partsOf(CRnUiPathname& name)
{
    CStdStr<wchar_t> full;
    CStdStr<wchar_t> display;
    name.GetFullPath(full);
    name.GetDisplayName(display, 12);
    return full + L'|' + display + L'|' + std::to_wstring(name.m_category) + L'|' +
           std::to_wstring(name.m_type) + L'\n';
}

TEST(Threads, ParseAndEditNamesOfTheirOwn)
{
    expectTheSameInThreads([](int thread) {
        RandomNames random;
        std::wstring seen;
        for (int round = 0; round < kRounds + thread; ++round) {
            CRnUiPathname name;
            seen += std::to_wstring(name.Parse(random.name().c_str(), false));
            name.AddExtensionIfNoMatch(L"txt;doc");
            seen += partsOf(name);
            CRnUiPathname copy;
            copy.AssignCopy(name);
            copy.ReplaceExtensionIfNoMatch(L"dwg");
            seen += partsOf(copy);
        }
        return seen;
    });
}

TEST(Threads, AskTheDiskForNames)
{
    const TemporaryFolder folder;
    writeFile(folder / "file.txt", "x");
    const std::wstring file = (folder / "file.txt").wstring();
    const std::wstring missing = (folder / "missing.txt").wstring();
    expectTheSameInThreads([&](int) {
        std::wstring seen;
        for (int round = 0; round < kRounds; ++round) {
            CRnUiPathname name;
            name.Parse(file.c_str(), false);
            seen += std::to_wstring(name.Status()) +
                    std::to_wstring(GetFileAttributes(file.c_str())) +
                    std::to_wstring(GetFileAttributes(missing.c_str())) + L'\n';
        }
        return seen;
    });
}

TEST(Threads, ReadProfiles)
{
    const TemporaryFolder folder;
    for (int i = 0; i < kThreads; ++i)
        writeFile(folder / (std::to_string(i) + ".ini"),
                  "[Section]\nWidth = " + std::to_string(i) + "\nTitle = \"\xC3\xA9\"\n");
    expectTheSameInThreads([&](int thread) {
        std::wstring seen;
        for (int round = 0; round < kRounds; ++round) {
            // One of its own and one that another thread reads at the same time.
            for (const int file : {thread, (thread + round) % kThreads}) {
                const std::wstring name = (folder / (std::to_string(file) + ".ini")).wstring();
                wchar_t title[32] = {};
                GetPrivateProfileString(L"Section", L"Title", L"none", title, 32, name.c_str());
                seen += title + std::to_wstring(
                                    GetPrivateProfileInt(L"Section", L"Width", 0, name.c_str()));
            }
        }
        return seen;
    });
}

TEST(Threads, ConvertAndEditTexts)
{
    expectTheSameInThreads([](int thread) {
        RandomNames random;
        std::wstring seen;
        for (int round = 0; round < kRounds + thread; ++round) {
            CStdStr<wchar_t> text(random.name() + L" \u00e4\u4e00 ");
            text.TrimLeft().TrimRight();
            seen += text.Left(7) + text.Mid(2, 3) + std::to_wstring(text.Find(L"a"));
            KtErrorEat::strMakeUpper(text);
            seen += text;
            KtErrorEat::strMakeLower(text);
            seen += text + L'\n';
        }
        return seen;
    });
}

TEST(Threads, ValidateNamesByVolumesOfTheirOwn)
{
    expectTheSameInThreads([](int) {
        RandomNames random;
        CRbUiNTFSVolumeDescriptor volume(CStdStr<wchar_t>(L"C:"));
        volume.m_maxComponentLen = 255;
        std::wstring seen;
        for (int round = 0; round < kRounds; ++round) {
            const CStdStr<wchar_t> segment(random.name());
            seen += volume.ValidateSegment(&segment, false) ? L'y' : L'n';
        }
        return seen;
    });
}

} // namespace
