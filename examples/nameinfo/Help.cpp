// SPDX-License-Identifier: MIT
#include "Help.h"

const char* const kHelp =
    R"(Usage: nameinfo [OPTION]... [--] NAME...
       nameinfo [OPTION]... --list FILE

Shows what the library makes of the file names of a Windows program.

Example:
  nameinfo --parent --columns name,type,parent "C:\docs\report.txt" /tmp

Names:
  --list FILE        each line of a file is a name; - is standard input. Lines
                     end in LF or CRLF; one of over 65535 bytes is an error.
  --                 what follows is a name, even if it begins with a dash

Form, instead of a table as wide as the terminal (or COLUMNS, or 80):
  --wide             a table of all columns, with nothing shortened
  --csv              comma-separated values by RFC 4180, headings first; lines
                     end in CRLF; no answer is an empty cell, an empty one is ""
  --json             an array of objects, one a line; no answer is null
  --columns A,B,...  these columns only, by their headings

Each of these adds a column:
  --parent           parent
  --extension LIST   with extension; a list is such as "txt;docx"
  --width N          display, of N characters (under 12 counts as 12), or all
  --match OTHER      match
  --unique           unique
  --status           status
  --validate         valid

Columns; the table has those with a * only for --wide or --columns:
  name               the name as it was given
  category           drive, UNC, rooted or relative
  type               file, directory, wildcard, not found or bad name
  volume             the drive that the name is on
  work string *      the name in the library's own form
  prefix *           the folder that a relative name is in
  full path          the prefix and the work string
  base name *        what follows the last separator
  file name *        the base name without its extension
  extension          what follows the last dot of the base name
  parent             the folder that holds the name
  with extension     the name with an extension of LIST; if it has another one
                     or none, with the first of LIST
  display            the name cut in the middle to N characters
  match              whether the name denotes the same path as OTHER: yes or no
  unique             the name, or if it is taken a free one beside it
  status             the sum of 1 exists, 2 readable, 4 writable,
                     8 folder writable
  valid              whether an NTFS volume takes the name: yes or no

A table shows - for no answer and "" for an empty one. It shortens long answers
as GetDisplayName does; if they still do not fit, each answer gets a line. The
names of a pipe come only once, so its table has columns of a fixed width.

  -h, --help         this text
  -v, --version      the version of the library

Exit status: 0; 1 if the output cannot be written; 2 if an argument, a list or
a name cannot be read.
)";
