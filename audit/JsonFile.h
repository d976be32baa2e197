// SPDX-License-Identifier: MIT
//
// Reads JSON that anybody may have written.
#ifndef KTQTBASE_AUDIT_JSONFILE_H
#define KTQTBASE_AUDIT_JSONFILE_H

#include <llvm/Support/JSON.h>

#include <string>

namespace ktqtbase::audit {

// Throws std::runtime_error if the text is no JSON, or is nested so deeply that LLVM's reader, which
// calls itself for each level, would crash.
llvm::json::Value parseJson(const std::string& text);

} // namespace ktqtbase::audit

#endif
