// SPDX-License-Identifier: MIT
//
// CRbUiPathname, the path object: a parsed name, its components, its edits, and what is asked of
// the file system.
#ifndef KTQTBASE_PATHNAME_BASEPATHNAME_H
#define KTQTBASE_PATHNAME_BASEPATHNAME_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/VolumeDescriptor.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/pathname/PathTypes.h>

#include <cstdio>

// A path object. It owns its two strings, the work string (m_pWork) and the prefix (m_pRelPath),
// and never its volume. The order of the virtual functions and of the fields is part of the
// interface; the destructor is not virtual.
//
// The comments use these words: the name given is the text that a parse gets; the last component is
// what follows the last separator of a name, or the last colon if there is no separator; a pattern
// is a name whose last component holds a wildcard, * or ?.
//
// A text passed in may point into this object's own strings. A string to be filled may be one of
// them: it gets what any other string would get.
//
// Results of type int, unless a function says otherwise: 0 done, 1 bad name or argument, 2 nothing
// parsed, 3 refused at the root, 4 cannot be done. Type 5, which only a host sets, counts as parsed
// for questions, which then leave the prefix out, and as not parsed for edits; but GetDisplayName
// and GetParent take it as not parsed, and RemoveSpaces, BaseToLower and BaseToUpper edit it.
class KTQTBASE_EXPORT CRbUiPathname
{
public:
    // An unparsed path object. m_category stays unset until a parse.
    CRbUiPathname();

    // Frees the two strings.
    ~CRbUiPathname();

    // A copy of the fields would share the strings: use AssignCopy.
    CRbUiPathname(const CRbUiPathname&) = delete;
    CRbUiPathname& operator=(const CRbUiPathname&) = delete;

    // Parses a name; a relative one is taken as lying in the executable's folder.
    //   name    in: the name given; it may point into this object's own strings
    //   flag    not used
    // Result: 0 done; 1 a bad name, as the rows of ParseRelative have them, and the object is
    // unparsed; 1 also for null, and 4 if the executable's folder could not be parsed: the object
    // then stays as it was, whatever the name.
    // On Windows: relative names lie in the working directory.
    virtual int Parse(const wchar_t* name, bool flag);

    // Makes this object a copy of another, with strings of its own.
    //   other    in: the path object to copy; a copy from the object itself leaves it unparsed
    virtual void AssignCopy(const CRbUiPathname& other);

    // Parses a name; a relative one is taken as lying in a base.
    //   name    in: the name given; it may point into this object's own strings
    //   base    in: a parsed path object for relative names; may be null for others
    //   flag    not used
    // Result: 0 done; 1 bad name, and the object is unparsed (a null name leaves it as it was).
    //   The rows have a base /home/u/ and a volume C: that does not change case. A drive that is
    //   not in volumeList is accepted, too; m_pVolume is null then.
    //   L" \"/tmp/a b.txt\" "  => rooted,   /tmp/a b.txt, prefix empty
    //   L"c:\\dir\\f.abc"      => drive,    C:/dir/f.abc, no prefix
    //   L"docs\\f.txt"         => relative, docs/f.txt,   prefix /home/u/
    //   L"x:"                  => drive,    X:,           no prefix
    //   L"/"                   => rooted,   /
    //   L"\"open"              => relative, with the quote
    //   L"\\\\srv\\share", L"//", L"a:b:c", L"dir:file", L"1:", L"/a/b:c"  => 1
    //   L"", L"   ", L"\"\""   => 1
    // On Windows: C:file lies in the current folder of the drive, \file on the current drive, and a
    // share is a good name.
    int ParseRelative(const wchar_t* name, const CRbUiPathname* base, bool flag);

    // Back to the unparsed state. m_separator, m_category and m_bQualified stay.
    void Empty();

    // Appends a separator to the work string, unless it ends with one or with a colon, or is empty.
    // Result: 0 done or nothing to do; 2 nothing parsed. m_type stays.
    //   /tmp => /tmp/     C: => C:     /tmp/ => /tmp/
    int AppendSlash();

    // Removes one pair of enclosing double quotes from a text, and the white space outside them.
    //   s    in/out: the text; without such a pair it stays exactly as it is
    //   L" \"a b\" " => L"a b"     L"\"\"\"a\"\"" => L"\"\"a\""     L" a " => L" a "
    static void Unquote(CStdStr<wchar_t>& s);

    // Removes white space from both ends of a text.
    void StripSpaces(CStdStr<wchar_t>& s);

    // Looks a volume up in volumeList by its exact local name.
    //   name    in: such as L"C:"; an empty one finds nothing
    // Result: the first volume of that name, or null. Not owned. A volume that a host's GetLocalName
    // appends to the list meanwhile is looked at, too.
    const CRbUiVolumeDescriptor* FindVolumeDescriptor(const CStdStr<wchar_t>& name) const;

