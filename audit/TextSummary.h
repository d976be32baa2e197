// SPDX-License-Identifier: MIT
//
// The part of a report that is read in ten seconds.
#ifndef KTQTBASE_AUDIT_TEXTSUMMARY_H
#define KTQTBASE_AUDIT_TEXTSUMMARY_H

#include "Report.h"
#include "Style.h"

#include <llvm/Support/raw_ostream.h>

namespace ktqtbase::audit {

void writeTextSummary(const Report& report, const Style& style, llvm::raw_ostream& out);

} // namespace ktqtbase::audit

#endif
