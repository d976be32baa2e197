// SPDX-License-Identifier: MIT
//
// KTQTBASE_EXPORT marks what the shared library exports to hosts; everything else is hidden.
//
// A host whose characters or strings have another layout than the library's would link and then get
// wrong results, so it is refused here. Every public header with a function includes this one.
#ifndef KTQTBASE_EXPORT_H
#define KTQTBASE_EXPORT_H

// For the macros by which the C++ library tells what it is.
#include <cstddef>

#if defined(__GNUC__)
#define KTQTBASE_EXPORT __attribute__((visibility("default")))
#else
#define KTQTBASE_EXPORT
#endif

#if defined(__SIZEOF_WCHAR_T__) && __SIZEOF_WCHAR_T__ != 4
#error "KtQtBase needs a wchar_t of 4 bytes: compile without -fshort-wchar."
#endif

// Only a build writes this header; headers that are read from the sources alone compare nothing.
#if __has_include(<KtQtBase/BuiltWith.h>)
#include <KtQtBase/BuiltWith.h>
#if defined(_LIBCPP_VERSION) != KTQTBASE_BUILT_WITH_LIBCXX
#error "KtQtBase was built with another C++ library: use the same one of libstdc++ and libc++."
#elif defined(__GLIBCXX__) && _GLIBCXX_USE_CXX11_ABI != KTQTBASE_BUILT_WITH_CXX11_ABI
#error "KtQtBase was built with another string layout: use its value of _GLIBCXX_USE_CXX11_ABI."
#endif
#endif

#endif
