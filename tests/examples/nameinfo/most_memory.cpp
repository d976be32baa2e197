// SPDX-License-Identifier: MIT
//
// Runs a program and writes the most memory that it took into a file, in the unit of the system:
// most-memory FILE PROGRAM [ARGUMENT...]. A child begins with the memory of its parent, so the parent
// is a small one.
#include <cstdio>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    const pid_t child = fork();
    if (child == 0) {
        execv(argv[2], argv + 2);
        _exit(127);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child)
        return 1;
    std::FILE* const file = std::fopen(argv[1], "w");
    if (!file)
        return 1;
    std::fprintf(file, "%ld\n", usage.ru_maxrss);
    std::fclose(file);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
