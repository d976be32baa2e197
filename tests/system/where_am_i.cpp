// SPDX-License-Identifier: MIT
//
// Prints what the library says of the place of this executable, one "name=value" a line.
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/Modules.h>

#include <QtCore/QString>

#include <clocale>
#include <cstdio>
#include <cwchar>

namespace {

constexpr unsigned int kRoom = 1100;

struct Poisoned
{
    Poisoned()
    {
        std::wmemset(text, L'#', kRoom);
        text[kRoom] = L'\0';
    }
    wchar_t text[kRoom + 1];
};

void printText(const char* name, const wchar_t* text)
{
    const QByteArray narrow = text ? QString::fromWCharArray(text).toUtf8() : "(null)";
    std::printf("%s=%s\n", name, narrow.constData());
}

void printDirectory(const char* name, unsigned int (*function)(unsigned int, wchar_t*))
{
    Poisoned buffer;
    std::printf("%s.result=%u\n", name, function(1024, buffer.text));
    printText(name, buffer.text);
}

void printModule()
{
    Poisoned buffer;
    std::printf("module.result=%u\n", GetModuleFileName(nullptr, buffer.text, kRoom));
    printText("module", buffer.text);
}

// Parses over an earlier name, which shows whether the object was touched.
void printParse(const char* name, const wchar_t* text)
{
    CRbUiPathname path;
    path.ParseRelative(L"/kept", nullptr, false);
    std::printf("%s.result=%d\n", name, path.Parse(text, false));
    printText(name, path.GetPathString());
    std::printf("%s.type=%d\n", name, path.m_type);
    std::printf("%s.prefix", name);
    printText("", path.m_pRelPath ? path.m_pRelPath->c_str() : nullptr);
}

// Asks again when the objects that main's questions may have made are gone.
struct AtExit
{
    ~AtExit() { printDirectory("exit", GetCurrentDirectoryW); }
};

const AtExit g_atExit;

} // namespace

int main()
{
    std::setlocale(LC_ALL, "C.UTF-8");
    printDirectory("directory", GetCurrentDirectoryW);
    printDirectory("twin", KtKernel32::GetCurrentDirectoryW);
    printModule();
    printParse("relative", L"where_am_i");
    printParse("rooted", L"/x");
    printParse("drive", L"c:x");
    printParse("null", nullptr);
}
