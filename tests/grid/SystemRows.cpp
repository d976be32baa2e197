// SPDX-License-Identifier: MIT
//
// Modules, files and temporary names.
#include "grid/Grid.h"

#include <KtQtBase/Porting.h>
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/Modules.h>

#include <dlfcn.h>
#include <langinfo.h>

#include <filesystem>

namespace ktqtbase::test {

namespace {

// ---- File names of modules ---------------------------------------------------------------------

using ModuleFileNameFunction = unsigned int (*)(HINSTANCE, wchar_t*, unsigned int);

// Its name has a character beyond ASCII.
const std::string kModuleFile = KTQTBASE_MODULE_FOLDER "/libm\u00f3dul.so";

std::string executable()
{
    return std::filesystem::read_symlink("/proc/self/exe");
}

HINSTANCE addressInModule()
{
    static void* const module = dlopen(kModuleFile.c_str(), RTLD_LAZY);
    return static_cast<HINSTANCE>(dlsym(module, "ktanswer"));
}

// The name and its terminator, cut at the size.
Promise<wchar_t> moduleFileNamePromise(const std::string& file, long long result, const Cell& cell)
{
    const std::wstring text = widened(file).text + L'\0';
    const std::wstring written = cell.isNull() ? L"" : text.substr(0, cell.size);
    return {result, written, written.size()};
}

GridRow ofMainProgram(const char* function, ModuleFileNameFunction call)
{
    return {function,
            "OfTheProgram",
            Locales::All,
            kAllColumns,
            [] { return widened(executable()).text.size() + 1; },
            kGreatestUnsigned,
            writes<wchar_t>(
                [call](wchar_t* out, std::size_t size) {
                    return call(nullptr, out, static_cast<unsigned int>(size));
                },
                [](const Cell& cell) { return moduleFileNamePromise(executable(), 0, cell); })};
}

GridRow ofModule(const char* function, ModuleFileNameFunction call)
{
    return {function,
            "OfAModule",
            Locales::All,
            kAllColumns,
            [] { return widened(kModuleFile).text.size() + 1; },
            kGreatestUnsigned,
            writes<wchar_t>(
                [call](wchar_t* out, std::size_t size) {
                    return call(addressInModule(), out, static_cast<unsigned int>(size)) != 0;
                },
                [](const Cell& cell) { return moduleFileNamePromise(kModuleFile, 1, cell); })};
}

// ---- The folder of the program -----------------------------------------------------------------

using CurrentDirectoryFunction = unsigned int (*)(unsigned int, wchar_t*);

constexpr std::size_t kFolderRoom = 1024;

Widened executableFolder()
{
    return widened(std::filesystem::path(executable()).parent_path());
}

// The size that is passed does not count, and the room is always 1,024. Behind the empty text of a
// folder that does not convert nothing is promised.
void callForFolder(const Cell& cell, CurrentDirectoryFunction call)
{
    const Widened folder = executableFolder();
    const Output<wchar_t> out(cell, kFolderRoom);
    EXPECT_EQ(call(static_cast<unsigned int>(cell.size), out.data()), 1024u);
    if (cell.isNull())
        out.expect(L"");
    else if (folder.whole)
        out.expect(folder.text + L'\0');
    else
        out.expect(L'\0' + out.text(kFolderRoom).substr(1));
}

GridRow ofCurrentDirectory(const char* function, CurrentDirectoryFunction call)
{
    return {function,
            "",
            Locales::All,
            kAllColumns,
            [] { return executableFolder().text.size() + 1; },
            kGreatestUnsigned,
            [call](const Cell& cell) { callForFolder(cell, call); }};
}

// ---- Temporary names ---------------------------------------------------------------------------

using TempFileNameFunction = unsigned int (*)(const wchar_t*, const wchar_t*, unsigned int,
                                              wchar_t*);

const std::wstring kTempName = L"/\u00e9\U0001F600/kt\u0131-1.tmp";

Promise<wchar_t> tempFileNamePromise(const Cell& cell)
{
    if (cell.isNull())
        return {0, L"", 0};
    return {static_cast<long long>(kTempName.size()), kTempName + L'\0', cell.size};
}

GridRow ofNumber(const char* function, TempFileNameFunction call)
{
    return {function,
            "WithANumber",
            Locales::All,
            kEnoughRoom,
            always(kTempName.size() + 1),
            0,
            writes<wchar_t>(
                [call](wchar_t* out, std::size_t) {
                    return call(L"/\u00e9\U0001F600/", L"kt\u0131", 0xFFFFFFFF, out);
                },
                tempFileNamePromise)};
}

// Six characters of the library's choice, and the locale that it sets.
GridRow ofChoice(const char* function, TempFileNameFunction call)
{
    constexpr std::size_t kRoom = 16;
    return {function,
            "OfItsChoice",
            Locales::All,
            {Column::Exact},
            always(kRoom),
            0,
            [call](const Cell& cell) {
                const Output<wchar_t> out(cell, kRoom);
                EXPECT_EQ(call(L"/kt\u00e9", nullptr, 0, out.data()), 14u);
                const std::wstring six = out.text(kRoom).substr(4, 6);
                EXPECT_EQ(six.find_first_of(std::wstring(L"./\0", 3)), std::wstring::npos);
                out.expect(L"/kt\u00e9" + six + L".tmp" + L'\0');
                EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8");
            }};
}

} // namespace

std::vector<GridRow> moduleRows()
{
    return {ofMainProgram("GetModuleFileName", ::GetModuleFileName),
            ofMainProgram("KtKernel32::GetModuleFileName", KtKernel32::GetModuleFileName),
            ofMainProgram("GetModuleFileNameW", GetModuleFileNameW),
            ofModule("GetModuleFileName", ::GetModuleFileName),
            ofModule("KtKernel32::GetModuleFileName", KtKernel32::GetModuleFileName),
            ofModule("GetModuleFileNameW", GetModuleFileNameW)};
}

std::vector<GridRow> fileRows()
{
    return {
        ofCurrentDirectory("GetCurrentDirectoryW", ::GetCurrentDirectoryW),
        ofCurrentDirectory("GetCurrentDirectory", GetCurrentDirectory),
        ofCurrentDirectory("KtKernel32::GetCurrentDirectoryW", KtKernel32::GetCurrentDirectoryW),
        ofNumber("GetTempFileName", ::GetTempFileName),
        ofNumber("GetTempFileNameW", GetTempFileNameW),
        ofChoice("GetTempFileName", ::GetTempFileName),
        ofChoice("GetTempFileNameW", GetTempFileNameW)};
}

} // namespace ktqtbase::test
