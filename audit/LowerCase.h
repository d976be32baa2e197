// SPDX-License-Identifier: MIT
//
// Text without a difference between capitals and small letters.
#ifndef KTQTBASE_AUDIT_LOWERCASE_H
#define KTQTBASE_AUDIT_LOWERCASE_H

#include <string>

namespace ktqtbase::audit {

// The letters of ASCII only, whatever the locale: names of DLLs and extensions have no others.
inline std::string lowerCase(std::string text)
{
    for (char& ch : text) {
        if (ch >= 'A' && ch <= 'Z')
            ch = static_cast<char>(ch - 'A' + 'a');
    }
    return text;
}

} // namespace ktqtbase::audit

#endif
