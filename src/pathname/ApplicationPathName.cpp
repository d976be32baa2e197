// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include "pathname/PathInternals.h"
#include "string/TextRoom.h"

#include <QtCore/QScopeGuard>

namespace {

constexpr int kExistsAndReadable = 3;
constexpr int kMayBeWritten = 4;
constexpr int kFolderMayBeWritten = 8;
constexpr int kNeedsWritableVolume = kMayBeWritten | kFolderMayBeWritten;

// Takes a path object's full path and parses it anew. Result: of the parse.
int parseAgain(CRnUiPathname& path)
{
    CStdStr<wchar_t> fullPath;
    path.GetFullPath(fullPath);
    path.Empty();
    return path.Parse(fullPath.c_str(), false);
}

unsigned int attributesOfText(CStdStr<wchar_t>** work)
{
    return *work ? GetFileAttributes((*work)->c_str()) : INVALID_FILE_ATTRIBUTES;
}

} // namespace

// ---- The path object ---------------------------------------------------------------------------

CRnUiPathname::CRnUiPathname() = default;

CRnUiPathname::CRnUiPathname(const CRnUiPathname& other) : CRbUiPathname()
{
    CRbUiPathname::AssignCopy(other);
}

CRnUiPathname::~CRnUiPathname() = default;

int CRnUiPathname::Parse(const wchar_t* name, bool flag)
{
    return name ? ParseRelative(name, &g_CurrentDirPrefix, flag) : ktqtbase::kBadArgument;
}

void CRnUiPathname::AssignCopy(const CRnUiPathname& other)
{
    CRbUiPathname::AssignCopy(other);
}

int CRnUiPathname::Open(IKtFile**, const wchar_t*)
{
    return 0;
}

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
        status &= ~kNeedsWritableVolume;
    return status;
}

// ---- The folder of relative names --------------------------------------------------------------

bool ktuiSetCurrentDirPrefix()
{
    wchar_t folder[ktqtbase::kTextRoom];
    auto emptied = qScopeGuard([] { g_CurrentDirPrefix.Empty(); });
    if (GetCurrentDirectoryW(ktqtbase::kTextRoom, folder) == 0)
        return false;
    const int result = g_CurrentDirPrefix.ParseRelative(folder, nullptr, false);
    g_CurrentDirPrefix.AppendSlash();
    if (result != ktqtbase::kDone)
        return false;
    emptied.dismiss();
    return true;
}

// ---- The parts of Status -----------------------------------------------------------------------

int ProcessPathStatus(CRnUiPathname& path, CStdStr<wchar_t>** work)
{
    // Kept: ProcessParentStatus trims after the parse and goes by its result; the statuses of names
    // with a closing separator would change otherwise.
    path.TrimSlash();
    parseAgain(path);
    if (path.m_type == PT_NONE)
        return 0;
    const unsigned int attributes = attributesOfText(work);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return 0;
    return (attributes & ktqtbase::kReadOnlyAttribute) ? kExistsAndReadable
                                                       : kExistsAndReadable | kMayBeWritten;
}

void ProcessParentStatus(CRnUiPathname& parent, CStdStr<wchar_t>** work, int& status)
{
    if (parseAgain(parent) != 0)
        return;
    parent.TrimSlash();
    // A failed look-up has every bit set, and so adds nothing.
    if (!(attributesOfText(work) & ktqtbase::kReadOnlyAttribute))
        status |= kFolderMayBeWritten;
}
