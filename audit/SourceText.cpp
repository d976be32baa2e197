// SPDX-License-Identifier: MIT
#include "SourceText.h"
#include "TextFile.h"

#include <llvm/ADT/ArrayRef.h>
#include <llvm/Support/ConvertUTF.h>

#include <stdexcept>

namespace ktqtbase::audit {

std::string readSourceText(const std::string& path)
{
    std::string text = readTextFile(path);
    const std::string mark = text.substr(0, 2);
    if (mark != "\xFF\xFE" && mark != "\xFE\xFF")
        return text;
    std::string utf8;
    if (!llvm::convertUTF16ToUTF8String(llvm::ArrayRef<char>(text.data(), text.size()), utf8))
        throw std::runtime_error("not UTF-16 text, though it begins with its mark");
    return utf8;
}

} // namespace ktqtbase::audit
