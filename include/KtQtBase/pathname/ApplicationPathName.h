// SPDX-License-Identifier: MIT
//
// CRnUiPathname: the path name that an application uses. Its relative names lie in one folder of
// the process, g_CurrentDirPrefix.
//
//     ktuiSetCurrentDirPrefix();
//     CRnUiPathname name;
//     name.Parse(L"docs\\report.txt", false);
//     bool overwrites = name.Status() & 1;
#ifndef KTQTBASE_PATHNAME_APPLICATIONPATHNAME_H
#define KTQTBASE_PATHNAME_APPLICATIONPATHNAME_H

#include <KtQtBase/Export.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/pathname/BasePathName.h>

class IKtFile;

// ---- The path name -----------------------------------------------------------------------------

// The order of the virtual functions is part of the interface: Parse, AssignCopy of a base, then
// AssignCopy of this class.
class KTQTBASE_EXPORT CRnUiPathname : public CRbUiPathname
{
public:
    // An unparsed name.
    CRnUiPathname();

    // A copy with strings of its own.
    CRnUiPathname(const CRnUiPathname& other);

    ~CRnUiPathname();

    // Parses a name; a relative one is taken as lying in g_CurrentDirPrefix.
    //   name    in: the name; it may point into this object's own strings
    //   flag    not used
    // Result: 0 done; 1 a bad name, null, or a relative name while the prefix is unparsed.
    int Parse(const wchar_t* name, bool flag) override;

    // Makes this object a copy of another, as the base's AssignCopy does.
    using CRbUiPathname::AssignCopy;
    virtual void AssignCopy(const CRnUiPathname& other);

    // Inert: returns 0; *file is not written.
    // On Windows: the file is opened.
    int Open(IKtFile** file, const wchar_t* mode);

    // What may be done with the name, asked of the file system now. This object stays as it is.
    // Result: the sum of
    //   1    the name exists
    //   2    it may be read
    //   4    it may be written
    //   8    its folder may be written
    // 0 for an unparsed name; 4 and 8 are never given on a read-only volume.
    //   an existing file, 15 or 3 or 11 or 7 by bit 0 of file and folder; a missing one, 8 or 0
    // Raises std::out_of_range where GetParent does.
    // Kept: 4 and 8 are told by bit 0 of GetFileAttributes being clear, which is the execute
    // permission of others; hosts take them as hints.
    int Status();
};

// ---- The current folder ------------------------------------------------------------------------

// The folder in which relative names lie; unparsed from load until ktuiSetCurrentDirPrefix. Shared
// by all path names and not locked: set it on the main thread before names are parsed.
extern KTQTBASE_EXPORT CRnUiPathname g_CurrentDirPrefix;

// Makes the executable's folder, as GetCurrentDirectoryW tells it, the prefix of relative names,
// with a closing separator.
// Result: whether there is such a folder; the prefix is unparsed where there is none.
// On Windows: the working directory.
KTQTBASE_EXPORT bool ktuiSetCurrentDirPrefix();

// ---- The parts of Status -----------------------------------------------------------------------

// Parses a name again without its closing separator, through its virtual Parse, and asks for its
// attributes.
//   path    in/out: the name
//   work    in: where the name's own work string lies
// Result: 0 nothing of that name; 3 attribute bit 0 set; else 7.
KTQTBASE_EXPORT int ProcessPathStatus(CRnUiPathname& path, CStdStr<wchar_t>** work);

// Parses a folder again, through its virtual Parse, takes its closing separator off, and adds 8 to
// a status where its attribute bit 0 is clear.
//   parent    in/out: the folder
//   work      in: where the folder's own work string lies
//   status    in/out: the status
KTQTBASE_EXPORT void ProcessParentStatus(CRnUiPathname& parent, CStdStr<wchar_t>** work,
                                         int& status);

#endif
