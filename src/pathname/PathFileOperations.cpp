// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/KernelStubs.h>

#include "pathname/PathInternals.h"
#include "string/TextRoom.h"

#include <KtOsBase/KtOsBase.h>

#include <memory>

namespace {

bool openFile(const CRbUiPathname& path, unsigned int access, void*& handle)
{
    handle = INVALID_HANDLE_VALUE;
    if (!ktqtbase::isNamed(path.m_type))
        return false;
    CStdStr<wchar_t> fullPath;
    path.GetFullPath(fullPath);
    handle = CreateFile(fullPath.c_str(), access, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    return handle != INVALID_HANDLE_VALUE;
}

// Renames as on Windows, with the prefix as current directory. SetCurrentDirectoryW does nothing
// here, so that the process's own working directory counts.
int renameInside(const CStdStr<wchar_t>& folder, const wchar_t* oldName, const wchar_t* newName)
{
    wchar_t saved[ktqtbase::kTextRoom];
    GetCurrentDirectoryW(ktqtbase::kTextRoom, saved);
    SetCurrentDirectoryW(folder.c_str());
    const int result = _wrename(oldName, newName);
    SetCurrentDirectoryW(saved);
    return result;
}

} // namespace

bool CRbUiPathname::OpenReadOnly(void*& handle)
{
    return openFile(*this, GENERIC_READ, handle);
}

bool CRbUiPathname::OpenWriteOnly(void*& handle)
{
    return openFile(*this, GENERIC_WRITE, handle);
}

void CRbUiPathname::Open(FILE**, const wchar_t*)
{
    throw;
}

bool CRbUiPathname::Rename(const wchar_t* newName)
{
    if (!ktqtbase::isParsed(*this))
        return false;
    auto renamed = std::make_unique<CStdStr<wchar_t>>(newName ? newName : L"");
    const wchar_t* const oldName = m_pWork->c_str();
    const int result =
        m_pRelPath ? renameInside(*m_pRelPath, oldName, newName) : _wrename(oldName, newName);
    if (result != 0)
        return false;
    delete m_pWork;
    m_pWork = renamed.release();
    return true;
}

int CRbUiPathname::Remove()
{
    return 0;
}

int CRbUiPathname::GetFileSystem(CStdStr<wchar_t>& fsName) const
{
    if (fsName.empty())
        return ktqtbase::kBadArgument;
    if (fsName.back() != m_separator)
        fsName.push_back(m_separator);
    return ktqtbase::kDone;
}
