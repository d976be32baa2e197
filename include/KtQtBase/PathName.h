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
// A parse takes quotes and surrounding blanks off, turns backslashes into slashes, tells drive,
// rooted and relative names apart, looks the drive up in volumeList, and asks the file system what
// the name denotes. The drive stays in the name: how C: maps to a place in the file system is not
// decided here. Names of the form \\server\share are refused.
//
// A path name never changes the file system, never follows a link by itself and never removes "."
// or ".." from a name.
#ifndef KTQTBASE_PATHNAME_H
#define KTQTBASE_PATHNAME_H

#include <KtQtBase/Export.h>
#include <KtQtBase/VolumeDescriptor.h>
#include <KtQtBase/WideString.h>

// ---- What a name is ----------------------------------------------------------------------------

// How a name was classified, by its first two characters.
enum path_category : int
{
    PC_DRIVE = 0,   // a letter and a colon
    PC_UNC = 1,     // two separators
    PC_ROOTED = 2,  // one separator
    PC_RELATIVE = 3 // everything else
};

// What a name denotes.
enum path_type : int
{
    PT_NONE = 0,      // nothing parsed
    PT_NOT_FOUND = 1, // no file or folder of that name
    PT_WILDCARD = 2,  // the last component holds an asterisk or a question mark
    PT_FILE = 3,      // exists, and bit 0x10 of GetFileAttributes is clear
    PT_DIRECTORY = 4  // exists, and bit 0x10 of GetFileAttributes is set
};

// ---- The path name -----------------------------------------------------------------------------

// A parsed name. It owns its two strings and never its volume. The order of the virtual functions
// and of the fields is part of the interface; the destructor is not virtual.
//
// Results of type int: 0 done, 1 bad name or argument, 2 nothing parsed, 4 cannot be done.
class KTQTBASE_EXPORT CRbUiPathname
{
public:
    // An unparsed name. m_category stays unset until a parse.
    CRbUiPathname();

    // Frees the two strings.
    ~CRbUiPathname();

    // A copy of the fields would share the strings: use AssignCopy.
    CRbUiPathname(const CRbUiPathname&) = delete;
    CRbUiPathname& operator=(const CRbUiPathname&) = delete;

    // Parses a name; a relative one is taken as lying in the executable's folder.
    //   name    in: the name; it may point into this object's own strings
    //   flag    not used
    // Result: 0 done; 1 bad name, or null; 4 the executable's folder could not be parsed, and the
    // object is as it was.
    // On Windows: relative names lie in the working directory.
    virtual int Parse(const wchar_t* name, bool flag);

    // Makes this object a copy of another, with strings of its own.
    //   other    in: the name to copy. The object's own strings go first, so that a copy from
    //   itself
    //            leaves it unparsed.
    virtual void AssignCopy(const CRbUiPathname& other);

    // Parses a name; a relative one is taken as lying in a base.
    //   name    in: the name; it may point into this object's own strings
    //   base    in: a parsed name for relative names; may be null for others
    //   flag    not used
    // Result: 0 done; 1 bad name, and the object is unparsed (null leaves it as it was).
    //   The rows have a base /home/u/ and a volume C: that leaves case alone.
    //   L" \"/tmp/a b.txt\" "  => rooted,   /tmp/a b.txt, prefix empty
    //   L"c:\\dir\\f.abc"      => drive,    C:/dir/f.abc, no prefix
    //   L"docs\\f.txt"         => relative, docs/f.txt,   prefix /home/u/
    //   L"x:"                  => drive,    X:,           no prefix
    //   L"/"                   => rooted,   /
    //   L"\"open"              => relative, with the quote
    //   L"\\\\srv\\share", L"//", L"a:b:c", L"dir:file", L"1:", L"/a/b:c"  => 1
    //   L"", L"   ", L"\"\""   => 1
    int ParseRelative(const wchar_t* name, const CRbUiPathname* base, bool flag);

