// SPDX-License-Identifier: MIT
//
// Programs of calls on registry keys over a store of their own, beside a plain map of what they
// store. Now and then what the store has on the disk is read as another process would read it.
#include "support/Expect.h"
#include "support/Input.h"

#include <KtQtBase/RegistryKey.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <vector>

using namespace ktqtbase::fuzz;

namespace {

namespace fs = std::filesystem;

constexpr int kLongestProgram = 30;
constexpr std::size_t kMostText = 300;
constexpr std::size_t kMargin = 8;
constexpr std::size_t kKeys = 3;
constexpr wchar_t kPoison = L'\x5A5A';
constexpr unsigned int kTooLong = 0xFFFFFFFF;

using Units = std::u16string;

// ---- A plain reading of the rules --------------------------------------------------------------

bool isCharacter(wchar_t ch)
{
    return ch >= 0 && ch < 0x110000 && (ch < 0xD800 || ch > 0xDFFF);
}

// A store is asked only for texts that are Unicode. A byte order mark in front is none of the text.
std::wstring unicode(std::wstring text)
{
    const auto isNone = [](wchar_t ch) { return !isCharacter(ch); };
    text.erase(std::remove_if(text.begin(), text.end(), isNone), text.end());
    return text.substr(0, kMostText);
}

std::wstring withoutMark(const std::wstring& text)
{
    return text.substr(!text.empty() && text[0] == 0xFEFF ? 1 : 0);
}

std::size_t unitsOf(const std::wstring& text)
{
    std::size_t units = 0;
    for (const wchar_t ch : text)
        units += ch > 0xFFFF ? 2 : 1;
    return units;
}

// A path without slashes at its ends, and none doubled.
std::wstring normal(const std::wstring& path)
{
    std::wstring result;
    for (const wchar_t ch : path) {
        if (ch != L'/' || (!result.empty() && result.back() != L'/'))
            result += ch;
    }
    if (!result.empty() && result.back() == L'/')
        result.pop_back();
    return result;
}

// A group's name with the slash behind it.
std::wstring group(const std::wstring& path)
{
    const std::wstring name = normal(path);
    return name.empty() ? name : name + L'/';
}

using Store = std::map<std::wstring, std::wstring>;

// One key, as the description has it: a path, and the groups that refused queries left open.
struct PlainKey
{
    std::wstring path;
    std::wstring open;

    std::wstring place(const std::wstring& name) const
    {
        return open + group(path) + normal(withoutMark(name));
    }
};

// ---- The store on the disk ---------------------------------------------------------------------

// The folder of a run's store, which no other run had, since Qt remembers what it read.
class Folder
{
public:
    Folder() : m_path(fs::current_path() / ("store" + std::to_string(++s_number)))
    {
        setPath(QSettings::UserScope, m_path);
        setPath(QSettings::SystemScope, m_path / "system");
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { fs::remove_all(m_path); }

    fs::path file() const { return m_path / "tarnex" / "Marrowfield.conf"; }

private:
    static void setPath(QSettings::Scope scope, const fs::path& path)
    {
        QSettings::setPath(QSettings::NativeFormat, scope, QString::fromStdString(path.string()));
    }

    inline static long s_number = 0;
    fs::path m_path;
};

// Qt writes each spelling of the group of this name as this one, and a name that is all slashes as
// none.
bool isKeptByQt(const std::wstring& place)
{
    std::wstring first = place.substr(0, place.find(L'/'));
    std::transform(first.begin(), first.end(), first.begin(),
                   [](wchar_t ch) { return ch < 0x80 ? static_cast<wchar_t>(ch | 0x20) : ch; });
    return first != L"general" && !place.empty() && place.back() != L'/';
}

QString toQt(const std::wstring& text)
{
    return QString::fromStdWString(L'.' + text).mid(1);
}

void expectOnDisk(const fs::path& file, const Store& store)
{
    const fs::path copy = file.string() + ".copy";
    fs::rename(file, copy);
    const QSettings settings(QString::fromStdString(copy.string()), QSettings::NativeFormat);
    for (const auto& [place, text] : store) {
        if (isKeptByQt(place))
            expectSame("stored text", settings.value(toQt(place)).toString().toStdWString(), text);
    }
}

// ---- Programs ----------------------------------------------------------------------------------

class Program
{
public:
    explicit Program(Input& input) : m_input(input) {}

