// SPDX-License-Identifier: MIT
//
// Ends with 0 where both Objective-C++ sources work, and have Objective-C's BOOL.
#include <cstddef>

std::size_t libraryFirst();
bool objectiveCFirst();

int main()
{
    return libraryFirst() == 1 && objectiveCFirst() ? 0 : 1;
}
