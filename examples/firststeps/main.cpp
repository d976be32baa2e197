// SPDX-License-Identifier: MIT
#include <KtQtBase/KtQtBase.h>

#include <clocale>
#include <cstdio>

int main()
{
    // File names are UTF-8. That locale is called "UTF-8" on macOS and "C.UTF-8" on Linux.
    if (!std::setlocale(LC_CTYPE, "UTF-8"))
        std::setlocale(LC_CTYPE, "C.UTF-8");
    ktuiSetCurrentDirPrefix(); // relative names lie in this program's folder

    CRnUiPathname name;
    if (name.Parse(L"\"docs\\Quarterly Report.docx\"", false) != 0)
        return 1;
    CStdStr<wchar_t> path;
    name.GetFullPath(path); // .../docs/Quarterly Report.docx
    std::printf("%ls\n", path.c_str());

    HINSTANCE texts = LoadLibrary(L"plugins/texts.dll"); // libtexts.so, libtexts.dylib
    std::puts(texts ? "the texts are loaded" : "there are no texts");
}
