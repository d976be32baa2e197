// SPDX-License-Identifier: MIT
//
// Reads sources in the encodings that Windows' tools write.
#ifndef KTQTBASE_AUDIT_SOURCETEXT_H
#define KTQTBASE_AUDIT_SOURCETEXT_H

#include <string>

namespace ktqtbase::audit {

// The bytes of a source; UTF-16 with its mark, as resource scripts often are, comes as UTF-8.
// Throws a std::exception if the file cannot be read.
std::string readSourceText(const std::string& path);

// Whether a source has no text: zeros, or many of the other bytes that no text has.
bool isNoText(const std::string& text);

// The place behind a backslash that ends its line, and behind that end; the same place if there is
// no such backslash. The text ends with a zero.
const char* behindContinuedLine(const char* place);

} // namespace ktqtbase::audit

#endif
