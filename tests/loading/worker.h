// SPDX-License-Identifier: MIT
//
// What the module exports. Loaders of a program that is not linked with the library find it by name.
#ifndef KTQTBASE_TESTS_LOADING_WORKER_H
#define KTQTBASE_TESTS_LOADING_WORKER_H

using Tell = void (*)(char);

// What the module does only where it is asked to: write to the settings, which waits for the disk;
// paint, which leaves a painter and a path behind; show windows, which needs an application.
constexpr unsigned int kStore = 1;
constexpr unsigned int kPaint = 2;
constexpr unsigned int kShow = 4;

// Appends the volumes C:, D: and E: to the list and calls the library. Each volume tells its letter
// when it dies.
// Result: whether every call had its result.
extern "C" __attribute__((visibility("default"))) bool work(Tell tell, unsigned int what);

#endif
