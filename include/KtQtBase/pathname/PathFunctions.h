// SPDX-License-Identifier: MIT
//
// The free functions of the path family: the steps of a parse and parts of the edits.
#ifndef KTQTBASE_PATHNAME_PATHFUNCTIONS_H
#define KTQTBASE_PATHNAME_PATHFUNCTIONS_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/pathname/BasePathName.h>
#include <KtQtBase/pathname/PathTypes.h>

// ---- The steps of a parse ----------------------------------------------------------------------
//
// CRbUiPathname::ParseRelative does what GetWorkString, GetPathCatType, GetRelPath, IsPathType and
// GetAttByPath do, in this order, by the same code. The others have no effect on a name that a
// parse accepts.

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
KTQTBASE_INERT("no effect.")
KTQTBASE_EXPORT void GetUNCScount(CStdStr<wchar_t>* s, int* index, unsigned int& count, int& length,
                                  wchar_t sep);

// Ends a server and share name of the category PC_UNC with a separator, where nothing follows the
// share.
//   cat      in: the category of the text
//   s        in/out: the text; of every other category it stays as it is, with its drive
//   sep      in: the separator
//   index    in: where the part after the volume begins
KTQTBASE_EXPORT void GetWorkPtrByIndex(path_category cat, CStdStr<wchar_t>* s, wchar_t sep,
                                       int index);

// Makes the prefix of a name.
//   cat     in: the category of the name
//   text    in: the prefix of a rooted name
//   out     out: PC_RELATIVE: a new string with the full path of *base, null where that is empty;
//           PC_ROOTED: a new copy of text; untouched for other categories. The caller owns it.
//   base    in: where the base's pointer lies
KTQTBASE_EXPORT void GetRelPath(path_category cat, const CStdStr<wchar_t>* text,
                                CStdStr<wchar_t>** out, const CRbUiPathname** base);

// Inert: returns true; nothing is written.
// On Windows: the prefix and the work string are joined and looked at.
KTQTBASE_INERT("returns true; nothing is written.")
KTQTBASE_EXPORT bool GetPathBuffer(CStdStr<wchar_t>** relPath, bool flag, CStdStr<wchar_t>* work,
                                   wchar_t sep, const CRbUiVolumeDescriptor** volume = nullptr);

// Whether a text holds a wildcard, an asterisk or a question mark, anywhere. A parse asks this of
// the last component only.
//   type    out: PT_WILDCARD if it does, else untouched
KTQTBASE_EXPORT bool IsPathType(CStdStr<wchar_t> name, path_type* type);

// Asks the file system what a name denotes.
//   work       in: where the name's pointer lies; neither may be null
//   relPath    in: where its prefix's pointer lies; either may be null. A slash is put between the
//              two texts, also after a prefix that ends with one.
//   type       out: where the pointer to the result lies: PT_NOT_FOUND, PT_FILE or PT_DIRECTORY
KTQTBASE_EXPORT void GetAttByPath(const CStdStr<wchar_t>** work, const CStdStr<wchar_t>** relPath,
                                  path_type** type);

// ---- Edits -------------------------------------------------------------------------------------

// Classifies a prefix that becomes a work string.
//   pp     in/out: where the string's pointer lies; a drive letter is put in upper case
//   sep    in: the separator
//   cat    in/out: the category; stays for a text that begins with neither separator nor drive
// An empty string raises std::out_of_range.
KTQTBASE_EXPORT void ParseRelPath(CStdStr<wchar_t>** pp, wchar_t sep, path_category& cat);

// Cuts a name before its extension: before its last dot, if that stands after the last
// separator.
//   pp     in/out: where the string's pointer lies
//   sep    in: the separator
//   L"/d/a.tar.gz" => L"/d/a.tar"     L"/d.x/a" => L"/d.x/a"
KTQTBASE_EXPORT void GetPathStrNoExt(CStdStr<wchar_t>** pp, wchar_t sep);

// Puts the letter of a name that begins with a drive in upper case.
//   L"c:/x" => L"C:/x"     L"1:/x" => L"1:/x"
KTQTBASE_EXPORT void upperPathFirstChar(CStdStr<wchar_t>& s);

#endif
