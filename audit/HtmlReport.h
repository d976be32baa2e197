// SPDX-License-Identifier: MIT
//
// A report for a browser.
#ifndef KTQTBASE_AUDIT_HTMLREPORT_H
#define KTQTBASE_AUDIT_HTMLREPORT_H

#include "Report.h"

#include <llvm/Support/raw_ostream.h>

namespace ktqtbase::audit {

// One page that needs no other file and no network.
void writeHtmlReport(const Report& report, llvm::raw_ostream& out);

} // namespace ktqtbase::audit

#endif
