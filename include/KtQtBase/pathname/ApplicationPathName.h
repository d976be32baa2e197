// SPDX-License-Identifier: MIT
//
// CRnUiPathname: the path object that an application uses. Its relative names lie in one folder of
// the process, g_CurrentDirPrefix.
//
//     ktuiSetCurrentDirPrefix();
//     CRnUiPathname name;
//     name.Parse(L"docs\\report.txt", false);
//     bool overwrites = name.Status() & 1;
#ifndef KTQTBASE_PATHNAME_APPLICATIONPATHNAME_H
#define KTQTBASE_PATHNAME_APPLICATIONPATHNAME_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/pathname/BasePathName.h>

class IKtFile;

// ---- The path object ---------------------------------------------------------------------------

// The order of the virtual functions is part of the interface: Parse, AssignCopy of a base, then
// AssignCopy of this class.
class KTQTBASE_EXPORT CRnUiPathname : public CRbUiPathname
{
public:
    // An unparsed path object.
    CRnUiPathname();

    // A copy with strings of its own.
    CRnUiPathname(const CRnUiPathname& other);

    ~CRnUiPathname();

    // Parses a name; a relative one is taken as lying in g_CurrentDirPrefix.
    //   name    in: the name given; it may point into this object's own strings
    //   flag    not used
    // Result: 0 done; 1 a bad name, null, or a relative name while g_CurrentDirPrefix is unparsed.
    int Parse(const wchar_t* name, bool flag) override;

    // Makes this object a copy of another, as the base's AssignCopy does.
    using CRbUiPathname::AssignCopy;
    virtual void AssignCopy(const CRnUiPathname& other);

    // Inert: returns 0; *file is not written.
    // On Windows: the file is opened.
    KTQTBASE_INERT("returns 0; *file is not written.")
    int Open(IKtFile** file, const wchar_t* mode);

    // What may be done with the file or folder, as the file system says now. This object stays as
    // it is.
    // Result: the sum of
    //   1    the name exists
    //   2    it may be read
    //   4    it may be written
    //   8    its folder may be written
    // 0 for an unparsed object; 4 and 8 are never given on a read-only volume.
    // Raises std::out_of_range if GetParent does.
    //   an existing file => 3, 7, 11 or 15, by bit 0 of file and folder
    //   a missing one    => 0 or 8, by bit 0 of the folder
    // Kept: 4 and 8 mean that bit 0 of GetFileAttributes, the execute permission of others, is
    // clear. Part of the interface.
    int Status();
};

// ---- The current folder ------------------------------------------------------------------------

// The folder in which relative names lie; unparsed from load until ktuiSetCurrentDirPrefix. Shared
// by all path objects and not locked: set it on the main thread before names are parsed.
extern KTQTBASE_EXPORT CRnUiPathname g_CurrentDirPrefix;

// Makes g_CurrentDirPrefix the executable's folder, as GetCurrentDirectoryW gives it, with a
// closing separator.
// Result: whether its name could be parsed; if not, g_CurrentDirPrefix is unparsed. It cannot if it
// holds a colon, or characters that LC_CTYPE does not know: set a UTF-8 LC_CTYPE first.
// On Windows: the working directory.
KTQTBASE_EXPORT bool ktuiSetCurrentDirPrefix();

// ---- The parts of Status -----------------------------------------------------------------------

// Parses a path object's name again without its closing separator, through its virtual Parse, and
// asks for the attributes.
//   path    in/out: the path object
//   work    in: where the pointer to its work string lies
// Result: 0 nothing of that name; 3 attribute bit 0 set; else 7.
KTQTBASE_EXPORT int ProcessPathStatus(CRnUiPathname& path, CStdStr<wchar_t>** work);

// Parses a folder's name again, through its virtual Parse, removes its closing separator, and adds
// 8 to a status if attribute bit 0 is clear.
//   parent    in/out: the folder's path object
//   work      in: where the pointer to its work string lies
//   status    in/out: the status
KTQTBASE_EXPORT void ProcessParentStatus(CRnUiPathname& parent, CStdStr<wchar_t>** work,
                                         int& status);

#endif
