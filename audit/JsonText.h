// SPDX-License-Identifier: MIT
//
// Texts in JSON.
#ifndef KTQTBASE_AUDIT_JSONTEXT_H
#define KTQTBASE_AUDIT_JSONTEXT_H

#include <llvm/Support/JSON.h>

#include <string>

namespace ktqtbase::audit {

// JSON has UTF-8 only; names of files may be anything.
inline llvm::json::Value jsonText(const std::string& text)
{
    return llvm::json::fixUTF8(text);
}

// Writes a member that has a text; one without is left out.
inline void jsonAttribute(llvm::json::OStream& json, llvm::StringRef key, const std::string& text)
{
    if (!text.empty())
        json.attribute(key, jsonText(text));
}

} // namespace ktqtbase::audit

#endif
