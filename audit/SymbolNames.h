// SPDX-License-Identifier: MIT
//
// What the symbols of binaries are called in a program's source.
#ifndef KTQTBASE_AUDIT_SYMBOLNAMES_H
#define KTQTBASE_AUDIT_SYMBOLNAMES_H

#include <string>

namespace ktqtbase::audit {

struct PlainName
{
    std::string scope;
    std::string name;
};

// The name without what compilers, linkers and calling conventions add to it.
//   hasUnderscore    whether the binary's kind puts an underscore before each name
//   "__imp__CopyFileW@12", true         => "CopyFileW"
//   "?Create@CWnd@@QEAAHXZ"             => "Create" in "CWnd"
//   "_ZN10KtKernel328CopyFileEPKwS1_i"  => "CopyFile" in "KtKernel32"
//   "_ZTV4CWnd"                         => "CWnd"
PlainName plainName(std::string symbol, bool hasUnderscore);

} // namespace ktqtbase::audit

#endif
