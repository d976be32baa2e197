// SPDX-License-Identifier: MIT
#ifndef KTQTBASE_PATHNAME_PARSEDSTATE_H
#define KTQTBASE_PATHNAME_PARSEDSTATE_H

#include <KtQtBase/PathName.h>

namespace ktqtbase {

// Whether a type is one that a parse gives, PT_NOT_FOUND to PT_DIRECTORY.
inline bool isParsed(path_type type)
{
    return static_cast<unsigned int>(type) - 1 < 4;
}

} // namespace ktqtbase

#endif
