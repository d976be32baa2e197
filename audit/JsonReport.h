// SPDX-License-Identifier: MIT
//
// Reports for other programs: one that has everything, and one for the sites that host code.
#ifndef KTQTBASE_AUDIT_JSONREPORT_H
#define KTQTBASE_AUDIT_JSONREPORT_H

#include "Report.h"

#include <llvm/Support/raw_ostream.h>

namespace ktqtbase::audit {

void writeJsonReport(const Report& report, llvm::raw_ostream& out, unsigned indentation = 2);

// SARIF 2.1.0: a result for each place where a name is used that does not just work.
void writeSarifReport(const Report& report, llvm::raw_ostream& out);

} // namespace ktqtbase::audit

#endif
