// SPDX-License-Identifier: MIT
//
// Places where nothing can be written. All but the folder that vanishes are for a child process: a
// file system that is mounted there is seen by nobody else and goes with it.
#ifndef KTQTBASE_TESTS_FAULTS_PLACES_H
#define KTQTBASE_TESTS_FAULTS_PLACES_H

#include "faults/InChild.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <string>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

namespace faults {

// Makes this process the root of a world of its own, in which it may mount. Result: whether it may.
inline bool isRootApart()
{
    const std::string user = "0 " + std::to_string(geteuid()) + " 1";
    const std::string group = "0 " + std::to_string(getegid()) + " 1";
    if (geteuid() == 0)
        return unshare(CLONE_NEWNS) == 0;
    if (unshare(CLONE_NEWNS | CLONE_NEWUSER) != 0)
        return false;
    ktqtbase::test::writeFile("/proc/self/setgroups", "deny");
    ktqtbase::test::writeFile("/proc/self/uid_map", user);
    ktqtbase::test::writeFile("/proc/self/gid_map", group);
    return geteuid() == 0;
}

// A small disk on a folder, of which so many bytes are free. Where mounting is refused the child
// ends with kRefused.
inline void mountSmallDisk(const std::filesystem::path& folder, int bytes)
{
    const std::string size = "mode=0777,size=" + std::to_string(bytes);
    if (!isRootApart() || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("none", folder.c_str(), "tmpfs", 0, size.c_str()) != 0)
        _exit(kRefused);
}

inline void makeReadOnly(const std::filesystem::path& folder)
{
    if (mount("none", folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0)
        _exit(kRefused);
}

// No file of this process grows beyond so many bytes, as on a full disk.
inline void limitFiles(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {bytes, bytes};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        _exit(kRefused);
}

// From here on no file can be opened, but for so many.
inline void useUpDescriptors(int left)
{
    const rlimit few = {256, 256};
    if (setrlimit(RLIMIT_NOFILE, &few) != 0)
        _exit(kRefused);
    int last = -1;
    for (int file = 0; file >= 0; file = open("/dev/null", O_RDONLY | O_CLOEXEC))
        last = file;
    for (; left > 0; --left)
        close(last--);
}

// A test that needs rights which this process does not have says so.
inline void expectHeldOrRefused(int status)
{
    if (status == kRefused)
        std::puts("left out: the system refuses what this test needs");
    else
        EXPECT_EQ(status, 0);
}

} // namespace faults

#endif
