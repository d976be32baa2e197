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
// the name denotes. Names of the form \\server\share are refused.
//
// The drive stays in the name, and the library maps it to no folder: C:/docs is looked up as it
// stands, below a folder "C:" of the working directory, and is hardly ever found. A host that has
// names with drives replaces the drive by a folder of its own before it parses them.
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
