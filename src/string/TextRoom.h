// SPDX-License-Identifier: MIT
//
// The room that a text is given.
#ifndef KTQTBASE_STRING_TEXTROOM_H
#define KTQTBASE_STRING_TEXTROOM_H

#include <cstddef>
#include <memory>

namespace ktqtbase {

// Characters or bytes of a path name, a profile's argument, a module's file name or a resource
// string, the terminator included.
constexpr std::size_t kTextRoom = 1024;

// Room for one text, on the heap only where it is longer than usual.
template<class Unit>
class TextRoom
{
public:
    // Room for so many units. What the room held before is lost.
    Unit* of(std::size_t size)
    {
        if (size <= kTextRoom)
            return m_usual;
        m_long = std::make_unique<Unit[]>(size);
        return m_long.get();
    }

private:
    std::unique_ptr<Unit[]> m_long;
    Unit m_usual[kTextRoom];
};

} // namespace ktqtbase

#endif
