// SPDX-License-Identifier: MIT
//
// The locales that an input may ask for.
#ifndef KTQTBASE_FUZZ_SUPPORT_LOCALES_H
#define KTQTBASE_FUZZ_SUPPORT_LOCALES_H

#include "support/LocaleScope.h"

#include <locale.h>

namespace ktqtbase::fuzz {

// LC_CTYPE, as this thread alone has it, which is much quicker to change than that of the process.
inline void useCtype(bool utf8)
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    static const locale_t unicode = newlocale(LC_ALL_MASK, "C.UTF-8", nullptr);
    if (!plain || !unicode)
        std::abort();
    uselocale(utf8 ? unicode : plain);
}

// The global std::locale. Which one it is now is kept, since a change takes long.
inline void useGlobalLocale(bool odd)
{
    static const std::locale locales[] = {std::locale::classic(), test::oddLocale()};
    static bool isOdd = false;
    if (odd != isOdd)
        std::locale::global(locales[odd]);
    isOdd = odd;
}

} // namespace ktqtbase::fuzz

#endif
