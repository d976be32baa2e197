// SPDX-License-Identifier: MIT
//
// Loads and unloads the worker, and the library with it, again and again: load-host HOW ROUNDS WORKER
// LIBRARY. Qt stays, since the program is linked with it.
//   plain     no application object
//   paint     the same, with painters
//   windows   windows are shown in every round
//   orphan    the application dies before each unloading
// Prints one line: rounds, what all volumes told in a round, and the bytes a round that stay on the
// heap.
#include "worker.h"

#include <QtWidgets/QApplication>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include <dlfcn.h>
#include <malloc.h>

namespace {

std::string g_told;
bool g_paints = false;

void tell(char letter)
{
    g_told += letter;
}

[[noreturn]] void fail(const char* what)
{
    const char* const reason = dlerror();
    std::fprintf(stderr, "%s: %s\n", what, reason ? reason : "no reason given");
    std::exit(1);
}

bool isLoaded(const char* file)
{
    void* const library = dlopen(file, RTLD_LAZY | RTLD_NOLOAD);
    if (library)
        dlclose(library);
    return library;
}

long bytesOnHeap()
{
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 33)
    return static_cast<long>(mallinfo2().uordblks);
#else
    return mallinfo().uordblks;
#endif
}

unsigned int whatTo(const std::string& how, int round)
{
    const unsigned int store = round % 100 == 0 ? kStore : 0;
    return store | (how == "paint" ? kPaint : how == "plain" ? 0 : kShow);
}

struct Host
{
    std::string how;
    const char* worker;
    const char* library;
    int argc;
    char** argv;
};

std::unique_ptr<QApplication> application(Host& host)
{
    return std::make_unique<QApplication>(host.argc, host.argv);
}

void* loadAndWork(const Host& host, int round)
{
    void* const module = dlopen(host.worker, RTLD_LAZY);
    if (!module)
        fail("loading");
    const auto run = reinterpret_cast<decltype(&work)>(dlsym(module, "work"));
    if (!run(tell, whatTo(host.how, round)))
        fail("working");
    return module;
}

void unload(const Host& host, void* module)
{
    g_told.clear();
    if (dlclose(module) != 0 || isLoaded(host.worker) || isLoaded(host.library))
        fail("unloading");
    if (g_told != "CDE")
        fail(("order " + g_told).c_str());
}

void playRound(Host& host, int round)
{
    auto passing = host.how == "orphan" ? application(host) : nullptr;
    void* const module = loadAndWork(host, round);
    passing.reset();
    unload(host, module);
    if (qApp)
        QApplication::processEvents();
}

// Result: the bytes a round that stay, once all is there that is made only once.
double play(Host& host, int rounds)
{
    const int settled = rounds / 10;
    long before = 0;
    for (int round = 0; round < rounds; ++round) {
        if (round == settled)
            before = bytesOnHeap();
        playRound(host, round);
    }
    return static_cast<double>(bytesOnHeap() - before) / (rounds - settled);
}

} // namespace

// The sanitizer cannot name who left a painter behind once the library is gone.
extern "C" __attribute__((visibility("default"))) int __lsan_is_turned_off()
{
    return g_paints;
}

int main(int argc, char** argv)
{
    if (argc != 5)
        return 2;
    // The program's own path may have letters beyond ASCII.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    const int rounds = std::atoi(argv[2]);
    Host host{argv[1], argv[3], argv[4], argc, argv};
    g_paints = host.how == "paint";
    const auto lasting = host.how == "windows" ? application(host) : nullptr;
    const double growth = play(host, rounds);
    std::printf("%d rounds, %s, %.0f bytes\n", rounds, g_told.c_str(), growth);
}