    // Inert: returns null; no descriptor is made and none is added to volumeList.
    // On Windows: a descriptor for the volume.
    KTQTBASE_INERT("returns null; no descriptor is made and none is added to volumeList.")
    const CRbUiVolumeDescriptor* NewVolDescriptor(const CStdStr<wchar_t>& volumeName) const;

    // Finds out what a work string denotes. The parse hands in this object's own fields.
    //   work       in: the work string
    //   relPath    in: its prefix, or null
    //   type       out: set to PT_NOT_FOUND first, then to what the work string denotes.
    //              PT_WILDCARD is decided by this object's own work string, and only if the object
    //              is parsed by then, which it is when type points to its m_type.
    // Kept: PT_DIRECTORY means that the group may write (bit 0x10 of the mode), also for a file; a
    // folder whose group may not write is a PT_FILE. Part of the interface.
    void GetAttributes(const CStdStr<wchar_t>* work, const CStdStr<wchar_t>* relPath,
                       path_type* type);

    // The last component.
    //   out    out: the component; untouched if nothing is parsed
    //   /tmp/dir => dir     /tmp/dir/ => (empty)     C:file.txt => file.txt     name => name
    void GetBasename(CStdStr<wchar_t>& out) const;

    // The last component without its extension.
    //   out    out: what stands before its last dot, or all of it; untouched for an empty
    //          component, for a pattern, and if nothing is parsed
    //   archive.tar.gz => archive.tar     .profile => (empty)     *.txt => untouched
    void GetFilename(CStdStr<wchar_t>& out) const;

    // The extension of the last component, without its dot.
    //   out    out: what follows its last dot; untouched without a dot
    //   archive.tar.gz => gz     name. => (empty)     name => untouched     *.txt => txt
    void GetExtension(CStdStr<wchar_t>& out) const;

    // The last character of a text, or 0 for an empty one.
    static wchar_t GetLastCharacter(const CStdStr<wchar_t>& s);

    // The prefix and the work string, joined by one separator. The prefix of a rooted name is not
    // used.
    //   out    out: the full path; untouched if nothing is parsed
    // Result: whether a name is parsed.
    //   f.txt with prefix /home/u => /home/u/f.txt     C:/f.txt => C:/f.txt
    bool GetFullPath(CStdStr<wchar_t>& out) const;

    // The same into a buffer.
    //   out    out: the full path and its terminator, or an empty string if nothing is parsed. The
    //          caller provides enough room; null gives false.
    bool GetFullPath(wchar_t* out) const;

    // The work string, or null if there is none. For a relative name it lacks the prefix. Valid
    // until the object is changed.
    const wchar_t* GetPathString() const;

    // The separator, m_separator.
    wchar_t GetSeparator() const;

    // Inert: returns true.
    // On Windows: the file system is searched for the name.
    KTQTBASE_INERT("returns true.")
    bool ParseAndOSFind(const wchar_t* name);

    // ---- Editing ----
    //
    // The edits change the work string only; prefix, volume and category stay. If an edit cuts or
    // appends, m_type becomes PT_NOT_FOUND, since the new work string was not looked up; a result
    // of 0 with nothing to do leaves m_type alone. Common results: 0 done or nothing to do; 2
    // nothing parsed; 3 the cut would reach into the root; 4 no separator where one is needed, or a
    // category that is none of the four. Results other than 0 change nothing.
    //
    //                         TrimSlash        Trim             TrimComponent
    //   /tmp/dir/ rooted      /tmp/dir         (stays)          /tmp/dir
    //   /tmp/dir  rooted      (stays)          /tmp/            /tmp
    //   /tmp      rooted      (stays)          /                /
    //   /         rooted      3                (stays)          /
    //   C:/dir    drive       (stays)          C:/              C:/
    //   C:/       drive       3                (stays)          C:/
    //   C:file    drive       (stays)          C:/              C:/
    //   name      relative    (stays)          3                3
    //   a/b       relative    (stays)          a/               a
    // TrimComponent of a root gives the root again, with m_type PT_NOT_FOUND.

    // Removes one closing separator, unless it is the root's.
    int TrimSlash();

    // Removes the last component and keeps the separator before it.
    int Trim();

    // Removes the last component and the separator before it.
    int TrimComponent();

    // Appends a text as it is.
    //   text    in: the text; it may point into this object's own strings. Null appends nothing,
    //           but m_type becomes PT_NOT_FOUND.
    int Append(const wchar_t* text);

    // Appends a separator, unless the work string ends with one, then a text.
    //   text    in: as for Append; a separator at its start is appended, too
    //   /tmp, x => /tmp/x     /tmp/, x => /tmp/x     (empty), x => /x     /tmp, /x => /tmp//x
    int AppendComponent(const wchar_t* text);

