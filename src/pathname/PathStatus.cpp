// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

namespace {

constexpr int kExistsAndReadable = 3;
constexpr int kMayBeWritten = 4;
constexpr int kFolderMayBeWritten = 8;
constexpr int kOnReadOnlyVolume = 0xF3;

// The read-only attribute of Windows; in a POSIX mode the same bit is the others' execute
// permission.
constexpr unsigned int kReadOnlyAttribute = 0x01;

// Takes a name's full path and parses it anew. Result: of the parse.
int parseAgain(CRnUiPathname& name)
{
    CStdStr<wchar_t> path;
    name.GetFullPath(path);
    name.Empty();
    return name.Parse(path.c_str(), false);
}

unsigned int attributesOf(CStdStr<wchar_t>** work)
{
    return *work ? GetFileAttributes((*work)->c_str()) : INVALID_FILE_ATTRIBUTES;
}

} // namespace

int CRnUiPathname::Status()
{
    if (m_type == PT_NONE)
        return 0;
    CRnUiPathname name(*this);
    CRnUiPathname parent;
    name.GetParent(parent);
    int status = ProcessPathStatus(name, &name.m_pWork);
    if (parent.m_type != PT_NONE)
        ProcessParentStatus(parent, &parent.m_pWork, status);
    if (name.m_pVolume && name.m_pVolume->CheckReadOnly())
        status &= kOnReadOnlyVolume;
    return status;
}

int ProcessPathStatus(CRnUiPathname& path, CStdStr<wchar_t>** work)
{
    // The folder does these two in the other order, and judges by the parse's result instead.
    path.TrimSlash();
    parseAgain(path);
    if (path.m_type == PT_NONE)
        return 0;
    const unsigned int attributes = attributesOf(work);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return 0;
    return attributes & kReadOnlyAttribute ? kExistsAndReadable
                                           : kExistsAndReadable | kMayBeWritten;
}

void ProcessParentStatus(CRnUiPathname& parent, CStdStr<wchar_t>** work, int& status)
{
    if (parseAgain(parent) != 0)
        return;
    parent.TrimSlash();
    // A failed look-up has every bit set, and so adds nothing.
    if (!(attributesOf(work) & kReadOnlyAttribute))
        status |= kFolderMayBeWritten;
}
