// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include "string/TextRoom.h"
#include "volume/FileSystemNames.h"

#include <cwchar>

namespace {

constexpr const wchar_t* kUncPrefix = L"\\\\";
constexpr int kDefaultMaxComponentLen = 255;
constexpr int kDefaultMaxPathLen = ktqtbase::kTextRoom - 1;
constexpr unsigned int kUnlimitedSpace = 0x7FFFFFFF;

constexpr unsigned int kBuiltFromName = 0x01;
constexpr unsigned int kTrusted = 0x10;
constexpr unsigned int kReadOnly = 0x20;
constexpr unsigned int kCaseSensitive = 0x40;
constexpr unsigned int kKeptByConstructor = 0x80;

} // namespace

CRbUiVolumeDescriptor::CRbUiVolumeDescriptor() = default;

CRbUiVolumeDescriptor::CRbUiVolumeDescriptor(const CStdStr<wchar_t>& localName)
    : m_pLocalName(new CStdStr<wchar_t>(localName)), m_maxComponentLen(kDefaultMaxComponentLen),
      m_maxPathLen(kDefaultMaxPathLen), m_separator(kBackslash), m_bUseCSearch(false),
      m_reserved(0), m_pAuxName(nullptr), m_pConnectionName(nullptr), m_pUncPrefix(kUncPrefix)
{
    // Reads memory that this constructor did not write: a host may have set the bit.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
    m_flags = static_cast<unsigned char>((m_flags & kKeptByConstructor) | kBuiltFromName);
#pragma GCC diagnostic pop
}

CRbUiVolumeDescriptor::~CRbUiVolumeDescriptor()
{
    ReleaseStringPtr(&m_pLocalName);
    ReleaseStringPtr(&m_pAuxName);
    ReleaseStringPtr(&m_pConnectionName);
}

bool CRbUiVolumeDescriptor::CheckReadOnly() const
{
    return m_flags & kReadOnly;
}

bool CRbUiVolumeDescriptor::IsCaseSensitive() const
{
    return m_flags & kCaseSensitive;
}

bool CRbUiVolumeDescriptor::PreservesCase() const
{
    return true;
}

bool CRbUiVolumeDescriptor::AllowsCaseSensitiveLookup() const
{
    return true;
}

void CRbUiVolumeDescriptor::VolCase(CStdStr<wchar_t>&) const {}

const CStdStr<wchar_t>* CRbUiVolumeDescriptor::GetLocalName() const
{
    return m_pLocalName;
}

unsigned int CRbUiVolumeDescriptor::GetVolFreeSpace() const
{
    return kUnlimitedSpace;
}

bool CRbUiVolumeDescriptor::WillFit(unsigned int) const
{
    return true;
}

bool CRbUiVolumeDescriptor::VolumeValid() const
{
    if (m_flags & (kBuiltFromName | kTrusted))
        return true;
    if (!m_pLocalName || m_pLocalName->empty())
        return false;
    return ktqtbase::isFileSystemNamed(m_fsType, ktqtbase::kUnknownFileSystem);
}

void CRbUiVolumeDescriptor::GetConnectionName()
{
    m_pConnectionName = new CStdStr<wchar_t>(L"GetConnectionName Failed");
}

unsigned int CRbUiVolumeDescriptor::Find(const CStdStr<wchar_t>& s, wchar_t ch) const
{
    if (m_bUseCSearch) {
        const wchar_t* found = std::wcschr(s.c_str(), ch);
        return found ? static_cast<unsigned int>(found - s.c_str()) : 0xFFFFFFFFu;
    }
    return static_cast<unsigned int>(s.find(ch));
}

bool CRbUiVolumeDescriptor::IsControl(int) const
{
    return false;
}
