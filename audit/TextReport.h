// SPDX-License-Identifier: MIT
//
// A report for a person who reads it in a terminal.
#ifndef KTQTBASE_AUDIT_TEXTREPORT_H
#define KTQTBASE_AUDIT_TEXTREPORT_H

#include "Report.h"
#include "Style.h"

#include <llvm/Support/raw_ostream.h>

namespace ktqtbase::audit {

void writeTextReport(const Report& report, const Style& style, llvm::raw_ostream& out);

// All that the catalogue has about one name.
void writeEntry(const Entry& entry, const FamilyText& family, const Style& style,
                llvm::raw_ostream& out);

} // namespace ktqtbase::audit

#endif