    // Makes another path object the folder of this one.
    //   parent    out: the folder, through its virtual AssignCopy; untouched if nothing is parsed.
    //             It may be this object.
    //   /tmp/dir => /tmp/, PT_DIRECTORY     /tmp/dir/ => /tmp/, PT_NOT_FOUND
    //   / => /, PT_DIRECTORY                C:/ => C:/, PT_DIRECTORY
    //   C:file.txt => C:                    a/b => a/
    //   f.txt with prefix /home/u/ => /home/u/, rooted, without prefix; without prefix => unparsed
    // The type is set without a look at the file system; Exists looks it up.
    // A bare name (without separator or colon) whose prefix is an empty string raises
    // std::out_of_range, and parent then holds that empty string. A rooted name becomes such a one
    // when Rename gives it a bare name.
    // Kept: with a closing separator the parent's type is PT_NOT_FOUND, since TrimSlash cuts the
    // separator off. Part of the interface.
    void GetParent(CRbUiPathname& parent) const;

    // ---- Extensions ----
    //
    // A list holds extensions without dots, separated by semicolons; its items are compared whole,
    // and null counts as an empty list. In a list that is not empty, an empty item matches
    // nothing.
    // Results: 0 done; 1 a null extension; 2 nothing parsed, but an IfNoMatch with an empty list
    // then gives 0, since an unparsed object has no extension. An extension may point into this
    // object's own strings. A dot in a folder's name begins no extension. A function that does its
    // work sets m_type to PT_NOT_FOUND, even if the work string stays the same; an IfNoMatch that
    // matches changes nothing.

    // Whether the extension is in a list, letters A to Z in any case; of one that a host gave a NUL
    // inside, what precedes it is compared. True if both the list and the extension are empty,
    // false if only one of them is.
    //   /d/a.ABC, L"abc;xyz" => true     /d/a.abc, L"*.abc" => false     /d/a, L"" => true
    bool VerifyExtension(const wchar_t* list) const;

    // The first item of a list.
    //   out    out: the item, empty for a null list. Nothing of this object is read.
    void GetFirstExtInList(const wchar_t* list, CStdStr<wchar_t>& out) const;

    // Replaces the extension, or adds one. Asks whether a name is parsed before it looks at ext.
    //   /d/a.txt, L"abc" => /d/a.abc     /d/a, L".abc" => /d/a.abc     /d/a.txt, L"" => /d/a
    int ReplaceExtensionAlways(const wchar_t* ext);

    // Replaces the extension by a list's first item, unless it is in the list.
    //   /d/a.txt, L"abc;xyz" => /d/a.abc     /d/a.txt, L"" => /d/a
    int ReplaceExtensionIfNoMatch(const wchar_t* list);

    // Adds an extension after the one there is. Looks at ext before it asks whether a name is
    // parsed.
    //   /d/a.txt, L"abc" => /d/a.txt.abc     /d/a, L".abc" => /d/a..abc     /d/a, L"" => /d/a
    // Kept: a dot at the start of ext is doubled, unlike in ReplaceExtensionAlways. Part of the
    // interface.
    int AddExtensionAlways(const wchar_t* ext);

    // Adds a list's first item, unless the extension is in the list.
    //   /d/a.txt, L"abc;xyz" => /d/a.txt.abc     /d/a.ABC, L"abc" => /d/a.ABC
    int AddExtensionIfNoMatch(const wchar_t* list);

    // Removes the extension if it is in a list, or always.
    //   /d/a.txt => /d/a     /d.x/a => /d.x/a
    void RemoveExtensionIfMatch(const wchar_t* list);
    void RemoveExtensionAlways();

    // ---- Display, case and matching ----

    // Removes white space from both ends of the last component's stem; the extension keeps its own.
    // m_type stays, and so do "." and "..".
    //   L"dir/  name  .txt" => L"dir/name.txt"     L"dir/ name. txt" => L"dir/name. txt"
    void RemoveSpaces();

    // Whether the name exists now. Sets m_type anew. Three types are not looked up: PT_WILDCARD and
    // PT_NONE give false, and a type 5 that a host has set gives true. A pattern that an edit has
    // made still has PT_NOT_FOUND: it becomes PT_WILDCARD, and the result is true.
    bool Exists();

    // A form of the work string for people, cut in the middle to a width.
    //   out      out: the form; empty if nothing is parsed
    //   width    in: characters at most, below 12 counts as 12; -1 for the whole work string
    //   aa/bb/cc/dd/file, 12                => .../dd/file
    //   C:/aa/bb/cc/dd/file, 14, volume C:  => C:\.../dd/file; with 12 C:\.../file
    //   a component of 30 with .txt, 12     => its first 7 characters, ~.txt
    //   a component of 30 with an extension of ten, 12  => its first 10 characters, ~
    //   /abc/12345678, 12                   => ..., since four more characters must fit
    // A drive without a volume counts as a volume name of length 0. If no component fits after the
    // dots, nothing follows them.
    // Kept: a backslash stands before the dots, whatever the separator. Part of the interface.
    void GetDisplayName(CStdStr<wchar_t>& out, int width) const;

