// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/ParseSteps.h"
#include "pathname/PathType.h"

#include <string_view>

// ---- The steps of a parse ----------------------------------------------------------------------

void GetWorkString(CStdStr<wchar_t>* s, wchar_t sep, wchar_t& last, wchar_t& first, wchar_t& second)
{
    if (!s->empty())
        last = s->back();
    ktqtbase::putSeparators(*s, sep);
    first = s->c_str()[0];
    second = ktqtbase::secondCharacter(*s);
}

int GetPathCatType(wchar_t first, wchar_t second, wchar_t sep, path_category& cat,
                   CStdStr<wchar_t>* s, const CRbUiPathname* base)
{
    const bool isGood = ktqtbase::classifyName(first, second, sep, cat, *s, base);
    return isGood ? ktqtbase::kDone : ktqtbase::kBadArgument;
}

void GetUNCScount(CStdStr<wchar_t>*, int*, unsigned int&, int&, wchar_t) {}

void GetWorkPtrByIndex(path_category cat, CStdStr<wchar_t>* s, wchar_t sep, int index)
{
    const bool holdsMore = index < 0 || static_cast<std::size_t>(index) < s->size();
    if (cat == PC_UNC && (s->empty() || !holdsMore))
        s->push_back(sep);
}

void GetRelPath(path_category cat, const CStdStr<wchar_t>* text, CStdStr<wchar_t>** out,
                const CRbUiPathname** base)
{
    if (cat != PC_RELATIVE && cat != PC_ROOTED)
        return;
    const std::wstring_view rooted = text ? std::wstring_view(*text) : std::wstring_view();
    *out = ktqtbase::prefixOf(cat, rooted, base ? *base : nullptr, nullptr).release();
}

bool GetPathBuffer(CStdStr<wchar_t>**, bool, CStdStr<wchar_t>*, wchar_t,
                   const CRbUiVolumeDescriptor**)
{
    return true;
}

bool IsPathType(CStdStr<wchar_t> name, path_type* type)
{
    if (!ktqtbase::holdsWildcard(name))
        return false;
    *type = PT_WILDCARD;
    return true;
}

void GetAttByPath(const CStdStr<wchar_t>** work, const CStdStr<wchar_t>** relPath, path_type** type)
{
    **type = ktqtbase::typeOnDisk(**work, relPath ? *relPath : nullptr);
}

// ---- Edits -------------------------------------------------------------------------------------

void ParseRelPath(CStdStr<wchar_t>** pp, wchar_t sep, path_category& cat)
{
    CStdStr<wchar_t>& text = **pp;
    ktqtbase::classify(text.at(0), ktqtbase::secondCharacter(text), sep, cat, text);
}

void GetPathStrNoExt(CStdStr<wchar_t>** pp, wchar_t sep)
{
    CStdStr<wchar_t>& text = **pp;
    // Kept: a colon does not end the folder part here; the extension of C.x:name would stay
    // otherwise.
    const std::size_t dot = text.rfind(kPeriod);
    const std::size_t separator = text.rfind(sep);
    if (dot != text.npos && (separator == text.npos || dot > separator))
        text.resize(dot);
}

void upperPathFirstChar(CStdStr<wchar_t>& s)
{
    if (!s.empty() && ktqtbase::isDrive(s.front(), ktqtbase::secondCharacter(s)))
        ktqtbase::raiseDriveLetter(s);
}
