// SPDX-License-Identifier: MIT
#include "SymbolLookup.h"

namespace ktqtbase::audit {

namespace {

bool canBeSymbol(const Entry& entry)
{
    return isFunction(entry) || isClass(entry) || entry.kind == "global";
}

} // namespace

const Entry* lookUp(Catalogue& catalogue, const Symbol& symbol, const PlainName& name)
{
    if (name.name.empty() || (!symbol.dll.empty() && !catalogue.countsDll(symbol.dll)))
        return nullptr;
    const Entry* const entry = catalogue.find(name.scope, name.name);
    if (entry)
        return canBeSymbol(*entry) ? entry : nullptr;
    if (const Entry* const type = catalogue.member(name.scope, name.name))
        return type;
    return symbol.dll.empty() ? nullptr : &catalogue.imported(symbol.dll, name.name);
}

} // namespace ktqtbase::audit
