// SPDX-License-Identifier: MIT
//
// What can be done with a path object of a type.
#ifndef KTQTBASE_PATHNAME_PRIVATE_PATHTYPES_H
#define KTQTBASE_PATHNAME_PRIVATE_PATHTYPES_H

#include <KtQtBase/pathname/PathTypes.h>

namespace ktqtbase {

// Never given by a parse. A host may set it for a name that it knows to exist.
constexpr path_type kKnownToExist = static_cast<path_type>(5);

// Whether a type is one that a parse gives, PT_NOT_FOUND to PT_DIRECTORY.
inline bool isParsed(path_type type)
{
    return type >= PT_NOT_FOUND && type <= PT_DIRECTORY;
}

// Whether a type names something, given by a parse or by a host.
inline bool isNamed(path_type type)
{
    return isParsed(type) || type == kKnownToExist;
}

// Whether a type names one thing and not a pattern.
inline bool isSingleName(path_type type)
{
    return isNamed(type) && type != PT_WILDCARD;
}

// Whether a type may be worked out again from the file system.
inline bool canBeLookedUp(path_type type)
{
    return isSingleName(type) && type != kKnownToExist;
}

} // namespace ktqtbase

#endif