    // Back to the unparsed state. m_separator, m_category and m_bQualified stay.
    void Empty();

    // Ends the work string with the separator, where it does not end with one or with a colon.
    // Result: 0 done or nothing to do; 2 nothing parsed. m_type stays.
    //   /tmp => /tmp/     C: => C:     /tmp/ => /tmp/
    int AppendSlash();

    // Takes one pair of enclosing double quotes off a text, with what blanks stand outside them.
    //   s    in/out: the text; without such a pair it stays exactly as it is
    //   L" \"a b\" " => L"a b"     L"\"\"\"a\"\"" => L"\"\"a\""     L" a " => L" a "
    static void Unquote(CStdStr<wchar_t>& s);

    // Takes white space off both ends of a text.
    void StripSpaces(CStdStr<wchar_t>& s);

    // Looks a volume up in volumeList by its local name, exactly.
    //   name    in: such as L"C:"; an empty one finds nothing
    // Result: the first volume of that name; null where there is none. Not owned.
    const CRbUiVolumeDescriptor* FindVolumeDescriptor(const CStdStr<wchar_t>& name) const;

    // Inert: returns null; no descriptor is made and none is added to volumeList.
    // On Windows: a descriptor for the volume.
    const CRbUiVolumeDescriptor* NewVolDescriptor(const CStdStr<wchar_t>& volumeName) const;

    // Works out what a name denotes. The parse hands in this object's own fields.
    //   work       in: the name
    //   relPath    in: its prefix, or null
    //   type       out: set to PT_NOT_FOUND first, then to what the name denotes. A wildcard is
    //              looked for in this object's own last component, so that it is found only where
    //              the object is parsed by then, as it is when type points to its m_type.
    // Kept: a name is a folder exactly where its group may write (bit 0x10 of its mode), whatever
    // it is; hosts tell the two apart by that bit.
    void GetAttributes(const CStdStr<wchar_t>* work, const CStdStr<wchar_t>* relPath,
                       path_type* type);

    // The last component of the name: what follows the last separator, else the last colon.
    //   out    out: the component; untouched where nothing is parsed
    //   /tmp/dir => dir     /tmp/dir/ => (empty)     C:file.txt => file.txt     name => name
    void GetBasename(CStdStr<wchar_t>& out) const;

    // The last component without its extension.
    //   out    out: what stands before its last dot, or all of it; untouched for an empty
    //          component, a wildcard, and where nothing is parsed
    //   archive.tar.gz => archive.tar     .profile => (empty)     *.txt => untouched
    void GetFilename(CStdStr<wchar_t>& out) const;

    // The extension of the last component, without its dot.
    //   out    out: what follows its last dot; untouched where there is no dot
    //   archive.tar.gz => gz     name. => (empty)     name => untouched     *.txt => txt
    void GetExtension(CStdStr<wchar_t>& out) const;

    // The last character of a text, or 0 for an empty one.
    static wchar_t GetLastCharacter(const CStdStr<wchar_t>& s);

    // The prefix and the work string, joined by one separator. Only a relative name has a prefix.
    //   out    out: the full path; untouched where nothing is parsed
    // Result: whether a name is parsed.
    //   f.txt with prefix /home/u => /home/u/f.txt     C:/f.txt => C:/f.txt
    bool GetFullPath(CStdStr<wchar_t>& out) const;

    // The same into a buffer.
    //   out    out: the full path and its terminator, an empty string where nothing is parsed. The
    //          caller provides room enough; null gives false.
    bool GetFullPath(wchar_t* out) const;

    // The work string, or null where there is none. For a relative name it lacks the prefix. Valid
    // until the object is changed.
    const wchar_t* GetPathString() const;

    // The separator, m_separator.
    wchar_t GetSeparator() const;

    // Inert: returns true.
    // On Windows: the file system is searched for the name.
    bool ParseAndOSFind(const wchar_t* name);

