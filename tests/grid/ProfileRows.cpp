// SPDX-License-Identifier: MIT
//
// Profiles, registry values and resource strings.
#include "grid/Grid.h"

#include "support/ScratchProfile.h"
#include "support/SlowProfileReader.h"

#include <KtQtBase/Porting.h>
#include <KtQtBase/RegistryKey.h>
#include <KtQtBase/windows/Profiles.h>
#include <KtQtBase/windows/ResourceStrings.h>

#include <QtCore/QSettings>

#include <dlfcn.h>

#include <algorithm>

namespace ktqtbase::test {

namespace {

// ---- The narrow reader -------------------------------------------------------------------------

std::string longText()
{
    std::string text;
    for (int letter = 0; letter < 600; ++letter)
        text += "\xC3\xA9";
    return text;
}

// Every pair of bytes above 127 is one character in UTF-8 and two in Latin-1. The long value ends
// inside a character where the wide reader cuts it.
const std::string kProfile =
    "[Main]\nTitle = \"\xC3\xA9t\xC3\xA9 1,5\xC3\xA9\"\nWidth = 10\nLong = " + longText() +
    "\n[\xC4\xB1"
    "er]\nKey = 1\n";

ScratchProfile& profile()
{
    static ScratchProfile file(kProfile);
    return file;
}

struct ProfileRow
{
    const char* variant;
    ProfileQuestion question; // its size is the cell's
};

const ProfileRow kProfileRows[] = {
    {"Value", {"Main", "Title", "none", 0}},
    {"LongValue", {"Main", "Long", "none", 0}},
    {"Default", {"Main", "None", "no \xC3\xA9 ", 0}},
    {"Keys", {"Main", std::nullopt, "none", 0}},
    {"Sections", {std::nullopt, std::nullopt, "none", 0}},
};

ProfileAnswer slowAnswer(ProfileQuestion question, std::size_t size)
{
    question.size = static_cast<int>(size);
    return readSlowly(kProfile, question);
}

// The count and one more, for the terminator.
std::size_t exactRoom(const ProfileQuestion& question)
{
    return static_cast<std::size_t>(slowAnswer(question, kLarge).count) + 1;
}

// An argument that the reader may not write, though its type lets it.
class ProfileArgument
{
public:
    ProfileArgument(const Cell& cell, const std::optional<std::string>& text)
        : m_isThere(text.has_value()), m_memory(cell, text.value_or("") + '\0')
    {}
    char* text() const { return m_isThere ? m_memory.data() : nullptr; }

private:
    bool m_isThere;
    Input<char> m_memory;
};

int readGuarded(const Cell& cell, const ProfileQuestion& question, char* out)
{
    const ProfileArgument section(cell, question.section);
    const ProfileArgument key(cell, question.key);
    const ProfileArgument defaultText(cell, question.defaultText);
    return read_profile_string(section.text(), key.text(), defaultText.text(), out,
                               static_cast<int>(cell.size), profile().name());
}

void callNarrowReader(const Cell& cell, const ProfileQuestion& question)
{
    const Output<char> out(cell, cell.size);
    const ProfileAnswer answer = slowAnswer(question, cell.isNull() ? 0 : cell.size);
    EXPECT_EQ(readGuarded(cell, question, out.data()), answer.count);
    std::string written = answer.text;
    written.resize(cell.isNull() ? 0 : cell.size);
    out.expect(written);
}

// The greatest size is left out: the reader fills all of it with zeros, and that is 2 GB.
GridRow ofNarrowReader(const ProfileRow& row)
{
    std::vector<Column> columns = kTrueSizes;
    columns.push_back(Column::Null);
    return {"read_profile_string",
            row.variant,
            Locales::All,
            columns,
            [row] { return exactRoom(row.question); },
            kGreatestInt,
            [row](const Cell& cell) { callNarrowReader(cell, row.question); }};
}

// ---- The wide reader ---------------------------------------------------------------------------

using ProfileStringFunction = unsigned int (*)(const wchar_t*, const wchar_t*, const wchar_t*,
                                               wchar_t*, unsigned int, const wchar_t*);

constexpr std::size_t kGreatestRoom = 1024;

// The value up to the first byte that does not convert, with its terminator; a null buffer gets the
// count all the same.
Promise<wchar_t> wideReaderPromise(const Cell& cell, const ProfileQuestion& question)
{
    const ProfileAnswer answer = slowAnswer(question, std::min(cell.size, kGreatestRoom));
    const bool nothing = cell.isNull() || cell.size == 0;
    const std::wstring written = nothing ? L"" : widened(answer.text).text + L'\0';
    return {answer.count, written, written.size()};
}

GridRow ofWideReader(const char* function, ProfileStringFunction call, const ProfileRow& row)
{
    const std::wstring key(row.question.key->begin(), row.question.key->end());
    return {function,
            row.variant,
            Locales::All,
            kAllColumns,
            [row] { return std::min(exactRoom(row.question), kGreatestRoom); },
            kGreatestUnsigned,
            writes<wchar_t>(
                [call, key](wchar_t* out, std::size_t size) {
                    return call(L"Main", key.c_str(), L"none", out, static_cast<unsigned int>(size),
                                profile().wideName().c_str());
                },
                [row](const Cell& cell) { return wideReaderPromise(cell, row.question); })};
}

// ---- Registry values ---------------------------------------------------------------------------

const std::wstring kValue = L"\u00e91,5\U0001F600";
constexpr std::size_t kUtf16Length = 6;
constexpr long long kTooLong = 0xFFFFFFFF;

// A store of this program's own, with one value. It is made before the first key is.
class OwnStore
{
protected:
    OwnStore() { static const Folder folder; }

private:
    struct Folder : QTemporaryDir
    {
        Folder()
        {
            for (const auto scope : {QSettings::UserScope, QSettings::SystemScope})
                QSettings::setPath(QSettings::NativeFormat, scope,
                                   filePath(QString::number(scope)));
            CRegKey key;
            key.Create(HKEY_CURRENT_USER, L"Grid");
            key.SetValue(kValue.c_str(), L"\u00e9");
        }
    };
};

// A key of one cell, since a failure moves it to another path.
struct GridKey : private OwnStore, CRegKey
{
    GridKey() { Create(HKEY_CURRENT_USER, L"Grid"); }
};

Promise<wchar_t> queryPromise(const Cell& cell)
{
    if (cell.size < kUtf16Length)
        return {kTooLong, L"", cell.size};
    const std::wstring written = cell.isNull() ? L"" : kValue;
    return {0, written, written.size()};
}

unsigned int query(wchar_t* out, std::size_t size)
{
    GridKey key;
    auto room = static_cast<unsigned int>(size);
    const unsigned int result = key.QueryValue(out, L"\u00e9", &room);
    EXPECT_EQ(room, size);
    return result;
}

// Without a room that is named there is none.
unsigned int queryWithoutRoom(wchar_t* out, std::size_t)
{
    GridKey key;
    return key.QueryValue(out, L"\u00e9", nullptr);
}

Promise<wchar_t> noRoomPromise(const Cell& cell)
{
    return {kTooLong, L"", cell.size};
}

// The length that is passed does not count: the text ends at its NUL.
void setOfLength(const Cell& cell)
{
    const Input<wchar_t> text(cell, kValue + L'\0');
    GridKey key;
    EXPECT_EQ(key.SetValue(cell.isNull() ? nullptr : text.data(), L"Set", false,
                           static_cast<int>(cell.size)),
              0u);
    const QString stored = key.m_pSettings->value("Grid/Set").toString();
    EXPECT_EQ(stored.toStdWString(), cell.isNull() ? L"" : kValue);
}

// Neither the class nor the disposition is written.
void createBesideBuffers(const Cell& cell)
{
    const Output<wchar_t> keyClass(cell, cell.size);
    const Output<unsigned int> disposition(cell, 1);
    CRegKey key;
    EXPECT_EQ(
        key.Create(HKEY_CURRENT_USER, L"Grid", keyClass.data(), 0, 0, nullptr, disposition.data()),
        0u);
    keyClass.expect(L"");
    disposition.expect({});
}

// ---- Resource strings --------------------------------------------------------------------------

using LoadStringFunction = int (*)(HINSTANCE, unsigned int, wchar_t*, int);

constexpr unsigned int kStringNumber = 3;
const std::wstring kString = L"h\u00e9\U0001F600";

HINSTANCE textModule()
{
    static void* const module = dlopen(KTQTBASE_MODULE_FOLDER "/libkttexts.so", RTLD_LAZY);
    return static_cast<HINSTANCE>(module);
}

// The text and zeros, all but the last position; the poison there is no zero, so that a result
// counts it.
Promise<wchar_t> loadStringPromise(const Cell& cell)
{
    if (cell.isNull() || cell.size == 0)
        return {0, L"", 0};
    std::wstring written = kString;
    written.resize(cell.size - 1);
    const std::size_t end = std::min(written.find(L'\0'), cell.size);
    return {static_cast<long long>(end), written, cell.size};
}

// The greatest size is left out: the function fills all of it with zeros, and that is 8 GB.
GridRow ofLoadString(const char* function, LoadStringFunction call)
{
    std::vector<Column> columns = kTrueSizes;
    columns.push_back(Column::Null);
    // The least size whose last position, which is never written, is behind the terminator.
    return {function,
            "",
            Locales::All,
            columns,
            always(kString.size() + 2),
            kGreatestInt,
            writes<wchar_t>(
                [call](wchar_t* out, std::size_t size) {
                    return call(textModule(), kStringNumber, out, static_cast<int>(size));
                },
                loadStringPromise)};
}

} // namespace

std::vector<GridRow> profileRows()
{
    std::vector<GridRow> rows;
    for (const ProfileRow& row : {kProfileRows[0], kProfileRows[1]}) {
        rows.push_back(ofWideReader("GetPrivateProfileString", ::GetPrivateProfileString, row));
        rows.push_back(ofWideReader("GetPrivateProfileStringW", GetPrivateProfileStringW, row));
    }
    for (const ProfileRow& row : kProfileRows)
        rows.push_back(ofNarrowReader(row));
    return rows;
}

std::vector<GridRow> registryRows()
{
    return {{"CRegKey::QueryValue", "", Locales::All, kAllColumns, always(kUtf16Length),
             kGreatestUnsigned, writes<wchar_t>(query, queryPromise)},
            {"CRegKey::QueryValue",
             "WithoutRoom",
             Locales::All,
             {Column::Null, Column::Exact, Column::Large},
             always(kUtf16Length),
             kGreatestUnsigned,
             writes<wchar_t>(queryWithoutRoom, noRoomPromise)},
            {"CRegKey::SetValue", "", Locales::One, kAllColumns, always(kValue.size()),
             kGreatestInt, setOfLength},
            {"CRegKey::Create",
             "",
             Locales::One,
             {Column::Null, Column::One, Column::Large},
             always(1),
             0,
             createBesideBuffers}};
}

std::vector<GridRow> resourceRows()
{
    return {ofLoadString("LoadString", ::LoadString), ofLoadString("LoadStringW", LoadStringW)};
}

} // namespace ktqtbase::test
