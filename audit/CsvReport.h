// SPDX-License-Identifier: MIT
//
// A report for a table.
#ifndef KTQTBASE_AUDIT_CSVREPORT_H
#define KTQTBASE_AUDIT_CSVREPORT_H

#include "Report.h"

#include <llvm/Support/raw_ostream.h>

namespace ktqtbase::audit {

// A row for each place where a name is used.
void writeCsvReport(const Report& report, llvm::raw_ostream& out);

} // namespace ktqtbase::audit

#endif