    void run()
    {
        for (int step = 0; step < kLongestProgram && !m_input.atEnd(); ++step)
            runStep();
    }

    // The objects die, and the store is on the disk.
    void end()
    {
        const bool isLookedAt = m_input.oneIn(4) && !m_store.empty();
        for (auto& key : m_keys)
            key.reset();
        if (isLookedAt)
            expectOnDisk(m_folder.file(), m_store);
    }

private:
    void runStep()
    {
        const unsigned int drawn = m_input.byte();
        const std::size_t index = drawn / 16 % kKeys;
        if (!m_keys[index])
            create(index);
        switch (drawn % 8) {
        case 0:
            m_keys[index].reset();
            break;
        case 1:
            choosePath(index);
            break;
        case 2:
            expectSame("Close", m_keys[index]->Close(), 0u);
            break;
        case 3:
        case 4:
            query(index);
            break;
        default:
            set(index);
        }
    }

    void create(std::size_t index)
    {
        m_keys[index] = std::make_unique<CRegKey>();
        m_plain[index] = PlainKey();
        choosePath(index);
    }

    void choosePath(std::size_t index)
    {
        m_paths[index] = text();
        m_plain[index].path = withoutMark(m_paths[index]);
        expectSame("Create", m_keys[index]->Create(HKEY_CURRENT_USER, m_paths[index].c_str()), 0u);
    }

    void set(std::size_t index)
    {
        const std::wstring name = text();
        const std::wstring value = text();
        expectSame("SetValue", m_keys[index]->SetValue(value.c_str(), name.c_str()), 0u);
        if (!withoutMark(name).empty())
            m_store[m_plain[index].place(name)] = withoutMark(value);
    }

    std::wstring stored(std::size_t index, const std::wstring& name) const
    {
        const auto found = m_store.find(m_plain[index].place(name));
        return withoutMark(name).empty() || found == m_store.end() ? L"" : found->second;
    }

    void query(std::size_t index)
    {
        const std::wstring name = text();
        const std::wstring expected = stored(index, name);
        const auto room = static_cast<unsigned int>(roomFor(unitsOf(expected)));
        const bool fits = unitsOf(expected) <= room;
        unsigned int chars = room;
        std::vector<wchar_t> area(room + 2 * kMargin, kPoison);
        const unsigned int result =
            m_keys[index]->QueryValue(area.data() + kMargin, name.c_str(), &chars);
        expectSame("QueryValue", result, fits ? 0 : kTooLong);
        expectSame("*pnChars", chars, room);
        std::wstring filled(area.size(), kPoison);
        filled.replace(kMargin, fits ? expected.size() : 0, fits ? expected : L"");
        expectSame("area", std::wstring(area.begin(), area.end()), resized(filled, area.size()));
        if (!fits)
            m_plain[index].open += group(m_plain[index].path);
    }

    static std::wstring resized(std::wstring text, std::size_t size)
    {
        text.resize(size, kPoison);
        return text;
    }

    // About the length itself, or any.
    std::size_t roomFor(std::size_t units)
    {
        const unsigned int drawn = m_input.byte();
        return drawn < 0xF0 ? units + 2 - std::min<std::size_t>(drawn % 5, units + 2) : drawn % 16;
    }

    // One that occurred before, so that programs come back to what they stored, or a new one.
    std::wstring text()
    {
        const unsigned int drawn = m_input.byte();
        if (drawn < 0x80 && !m_texts.empty())
            return m_texts[drawn % m_texts.size()];
        m_texts.push_back(unicode(m_input.name()));
        return m_texts.back();
    }

    Input& m_input;
    Folder m_folder;
    Store m_store;
    std::vector<std::wstring> m_texts;
    std::wstring m_paths[kKeys];
    PlainKey m_plain[kKeys];
    std::unique_ptr<CRegKey> m_keys[kKeys];
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    Program program(input);
    program.run();
    program.end();
    return 0;
}
