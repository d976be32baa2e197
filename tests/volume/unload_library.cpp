// SPDX-License-Identifier: MIT
//
// Loads and unloads a library that the program is not linked with. Result: 0 where it is gone then.
// A symbol that the loader must keep unique would hold it in the process, and with it its volumes.
#include <cstdio>

#include <dlfcn.h>

int main(int argc, char** argv)
{
    // Qt 6 brings it in, and what it takes when it is loaded it never frees.
    dlopen("libgomp.so.1", RTLD_LAZY | RTLD_NODELETE);
    void* const library = argc == 2 ? dlopen(argv[1], RTLD_LAZY) : nullptr;
    if (!library || dlclose(library) != 0) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 2;
    }
    if (!dlopen(argv[1], RTLD_LAZY | RTLD_NOLOAD))
        return 0;
    std::fprintf(stderr, "%s stays in the process\n", argv[1]);
    return 1;
}
