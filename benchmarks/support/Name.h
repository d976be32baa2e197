// SPDX-License-Identifier: MIT
#ifndef KTQTBASE_BENCHMARKS_NAME_H
#define KTQTBASE_BENCHMARKS_NAME_H

#include <KtQtBase/PathName.h>

namespace bench {

// A path name on the heap: final, since the destructor of its base is not virtual.
class Name final : public CRbUiPathname
{};

} // namespace bench

#endif
