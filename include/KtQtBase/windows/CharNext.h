// SPDX-License-Identifier: MIT
//
// The step to the next character of a text.
//
//     for (const wchar_t* p = text; *p; p = CharNext(p))
//         count(*p);
#ifndef KTQTBASE_WINDOWS_CHARNEXT_H
#define KTQTBASE_WINDOWS_CHARNEXT_H

#include <KtQtBase/Export.h>

// The next character of a text.
//   lpsz    in: a position in a text
// Result: lpsz + 1, also at the terminator.
// On Windows: at the terminator lpsz itself is returned.
KTQTBASE_EXPORT const wchar_t* CharNext(const wchar_t* lpsz);

#endif
