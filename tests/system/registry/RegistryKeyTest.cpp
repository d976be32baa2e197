// SPDX-License-Identifier: MIT
#include <KtQtBase/RegistryKey.h>

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <vector>

namespace {

constexpr wchar_t kPath[] = L"Software\\App\\Options";
constexpr wchar_t kPoison = L'\x5A5A';
constexpr unsigned int kTooLong = 0xFFFFFFFF;

// A store of the test's own, for every settings object made after it; tests may run side by side.
struct PrivateStore
{
    PrivateStore()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
        QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                           folder.filePath("system"));
    }

    QTemporaryDir folder;
};

class RegistryKey : public ::testing::Test
{
protected:
    RegistryKey() { m_key.Create(HKEY_CURRENT_USER, kPath); }

    // What a second, plain settings object finds.
    QVariant stored(const char* name) const
    {
        const QSettings settings(QSettings::NativeFormat, QSettings::UserScope, "tarnex",
                                 "Marrowfield");
        return settings.value(name);
    }

    // What the file holds, read past everything that this process remembers of it.
    QString onDisk(const QString& name) const
    {
        m_key.m_pSettings->sync();
        const QTemporaryDir other;
        const QString copy = other.filePath("copy.conf");
        QFile::copy(m_store.folder.filePath("tarnex/Marrowfield.conf"), copy);
        return QSettings(copy, QSettings::NativeFormat).value(name).toString();
    }

    void store(const char* name, const QVariant& value) const
    {
        QSettings settings(QSettings::NativeFormat, QSettings::UserScope, "tarnex", "Marrowfield");
        settings.setValue(name, value);
    }

    PrivateStore m_store;
    CRegKey m_key;
};

// A query into a poisoned area of 32 characters.
struct Query
{
    Query(CRegKey& key, const wchar_t* name, unsigned int size)
        : area(32, kPoison), room(size), result(key.QueryValue(area.data(), name, &room))
    {}

    // What lies before the first untouched character.
    std::wstring text() const { return std::wstring(area.data(), area.size()).substr(0, end()); }
    std::size_t end() const { return std::wstring(area.data(), area.size()).find(kPoison); }

    std::vector<wchar_t> area;
    unsigned int room;
    unsigned int result;
};

// Keeps what Qt prints meanwhile.
class Prints
{
public:
    Prints() : m_former(qInstallMessageHandler(keep)) { texts.clear(); }
    ~Prints() { qInstallMessageHandler(m_former); }
    Prints(const Prints&) = delete;
    Prints& operator=(const Prints&) = delete;

    inline static QStringList texts;

private:
    static void keep(QtMsgType, const QMessageLogContext&, const QString& text) { texts << text; }

    QtMessageHandler m_former;
};

TEST_F(RegistryKey, ReadsBackWhatItSet)
{
    EXPECT_EQ(m_key.SetValue(L"7", L"Count"), 0u);
    const Query query(m_key, L"Count", 10);
    EXPECT_EQ(query.result, 0u);
    EXPECT_EQ(query.text(), L"7");
    EXPECT_EQ(query.room, 10u);
}

TEST_F(RegistryKey, KeepsAStringInTheGroupOfItsPath)
{
    m_key.SetValue(L"7", L"Count");
    EXPECT_EQ(stored("Software\\App\\Options/Count"), QVariant(QString("7")));
    EXPECT_EQ(stored("Software\\App\\Options/Count").userType(), QMetaType::QString);
}

TEST_F(RegistryKey, PartsGroupsAtSlashes)
{
    m_key.Create(nullptr, L"Software/App");
    m_key.SetValue(L"7", L"Options/Count");
    EXPECT_EQ(stored("Software/App/Options/Count").toString(), "7");
}

TEST_F(RegistryKey, WritesToTheStoreWhenItGoes)
{
    {
        CRegKey key;
        key.Create(nullptr, L"Group");
        key.SetValue(L"written", L"Name");
    }
    QFile file(m_store.folder.filePath("tarnex/Marrowfield.conf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("[Group]\nName=written\n"));
}

TEST_F(RegistryKey, ReadsWhatOthersStored)
{
    store("Software\\App\\Options/Text", "abc");
    store("Software\\App\\Options/Number", 12);
    EXPECT_EQ(Query(m_key, L"Text", 10).text(), L"abc");
    EXPECT_EQ(Query(m_key, L"Number", 10).text(), L"12");
}

// QSettings looks for a value that the user has not stored in the files of the organisation and of
// the system, too.
TEST_F(RegistryKey, FallsBackToTheOrganisationAndTheSystem)
{
    const QString name = "Software\\App\\Options/";
    QSettings("tarnex", "").setValue(name + "Organisation", "abc");
    QSettings(m_store.folder.filePath("system/tarnex/Marrowfield.conf"), QSettings::NativeFormat)
        .setValue(name + "System", "def");
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, kPath);
    EXPECT_EQ(Query(key, L"Organisation", 10).text(), L"abc");
    EXPECT_EQ(Query(key, L"System", 10).text(), L"def");
    key.SetValue(L"own", L"System");
    EXPECT_EQ(Query(key, L"System", 10).text(), L"own");
}

TEST_F(RegistryKey, ReadsAStoredTextPastItsZeros)
{
    store("Software\\App\\Options/Text", QString::fromLatin1("a\0b", 3));
    const Query query(m_key, L"Text", 3);
    EXPECT_EQ(query.result, 0u);
    EXPECT_EQ(query.text(), std::wstring(L"a\0b", 3));
    EXPECT_EQ(Query(m_key, L"Text", 2).result, kTooLong);
}

TEST_F(RegistryKey, TellsUpperFromLowerCase)
{
    m_key.SetValue(L"7", L"Count");
    EXPECT_EQ(Query(m_key, L"count", 10).end(), 0u);
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, L"software\\app\\options");
    EXPECT_EQ(Query(key, L"Count", 10).end(), 0u);
}

