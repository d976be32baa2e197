// SPDX-License-Identifier: MIT
//
// Path names as a Windows program writes them, held in the form that the POSIX file system uses.
//
//     CRbUiPathname name;
//     if (name.Parse(L"\"C:\\docs\\report.txt\"", false) == 0) {
//         name.GetPathString();           // C:/docs/report.txt
//         CStdStr<wchar_t> extension;
//         name.GetExtension(extension);   // txt
//     }
//
// A parse removes enclosing quotes and white space, turns backslashes into slashes, tells drive,
// rooted and relative names apart, looks the drive up in volumeList, and asks the file system what
// the name denotes. The drive stays in the name: the library maps C: to no folder. Names of the
// form \\server\share are refused.
//
// Only Rename changes the file system. Look-ups follow symbolic links; a link whose target is
// missing counts as not found. "." and ".." are never removed from a name.
#ifndef KTQTBASE_PATHNAME_H
#define KTQTBASE_PATHNAME_H

#include <KtQtBase/pathname/ApplicationPathName.h>
#include <KtQtBase/pathname/BasePathName.h>
#include <KtQtBase/pathname/PathFunctions.h>
#include <KtQtBase/pathname/PathTypes.h>

#endif
