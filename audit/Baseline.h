// SPDX-License-Identifier: MIT
//
// Compares a report with an earlier one.
#ifndef KTQTBASE_AUDIT_BASELINE_H
#define KTQTBASE_AUDIT_BASELINE_H

#include "Report.h"

#include <string>

namespace ktqtbase::audit {

// Leaves in a report what the earlier one, written by --json, does not have: names that were not
// used or were in another group, and names that are used more often, with the files where they are.
// Lines may move. Throws a std::exception if the file cannot be read or is no report.
void keepNew(Report& report, const std::string& earlierReport);

} // namespace ktqtbase::audit

#endif