TEST_F(RegistryKey, SeesTheValuesOfAnotherObject)
{
    CRegKey other;
    other.Create(HKEY_CURRENT_USER, kPath);
    other.SetValue(L"7", L"Count");
    EXPECT_EQ(Query(m_key, L"Count", 10).text(), L"7");
}

TEST_F(RegistryKey, ReplacesAValue)
{
    m_key.SetValue(L"first", L"Name");
    m_key.SetValue(L"2nd", L"Name");
    EXPECT_EQ(Query(m_key, L"Name", 10).text(), L"2nd");
}

TEST_F(RegistryKey, IsTheSameUnderEveryHive)
{
    m_key.SetValue(L"7", L"Count");
    for (const HKEY hive : {HKEY_CLASSES_ROOT, HKEY_LOCAL_MACHINE, HKEY_USERS, HKEY()}) {
        CRegKey key;
        EXPECT_EQ(key.Create(hive, kPath), 0u);
        EXPECT_EQ(Query(key, L"Count", 10).text(), L"7");
    }
}

TEST_F(RegistryKey, CreateTouchesNeitherStoreNorDisposition)
{
    wchar_t className[] = L"class";
    SECURITY_ATTRIBUTES security = {};
    unsigned int disposition = 99;
    CRegKey key;
    EXPECT_EQ(key.Create(HKEY_USERS, L"New", className, REG_OPTION_VOLATILE, KEY_READ, &security,
                         &disposition),
              0u);
    EXPECT_EQ(disposition, 99u);
    const QSettings settings(QSettings::NativeFormat, QSettings::UserScope, "tarnex",
                             "Marrowfield");
    EXPECT_TRUE(settings.allKeys().isEmpty());
}

TEST_F(RegistryKey, KeepsThePointerToItsPath)
{
    wchar_t path[] = L"One";
    m_key.Create(nullptr, path);
    EXPECT_EQ(m_key.m_pKeyName, path);
    path[0] = L'o';
    m_key.SetValue(L"7", L"Count");
    EXPECT_EQ(stored("one/Count").toString(), "7");
}

TEST_F(RegistryKey, QueryWritesNothingForAMissingValue)
{
    const Query query(m_key, L"Missing", 10);
    EXPECT_EQ(query.result, 0u);
    EXPECT_EQ(query.end(), 0u);
    EXPECT_EQ(Query(m_key, L"Missing", 0).result, 0u);
}

TEST_F(RegistryKey, QueryFillsAnAreaOfTheTextsLength)
{
    m_key.SetValue(L"1234567890", L"Name");
    EXPECT_EQ(Query(m_key, L"Name", 11).text(), L"1234567890");
    EXPECT_EQ(Query(m_key, L"Name", 10).text(), L"1234567890");
}

TEST_F(RegistryKey, QueryRefusesALongerTextAndWritesNothing)
{
    m_key.SetValue(L"12345678901", L"Name");
    const Query query(m_key, L"Name", 10);
    EXPECT_EQ(query.result, kTooLong);
    EXPECT_EQ(query.end(), 0u);
    EXPECT_EQ(query.room, 10u);
}

TEST_F(RegistryKey, QueryMeasuresUtf16AndWritesUtf32)
{
    m_key.SetValue(L"a\U0001F600", L"Name");
    EXPECT_EQ(Query(m_key, L"Name", 3).text(), L"a\U0001F600");
    EXPECT_EQ(Query(m_key, L"Name", 2).result, kTooLong);
}

TEST_F(RegistryKey, QueryTakesARoomAboveTheSignedRange)
{
    m_key.SetValue(L"abc", L"Name");
    EXPECT_EQ(Query(m_key, L"Name", 0xFFFFFFFF).text(), L"abc");
}

TEST_F(RegistryKey, WorksInsideItselfAfterARefusal)
{
    m_key.Create(nullptr, L"Group");
    m_key.SetValue(L"12345678901", L"Name");
    EXPECT_EQ(Query(m_key, L"Name", 10).result, kTooLong);
    m_key.SetValue(L"nested", L"Other");
    EXPECT_EQ(stored("Group/Group/Other").toString(), "nested");
    EXPECT_FALSE(stored("Group/Other").isValid());
    EXPECT_EQ(Query(m_key, L"Other", 10).text(), L"nested");
}

