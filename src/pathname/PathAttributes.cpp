// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

namespace {

// The directory attribute of Windows; in a POSIX mode the same bit is the group's write permission.
constexpr unsigned int kDirectoryAttribute = 0x10;

path_type typeFromAttributes(unsigned int attributes)
{
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return PT_NOT_FOUND;
    return attributes & kDirectoryAttribute ? PT_DIRECTORY : PT_FILE;
}

} // namespace

void CRbUiPathname::GetAttributes(const CStdStr<wchar_t>* work, const CStdStr<wchar_t>* relPath,
                                  path_type* type)
{
    // Set before the last component is asked for, which an unparsed name does not have: the parse
    // hands in this object's own type.
    *type = PT_NOT_FOUND;
    CStdStr<wchar_t> base;
    GetBasename(base);
    if (!IsPathType(base, type) && work)
        GetAttByPath(&work, &relPath, &type);
}

bool IsPathType(CStdStr<wchar_t> name, path_type* type)
{
    const wchar_t wildcards[] = {kAsterisk, kQuestionmark};
    if (name.find_first_of(wildcards, 0, 2) == name.npos)
        return false;
    *type = PT_WILDCARD;
    return true;
}

void GetAttByPath(const CStdStr<wchar_t>** work, const CStdStr<wchar_t>** relPath, path_type** type)
{
    CStdStr<wchar_t> text;
    if (relPath && *relPath)
        text.append(**relPath).push_back(kSlash);
    text.append(**work);
    **type = typeFromAttributes(GetFileAttributes(text.c_str()));
}
