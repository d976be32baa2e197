// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Files.h>

#include "string/TextConversion.h"

#include <fstream>

namespace {

// Opens the file of a name; a name that did not convert opens nothing.
template<class Stream>
void openBinary(Stream& stream, const ktqtbase::NarrowText& name)
{
    if (name.converted())
        stream.open(name.c_str(), std::ios::binary);
}

} // namespace

bool CopyFile(const wchar_t* lpExistingFileName, const wchar_t* lpNewFileName, bool)
{
    std::ifstream source;
    std::ofstream destination;
    openBinary(source, ktqtbase::NarrowText(lpExistingFileName));
    openBinary(destination, ktqtbase::NarrowText(lpNewFileName));
    destination << source.rdbuf();
    return true;
}