TEST_F(RegistryKey, NestsOneLevelDeeperAtEachRefusal)
{
    m_key.Create(nullptr, L"Group");
    store("Group/Name", "12345678901");
    store("Group/Group/Name", "12345678901");
    EXPECT_EQ(Query(m_key, L"Name", 10).result, kTooLong);
    EXPECT_EQ(Query(m_key, L"Name", 10).result, kTooLong);
    m_key.SetValue(L"7", L"Count");
    EXPECT_EQ(stored("Group/Group/Group/Count").toString(), "7");
}

TEST_F(RegistryKey, StaysInsideItselfAfterClose)
{
    m_key.Create(nullptr, L"Group");
    m_key.SetValue(L"12345678901", L"Name");
    EXPECT_EQ(Query(m_key, L"Name", 10).result, kTooLong);
    EXPECT_EQ(m_key.Close(), 0u);
    m_key.SetValue(L"7", L"Count");
    EXPECT_EQ(stored("Group/Group/Count").toString(), "7");
    EXPECT_FALSE(stored("Group/Count").isValid());
}

TEST_F(RegistryKey, StaysInsideItselfAfterAnotherCreate)
{
    m_key.Create(nullptr, L"Group");
    m_key.SetValue(L"12345678901", L"Name");
    EXPECT_EQ(Query(m_key, L"Name", 10).result, kTooLong);
    m_key.Create(nullptr, L"Other");
    m_key.SetValue(L"7", L"Count");
    EXPECT_EQ(stored("Group/Other/Count").toString(), "7");
    EXPECT_FALSE(stored("Other/Count").isValid());
}

TEST_F(RegistryKey, SetValueIgnoresKindAndLength)
{
    EXPECT_EQ(m_key.SetValue(L"abc", L"Name", true, 1), 0u);
    EXPECT_EQ(Query(m_key, L"Name", 10).text(), L"abc");
}

TEST_F(RegistryKey, KeepsTextsThatTheStoreMustEscape)
{
    for (const wchar_t* text :
         {L"a,b", L"@Invalid()", L"\"q\"", L" x ", L"a\tb\n", L"%20;#", L"\u20AC"}) {
        m_key.SetValue(text, L"Name = [x] \u00E9");
        EXPECT_EQ(Query(m_key, L"Name = [x] \u00E9", 20).text(), text);
        EXPECT_EQ(onDisk(QString::fromWCharArray(L"Software\\App\\Options/Name = [x] \u00E9")),
                  QString::fromWCharArray(text));
    }
}

TEST_F(RegistryKey, TakesNullTexts)
{
    EXPECT_EQ(m_key.SetValue(L"abc"), 0u);
    EXPECT_EQ(m_key.SetValue(L"abc", L""), 0u);
    EXPECT_EQ(Query(m_key, nullptr, 10).end(), 0u);
    EXPECT_EQ(m_key.SetValue(nullptr, L"Name"), 0u);
    EXPECT_EQ(stored("Software\\App\\Options/Name"), QVariant(QString("")));
    m_key.Create(nullptr, nullptr);
    m_key.SetValue(L"top", L"Name");
    EXPECT_EQ(stored("Name").toString(), "top");
}

TEST_F(RegistryKey, PrintsNothingForAValueWithoutAName)
{
    const Prints prints;
    for (const wchar_t* name : {static_cast<const wchar_t*>(nullptr), L""}) {
        EXPECT_EQ(m_key.SetValue(L"abc", name), 0u);
        EXPECT_EQ(Query(m_key, name, 10).end(), 0u);
    }
    EXPECT_EQ(Prints::texts, QStringList());
}

TEST_F(RegistryKey, QueryTakesNullAreaAndRoom)
{
    m_key.SetValue(L"abc", L"Name");
    unsigned int room = 10;
    EXPECT_EQ(m_key.QueryValue(nullptr, L"Name", &room), 0u);
    EXPECT_EQ(m_key.QueryValue(nullptr, L"Missing", nullptr), 0u);
    EXPECT_EQ(m_key.QueryValue(nullptr, L"Name", nullptr), kTooLong);
}

TEST_F(RegistryKey, StaysInUseAfterClose)
{
    EXPECT_EQ(m_key.Close(), 0u);
    EXPECT_EQ(m_key.SetValue(L"7", L"Count"), 0u);
    EXPECT_EQ(m_key.Close(), 0u);
    EXPECT_EQ(Query(m_key, L"Count", 10).text(), L"7");
}

TEST(RegistryKeyType, HasTheSettingsBeforeTheKeysName)
{
    static_assert(std::is_standard_layout_v<CRegKey>);
    EXPECT_EQ(offsetof(CRegKey, m_pSettings), 0u);
    EXPECT_EQ(offsetof(CRegKey, m_pKeyName), sizeof(void*));
}

TEST(RegistryKeyType, HoldsTwoPointersAndIsNotCopied)
{
    EXPECT_EQ(sizeof(CRegKey), 2 * sizeof(void*));
    EXPECT_FALSE(std::is_polymorphic_v<CRegKey>);
    EXPECT_FALSE(std::is_copy_constructible_v<CRegKey>);
}

} // namespace
