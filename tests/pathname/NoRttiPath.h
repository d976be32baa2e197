// SPDX-License-Identifier: MIT
//
// A host's path object whose source is compiled without run-time type information.
#ifndef KTQTBASE_TESTS_PATHNAME_NORTTIPATH_H
#define KTQTBASE_TESTS_PATHNAME_NORTTIPATH_H

#include <KtQtBase/PathName.h>

#include <string>

// What such an object holds after a call, and how often its own AssignCopy ran.
struct NoRttiResult
{
    std::wstring work;
    path_type type;
    int copies;
};

NoRttiResult parentInNoRttiPath(const CRbUiPathname& name);
NoRttiResult parentOfNoRttiPathInItself(const CRbUiPathname& name);
NoRttiResult uniqueNameInNoRttiPath(const CRbUiPathname& name);

#endif
