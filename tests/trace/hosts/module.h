// SPDX-License-Identifier: MIT
//
// What the module of the tests exports.
#ifndef KTQTBASE_TESTS_TRACE_MODULE_H
#define KTQTBASE_TESTS_TRACE_MODULE_H

// Calls CloseHandle.
using CallClose = int(void*);
constexpr const char* kCallClose = "callClose";

#endif
