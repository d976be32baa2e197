// SPDX-License-Identifier: MIT
//
// KTQTBASE_INERT marks the functions that do nothing here, so that a host can have each of its
// calls of one pointed out when it is compiled.
//
//     c++ -DKTQTBASE_WARN_INERT ...      each use is a warning, with the function's own sentence
//     c++ -DKTQTBASE_FORBID_INERT ...    each use is an error
//
// Without either nothing changes. With both, a use is an error. In CMake, KtQtBase::Strict is
// KtQtBase::KtQtBase with the warnings.
//
// A use is a call, and also a mention that takes the function's address. g++ before 12 finds calls
// only, when it generates code, where KTQTBASE_FORBID_INERT is defined. A call that goes through a
// pointer, or into the library by GetProcAddress, is not seen.
#ifndef KTQTBASE_INERT_H
#define KTQTBASE_INERT_H

// A host that adds the library as a folder of its own build may define the two for all of it. The
// library's sources define these functions, and are told nothing.
#if defined(KTQTBASE_BUILDING)
#define KTQTBASE_INERT(sentence)
#elif defined(KTQTBASE_FORBID_INERT) && __has_attribute(unavailable)
#define KTQTBASE_INERT(sentence) __attribute__((unavailable("inert: " sentence)))
#elif defined(KTQTBASE_FORBID_INERT)
#define KTQTBASE_INERT(sentence) __attribute__((error("inert: " sentence)))
#elif defined(KTQTBASE_WARN_INERT)
#define KTQTBASE_INERT(sentence) [[deprecated("inert: " sentence)]]
#else
#define KTQTBASE_INERT(sentence)
#endif

#endif
