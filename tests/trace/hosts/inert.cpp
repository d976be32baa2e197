// SPDX-License-Identifier: MIT
//
// Calls every inert function twice, with the address of an area in all places that an argument may
// have, and prints each name with its result and whether the area is as it was. The area of the
// first argument, which may be an object, is zero, that of the others poisoned. The functions are
// called by their symbols, as the list of ktqt-trace has them.
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iterator>

extern "C" {
#define TRACED(index, symbol, name, status, result) unsigned long symbol(...);
#include "TracedFunctions.inc"
#undef TRACED
}

namespace {

using Symbol = unsigned long (*)(...);

struct Function
{
    Symbol symbol;
    const char* name;
    const char* status;
    const char* result;
};

const Function kFunctions[] = {
#define TRACED(index, symbol, name, status, result) {symbol, name, status, result},
#include "TracedFunctions.inc"
#undef TRACED
};

struct Area
{
    explicit Area(unsigned char value) : byte(value) { std::memset(bytes, byte, sizeof(bytes)); }

    bool isAsItWas() const
    {
        return std::all_of(std::begin(bytes), std::end(bytes),
                           [this](unsigned char b) { return b == byte; });
    }

    unsigned char byte;
    alignas(std::max_align_t) unsigned char bytes[1024];
};

unsigned long call(Symbol symbol, void* first, void* a)
{
    return symbol(first, a, a, a, a, a, a, a, a, a, a, a);
}

// A result narrower than a register leaves the rest of it open.
unsigned long told(const Function& function, unsigned long result)
{
    if (std::strcmp(function.result, "nothing") == 0)
        return 0;
    return std::strcmp(function.result, "null") == 0 ? result : result & 0xFF;
}

void show(const Function& function)
{
    Area object(0);
    Area other(0xA5);
    errno = 4711;
    const unsigned long result = call(function.symbol, object.bytes, other.bytes);
    std::printf("%s %lu %d %d\n", function.name, told(function, result),
                object.isAsItWas() && other.isAsItWas(), errno);
}

} // namespace

int main()
{
    for (int times = 0; times < 2; ++times)
        for (const Function& function : kFunctions)
            if (std::strcmp(function.status, "inert") == 0)
                show(function);
}
