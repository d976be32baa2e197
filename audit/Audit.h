// SPDX-License-Identifier: MIT
//
// Reads all files and finds the names that they use.
#ifndef KTQTBASE_AUDIT_AUDIT_H
#define KTQTBASE_AUDIT_AUDIT_H

#include "Catalogue.h"
#include "Report.h"

#include <string>
#include <vector>

namespace ktqtbase::audit {

Report audit(Catalogue& catalogue, const std::vector<std::string>& paths);

} // namespace ktqtbase::audit

#endif
