// SPDX-License-Identifier: MIT
//
// Reads the files of a catalogue's folder:
//
//     <family>.json        what the library says of each of its names, one file a family
//     families.json        how names that are not here fall into families, and MFC's classes
//     windows-names.txt    the functions of Windows, each with a tab and its DLL
#ifndef KTQTBASE_AUDIT_CATALOGUEFILES_H
#define KTQTBASE_AUDIT_CATALOGUEFILES_H

#include "Entry.h"
#include "Families.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace ktqtbase::audit {

// A folder that is no catalogue; the text names the file and says what is wrong.
class CatalogueError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct WindowsName
{
    std::string name;
    std::string dll; // in lower case
};

struct CatalogueFiles
{
    std::vector<Entry> entries;
    Families families;
    std::vector<Entry> mfcClasses;
    std::vector<WindowsName> windowsNames;
};

// Throws a CatalogueError if a file cannot be read or has not the form of its kind.
CatalogueFiles readCatalogueFiles(const std::string& folder);

} // namespace ktqtbase::audit

#endif
