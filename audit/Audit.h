// SPDX-License-Identifier: MIT
//
// Reads all files and finds the names that they use.
#ifndef KTQTBASE_AUDIT_AUDIT_H
#define KTQTBASE_AUDIT_AUDIT_H

#include "Catalogue.h"
#include "Inputs.h"
#include "Report.h"

namespace ktqtbase::audit {

Report audit(Catalogue& catalogue, Inputs&& inputs);

} // namespace ktqtbase::audit

#endif