    path_type m_type;                       // PT_NONE until a parse succeeds
    const CRbUiVolumeDescriptor* m_pVolume; // not owned; null where it is not known
    CStdStr<wchar_t>* m_pWork;              // owned: the normalised name, with its drive
    CStdStr<wchar_t>*
        m_pRelPath;           // owned: a relative name's base, empty for a rooted name, else null
    path_category m_category; // set by a parse
    wchar_t m_separator;      // slash
    // Set by a parse of a name with a separator or a colon. Kept: no later parse clears it; hosts
    // ask whether a qualified name was ever given.
    bool m_bQualified;
};

// ---- The parts of a parse ----------------------------------------------------------------------

// Turns backslashes into separators and reads the first two characters.
//   s         in/out: the text
//   sep       in: the separator
//   last      out: the last character as it was; untouched for an empty text
//   first     out: the first character, 0 for an empty text
//   second    out: the second one, 0 where there is none
KTQTBASE_EXPORT void GetWorkString(CStdStr<wchar_t>* s, wchar_t sep, wchar_t& last, wchar_t& first,
                                   wchar_t& second);

// Classifies a text.
//   first, second    in: its first two characters
//   sep              in: the separator
//   cat              in/out: PC_RELATIVE on entry; the category
//   s                in/out: the text; a drive letter is put in upper case
//   base             in: what a relative name would be relative to
// Result: 0 accepted; 1 a colon that does not belong to a drive, or a relative name without a
// parsed base.
KTQTBASE_EXPORT int GetPathCatType(wchar_t first, wchar_t second, wchar_t sep, path_category& cat,
                                   CStdStr<wchar_t>* s, const CRbUiPathname* base);

// Inert: no effect.
// On Windows: the components of a server and share name are counted.
KTQTBASE_EXPORT void GetUNCScount(CStdStr<wchar_t>* s, int* index, unsigned int& count, int& length,
                                  wchar_t sep);

// Ends a server and share name of the category PC_UNC with a separator, where nothing follows the
// share.
//   s        in/out: the text; of every other category it stays as it is, with its drive
//   index    in: where the part behind the volume begins
KTQTBASE_EXPORT void GetWorkPtrByIndex(path_category cat, CStdStr<wchar_t>* s, wchar_t sep,
                                       int index);

// Makes the prefix of a name.
//   text    in: the prefix of a rooted name
//   out     out: PC_RELATIVE: a new string with the full path of *base, null where that is empty;
//           PC_ROOTED: a new copy of text; untouched for other categories. The caller owns it.
//   base    in: where the base's pointer lies
KTQTBASE_EXPORT void GetRelPath(path_category cat, const CStdStr<wchar_t>* text,
                                CStdStr<wchar_t>** out, const CRbUiPathname** base);

// Inert: returns true; nothing is written.
// On Windows: the prefix and the work string are joined and looked at.
KTQTBASE_EXPORT bool GetPathBuffer(CStdStr<wchar_t>** relPath, bool flag, CStdStr<wchar_t>* work,
                                   wchar_t sep, const CRbUiVolumeDescriptor** volume = nullptr);

// Whether a name is a wildcard pattern: whether it holds an asterisk or a question mark.
//   type    out: PT_WILDCARD for a pattern, else untouched
KTQTBASE_EXPORT bool IsPathType(CStdStr<wchar_t> name, path_type* type);

// Asks the file system what a name denotes.
//   work       in: where the name's pointer lies
//   relPath    in: where its prefix's pointer lies; both may be null. A slash is put between the
//              two, also behind a prefix that ends with one.
//   type       out: where the pointer to the result lies: PT_NOT_FOUND, PT_FILE or PT_DIRECTORY
KTQTBASE_EXPORT void GetAttByPath(const CStdStr<wchar_t>** work, const CStdStr<wchar_t>** relPath,
                                  path_type** type);

#endif
