// SPDX-License-Identifier: MIT
//
// How a name was classified, and what it denotes.
#ifndef KTQTBASE_PATHNAME_PATHTYPES_H
#define KTQTBASE_PATHNAME_PATHTYPES_H

// How a name was classified, by its first two characters.
enum path_category : int
{
    PC_DRIVE = 0,   // a letter and a colon
    PC_UNC = 1,     // two separators
    PC_ROOTED = 2,  // one separator
    PC_RELATIVE = 3 // everything else
};

// What a name denotes. A host may set 5, without a name here, for a name that it knows to exist;
// it is never looked up.
enum path_type : int
{
    PT_NONE = 0,      // nothing parsed
    PT_NOT_FOUND = 1, // no file or folder of that name
    PT_WILDCARD = 2,  // a pattern: the last component holds a wildcard, * or ?
    PT_FILE = 3,      // exists, and bit 0x10 of GetFileAttributes is clear
    PT_DIRECTORY = 4  // exists, and bit 0x10 of GetFileAttributes is set
};

#endif
