// SPDX-License-Identifier: MIT
//
// Which of the names that a binary needs count.
#ifndef KTQTBASE_AUDIT_SYMBOLLOOKUP_H
#define KTQTBASE_AUDIT_SYMBOLLOOKUP_H

#include "BinaryFile.h"
#include "Catalogue.h"
#include "SymbolNames.h"

namespace ktqtbase::audit {

// Result: null if the symbol does not count: it is the program's own, or that of a library which is
// not Windows'.
//   name    what plainName makes of the symbol's name
const Entry* lookUp(Catalogue& catalogue, const Symbol& symbol, const PlainName& name);

} // namespace ktqtbase::audit

#endif
