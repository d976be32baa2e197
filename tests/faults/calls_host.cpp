// SPDX-License-Identifier: MIT
//
// Reads a profile, copies a file, sets and reads a value of the registry and loads a module, all in a
// folder: calls-host FOLDER. Before that it asks for a file of the name that the test knows, so that
// the test can tell these calls from those of the start.
#include <KtQtBase/KtQtBase.h>

#include <QtCore/QSettings>

#include <clocale>
#include <cstdio>
#include <string>

#include <unistd.h>

int main(int, char** argv)
{
    std::setlocale(LC_ALL, "C.UTF-8");
    const QString folder = QString::fromUtf8(argv[1]);
    const auto in = [&](const char* name) { return (folder + name).toStdWString(); };
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
    static_cast<void>(access("/where the calls begin", F_OK));
    wchar_t text[16] = {};
    GetPrivateProfileString(L"S", L"k", L"none", text, 16, in("/a.ini").c_str());
    const bool copied = CopyFile(in("/from").c_str(), in("/to").c_str(), false);
    unsigned int stored = 1;
    {
        CRegKey key;
        key.Create(HKEY_CURRENT_USER, L"App");
        stored = key.SetValue(L"8", L"Count");
    }
    const HINSTANCE module = LoadLibrary(in("/copy").c_str());
    FreeLibrary(module);
    static_cast<void>(access("/where the calls end", F_OK));
    std::printf("%ls %d %u %d\n", text, copied, stored, module != nullptr);
}
