// SPDX-License-Identifier: MIT
//
// A path object of the library and the plain one beside it, and the look at both.
#ifndef KTQTBASE_FUZZ_SUPPORT_PATHPAIR_H
#define KTQTBASE_FUZZ_SUPPORT_PATHPAIR_H

#include "support/Expect.h"
#include "support/PlainPath.h"

#include <KtQtBase/PathName.h>

namespace ktqtbase::fuzz {

struct PathPair
{
    // A parse always sets the category; what it is before counts for no call.
    PathPair() { real.m_category = static_cast<path_category>(plain.name.category); }

    void setSeparator(wchar_t separator)
    {
        real.m_separator = separator;
        plain.name.separator = separator;
    }

    CRnUiPathname real;
    PlainPath plain;
};

// Compares in place, since copies would cost more than the calls that are tested.
inline void expectSameText(const char* what, const CStdStr<wchar_t>* real,
                           const std::wstring* plain)
{
    if (!real || !plain)
        expectSame(what, real != nullptr, plain != nullptr);
    else
        expectSame<std::wstring>(what, *real, *plain);
}

inline void expectSameFields(const PathPair& pair)
{
    const auto& [real, plain] = pair;
    const bool isNamed = plain.name.type != slow::None;
    expectSame("type", static_cast<int>(real.m_type), plain.name.type);
    expectSameText("work string", real.m_pWork, isNamed ? &plain.name.work : nullptr);
    expectSameText("prefix", real.m_pRelPath, plain.name.prefix ? &*plain.name.prefix : nullptr);
    expectSame("category", static_cast<int>(real.m_category), plain.name.category);
    expectSame("volume", static_cast<const void*>(real.m_pVolume),
               static_cast<const void*>(plain.volume));
    expectSame("separator", real.GetSeparator(), plain.name.separator);
    expectSame("qualified", real.m_bQualified, plain.isQualified);
}

// What a query leaves in a text that held something before.
inline void expectFilled(const char* what, const CRbUiPathname& path,
                         void (CRbUiPathname::*query)(CStdStr<wchar_t>&) const,
                         const OptionalText& expected)
{
    static const std::wstring before = L"before";
    CStdStr<wchar_t> out(before);
    (path.*query)(out);
    expectSame(what, std::wstring(out), expected.value_or(before));
}

inline void expectSameAnswers(const PathPair& pair)
{
    const auto& [real, plain] = pair;
    expectFilled("base name", real, &CRbUiPathname::GetBasename, plain.baseName());
    expectFilled("file name", real, &CRbUiPathname::GetFilename, plain.fileName());
    expectFilled("extension", real, &CRbUiPathname::GetExtension, plain.extension());
    CStdStr<wchar_t> path(L"before");
    const OptionalText expected = plain.fullPath();
    expectSame("result of full path", real.GetFullPath(path), expected.has_value());
    expectSame("full path", std::wstring(path), expected.value_or(L"before"));
}

} // namespace ktqtbase::fuzz

#endif
