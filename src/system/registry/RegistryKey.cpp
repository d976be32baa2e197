// SPDX-License-Identifier: MIT
#include <KtQtBase/RegistryKey.h>

#include "string/QtText.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QVariant>

using ktqtbase::toQt;

namespace {

constexpr unsigned int kTooLong = 0xFFFFFFFF;

// QSettings prints a warning about an empty name, and the library has no log.
void store(QSettings& settings, const QString& name, const QString& value)
{
    if (!name.isEmpty())
        settings.setValue(name, value);
}

QString stored(const QSettings& settings, const QString& name)
{
    return name.isEmpty() ? QString() : settings.value(name).toString();
}

} // namespace

CRegKey::CRegKey()
    : m_pSettings(
          new QSettings(QSettings::NativeFormat, QSettings::UserScope, "tarnex", "Marrowfield"))
{}

CRegKey::~CRegKey()
{
    delete m_pSettings;
    m_pSettings = nullptr;
}

unsigned int CRegKey::Create(HKEY, const wchar_t* lpszKeyName, wchar_t*, unsigned int, unsigned int,
                             SECURITY_ATTRIBUTES*, unsigned int*)
{
    m_pKeyName = lpszKeyName;
    return ERROR_SUCCESS;
}

// Where memory runs out inside a group, the values after that must not go into it.

unsigned int CRegKey::SetValue(const wchar_t* lpszValue, const wchar_t* lpszValueName, bool, int)
{
    m_pSettings->beginGroup(toQt(m_pKeyName));
    const auto ended = qScopeGuard([this] { m_pSettings->endGroup(); });
    store(*m_pSettings, toQt(lpszValueName), toQt(lpszValue));
    return ERROR_SUCCESS;
}

unsigned int CRegKey::QueryValue(wchar_t* szValue, const wchar_t* lpszValueName,
                                 unsigned int* pnChars)
{
    m_pSettings->beginGroup(toQt(m_pKeyName));
    auto ended = qScopeGuard([this] { m_pSettings->endGroup(); });
    const QString text = stored(*m_pSettings, toQt(lpszValueName));
    const unsigned int room = pnChars ? *pnChars : 0;
    if (static_cast<unsigned int>(text.size()) > room) {
        // Kept: the group stays open, as the header says.
        ended.dismiss();
        return kTooLong;
    }
    if (szValue)
        text.toWCharArray(szValue);
    return ERROR_SUCCESS;
}

unsigned int CRegKey::Close()
{
    return ERROR_SUCCESS;
}