    // Copies exactly n characters, terminators among them, and adds a terminator.
    //   dst    out: room for n + 1 characters
    //   src    in: at least n characters
    //   n      in: how many; a negative number copies and writes nothing
    void lstrncpy_x(wchar_t* dst, const wchar_t* src, int n) const;

    // Puts the last component in lower case, or in upper case, by the global std::locale. m_type
    // stays.
    void BaseToLower();
    void BaseToUpper();

    // Whether two full paths are equal. Neither the case of the letters A to Z nor a closing
    // separator counts. The path object form also needs the same volume. False for null and for an
    // unparsed object; an object matches itself.
    //   c:/Dir/ and C:/dir => true
    // Kept: case never counts, even on a case-sensitive volume. Part of the interface.
    bool PathMatch(const CRbUiPathname* other) const;
    bool PathMatch(const wchar_t* other) const;

    // Inert: out stays as it is.
    // On Windows: the server and share that a drive stands for.
    KTQTBASE_INERT("out stays as it is.")
    void GetFullUNCPath(CStdStr<wchar_t>& out) const;

    // ---- Files ----

    // Makes a name in the same folder that does not exist.
    //   result    out: a copy of this object, if force is false and the name is free or a pattern;
    //             else the stem, five digits of rand(), and the extension. The stem is ktTmp
    //             for a pattern, for .profile, and behind a closing separator, where the name is
    //             made in that folder. A long stem is cut, so that the whole has at most 1,023
    //             characters. Filled through its virtual AssignCopy; it may be this object.
    //   force     in: whether to make a new name in any case
    // Result: false if nothing is parsed (result untouched) or the folder's name leaves no room
    // (result unparsed); else true. After 200 names that exist, result is unparsed and the function
    // still returns true. The same happens to a type 5 that a host has set: it is never looked up,
    // and its whole work string counts as the folder's name.
    // An exception leaves result unparsed. No file is made, so that another program may take the name
    // first; rand() is the process's own, and never seeded here.
    //   existing report.txt => report01234.txt     existing data => dat012340
    // Kept: without an extension the digits stand one character early. Part of the interface.
    bool GetUniqueName(CRbUiPathname& result, bool force) const;

    // Opens the file with CreateFile, which opens nothing here.
    //   handle    out: null, or -1 if nothing is parsed
    // Result: whether handle is not -1.
    // Kept: true for every parsed name, with a null handle. Part of the interface.
    // On Windows: the file is opened, and handle is -1 if that fails.
    bool OpenReadOnly(void*& handle);
    bool OpenWriteOnly(void*& handle);

    // Must not be called: rethrows the exception that is being handled; without one it ends the
    // process.
    // On Windows: the file is opened.
    [[noreturn]] void Open(FILE** file, const wchar_t* mode);

    // Renames the file. The work string is taken as relative to the process's working directory,
    // and becomes newName exactly as passed; m_type and the prefix stay.
    //   newName    in: converted by LC_CTYPE; null is handed to the OS-base library, and if that
    //              succeeds, the work string becomes empty
    // Result: whether it was renamed. On failure nothing changes.
    // Kept: the prefix is not used, since SetCurrentDirectoryW does nothing. Part of the interface.
    // On Windows: the work string is relative to the prefix.
    bool Rename(const wchar_t* newName);

    // Inert: returns 0; nothing is removed.
    // On Windows: the file is deleted.
    KTQTBASE_INERT("returns 0; nothing is removed.")
    int Remove();

    // Appends a separator to a volume's name, unless it ends with one.
    //   fsName    in/out: the name
    // Result: 1 for an empty name, else 0.
    // On Windows: fsName becomes the name of the file system.
    int GetFileSystem(CStdStr<wchar_t>& fsName) const;

    // ---- Fields ----

    path_type m_type; // PT_NONE until a parse succeeds
    // Not owned. A drive's is looked up in volumeList, a relative name has its base's, and a rooted
    // one has none; null also for a drive that is not in the list.
    const CRbUiVolumeDescriptor* m_pVolume;
    CStdStr<wchar_t>* m_pWork;    // owned: the work string, with its drive
    CStdStr<wchar_t>* m_pRelPath; // owned: the prefix; empty for a rooted name, null for a drive
    // Set by a parse, also by one that refuses the name, unless that is null, empty or has several
    // colons.
    path_category m_category;
    wchar_t m_separator; // slash
    // Set by a parse that accepts a name with a separator or a colon.
    // Kept: no later parse clears it. Part of the interface.
    bool m_bQualified;
};

#endif
