// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/KernelStubs.h>

#include "pathname/PathInternals.h"

#include <KtOsBase/KtOsBase.h>

#include <memory>

namespace {

constexpr unsigned int kPathRoom = 1024;

bool openFile(const CRbUiPathname& name, unsigned int access, void*& handle)
{
    handle = INVALID_HANDLE_VALUE;
    if (static_cast<unsigned int>(name.m_type) - 1 >= 5)
        return false;
    CStdStr<wchar_t> path;
    name.GetFullPath(path);
    handle = CreateFile(path.c_str(), access, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    return handle != INVALID_HANDLE_VALUE;
}

// Renames with the folder of a prefix as the current one, which stays the process's own here.
int renameInside(const CStdStr<wchar_t>& folder, const wchar_t* oldName, const wchar_t* newName)
{
    wchar_t saved[kPathRoom];
    GetCurrentDirectoryW(kPathRoom, saved);
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
        return 1;
    if (fsName.back() != m_separator)
        fsName.push_back(m_separator);
    return 0;
}
