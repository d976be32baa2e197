// SPDX-License-Identifier: MIT
//
// Reads which names a program, a library or an object needs from others: those of Windows, ELF and
// Mach-O, archives and universal files.
//
// The readers of these formats trust what a file says of itself more than one may trust a file, so
// this may crash or hang: see GuardedReading.h.
#ifndef KTQTBASE_AUDIT_BINARYFILE_H
#define KTQTBASE_AUDIT_BINARYFILE_H

#include <functional>
#include <string>
#include <string_view>

namespace ktqtbase::audit {

// A name that a binary needs.
struct Symbol
{
    std::string member; // what holds it in an archive or a universal file; empty in others
    std::string dll;    // in lower case; empty if the binary does not say
    std::string name;   // as it stands in the binary, or "#<ordinal>"
    bool hasUnderscore = false;
    bool isDefined = false;
};

struct BinaryVisitor
{
    std::function<void(const Symbol&)> symbol;
    // A part that cannot be read, empty for the whole file, and why.
    std::function<void(const std::string& member, const std::string& reason)> problem;
};

// Whether the beginning of a file is that of a kind that is read here.
bool isBinary(std::string_view beginning);

// Tells of each name that the file needs. In an archive names that it has itself are told of, too,
// as defined ones. The members of a thin archive are looked for from the folder of its path on.
void readBinary(std::string_view content, const std::string& path, const BinaryVisitor& visitor);
void readBinaryFile(const std::string& path, const BinaryVisitor& visitor);

} // namespace ktqtbase::audit

#endif
