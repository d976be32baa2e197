// SPDX-License-Identifier: MIT
//
// Registry values beside plain QSettings calls with the same conversions, in a store of its own.
// The stores lie in the private home.
#include "support/Rows.h"

#include <KtQtBase/RegistryKey.h>

#include <QtCore/QSettings>
#include <QtCore/QVector>

#include <algorithm>
#include <cstddef>
#include <memory>

namespace {

using bench::Row;

const std::size_t kLengths[] = {10, 100, 1000};

const wchar_t* const kKey = L"Software/Editor/Options";
const wchar_t* const kName = L"Recent file";
constexpr unsigned int kRoom = 1024;

QString fromWide(const wchar_t* text)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(text), -1);
}

std::shared_ptr<CRegKey> openKey()
{
    auto key = std::make_shared<CRegKey>();
    key->Create(nullptr, kKey);
    return key;
}

std::shared_ptr<QSettings> openSettings()
{
    return std::make_shared<QSettings>(QSettings::NativeFormat, QSettings::UserScope, "tarnex",
                                       "Plain");
}

void writePlain(QSettings& settings, const wchar_t* value)
{
    settings.beginGroup(fromWide(kKey));
    settings.setValue(fromWide(kName), QVariant(fromWide(value)));
    settings.endGroup();
}

void readPlain(QSettings& settings, wchar_t* value)
{
    settings.beginGroup(fromWide(kKey));
    const QVector<uint> text = settings.value(fromWide(kName)).toString().toUcs4();
    std::copy(text.begin(), text.end(), value);
    settings.endGroup();
}

void addWrite(std::size_t length)
{
    const std::wstring value(length, L'v');
    Row("CRegKey::SetValue", std::to_string(length))
        .library([=] { return [=, key = openKey()] { key->SetValue(value.c_str(), kName); }; })
        .reference("QSettings", [=] {
            return [=, settings = openSettings()] { writePlain(*settings, value.c_str()); };
        });
}

void addRead(std::size_t length)
{
    const std::wstring value(length, L'v');
    Row("CRegKey::QueryValue", std::to_string(length))
        .library([=] {
            const auto key = openKey();
            key->SetValue(value.c_str(), kName);
            return [=] {
                wchar_t text[kRoom];
                unsigned int room = kRoom;
                key->QueryValue(text, kName, &room);
            };
        })
        .reference("QSettings", [=] {
            const auto settings = openSettings();
            writePlain(*settings, value.c_str());
            return [=] {
                wchar_t text[kRoom];
                readPlain(*settings, text);
            };
        });
}

} // namespace

void bench::addRegistryRows()
{
    for (const std::size_t length : kLengths) {
        addWrite(length);
        addRead(length);
    }
}
