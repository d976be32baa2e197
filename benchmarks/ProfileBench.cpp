// SPDX-License-Identifier: MIT
//
// One value of an INI file. Every reader starts from the file's name at each call, as the library's
// contract has it. The least that such a call can do is to open the file for update, ask for its
// size, read it into memory of its own, close it and look at every byte once.
#include "support/Fixture.h"
#include "support/Rows.h"

#include <KtQtBase/windows/Profiles.h>

#include <QtCore/QSettings>

#include <SimpleIni.h>
#include <glib.h>
#include <ini.h>

#include <cstddef>
#include <cstring>
#include <fstream>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using bench::Row;

const std::size_t kGrowingKilobytes[] = {1, 4, 16, 64, 256};

constexpr std::size_t kKilobyte = 1024;
constexpr int kKeysInSection = 16;

// What is asked for, and where.
struct Question
{
    std::string file;
    std::string section;
    std::string key;
};

// A file of sections with numbered keys, grown until it has a size; its last key is the answer's.
struct Profile
{
    explicit Profile(std::size_t bytes) : name(bench::folder() + "/ini" + std::to_string(bytes))
    {
        std::string text;
        for (int number = 0; text.size() + 60 < bytes; ++number) {
            if (number % kKeysInSection == 0)
                text += '[' + (section = "Section" + std::to_string(number)) + "]\n";
            key = "Key" + std::to_string(number);
            text += key + "=value number " + std::to_string(number) + '\n';
        }
        std::ofstream(name) << text;
    }

    Question first() const { return {name, "Section0", "Key0"}; }
    Question last() const { return {name, section, key}; }
    Question missing() const { return {name, section, "NoSuchKey"}; }
    Question missingFromFirst() const { return {name, "Section0", "NoSuchKey"}; }
    // Every key of the file begins with this one, so that each of them has to be looked at further.
    Question commonBeginning() const { return {name, "Section0", "Key"}; }

    std::string name;
    std::string section;
    std::string key;
};

auto askLibrary(const Question& question)
{
    return [file = bench::wide(question.file), section = bench::wide(question.section),
            key = bench::wide(question.key)] {
        wchar_t value[64];
        benchmark::DoNotOptimize(
            GetPrivateProfileString(section.c_str(), key.c_str(), L"", value, 64, file.c_str()));
    };
}

auto readAndScan(const Question& question)
{
    return [name = question.file] {
        const int file = open(name.c_str(), O_RDWR | O_CLOEXEC);
        struct stat status;
        fstat(file, &status);
        const auto size = static_cast<std::size_t>(status.st_size);
        const std::unique_ptr<char[]> text(new char[size]);
        benchmark::DoNotOptimize(read(file, text.get(), size));
        close(file);
        benchmark::DoNotOptimize(std::memchr(text.get(), '\x01', size));
    };
}

// Qt answers from memory while a file's time stays the same, and so not what the file holds now;
// each call finds another time, so that it reads as the others do.
auto askQt(const Question& question)
{
    return [name = question.file, file = QString::fromStdString(question.file),
            key = QString::fromStdString(question.section + '/' + question.key),
            time = timespec{1000000000, 0}]() mutable {
        time.tv_sec ^= 1;
        const timespec times[] = {time, time};
        utimensat(AT_FDCWD, name.c_str(), times, 0);
        const QSettings settings(file, QSettings::IniFormat);
        benchmark::DoNotOptimize(settings.value(key).toString());
    };
}

auto askGlib(const Question& question)
{
    return [question] {
        GKeyFile* const file = g_key_file_new();
        g_key_file_load_from_file(file, question.file.c_str(), G_KEY_FILE_NONE, nullptr);
        g_free(
            g_key_file_get_string(file, question.section.c_str(), question.key.c_str(), nullptr));
        g_key_file_free(file);
    };
}

// The reader stops at the value.
auto askInih(const Question& question)
{
    const auto keep = [](void* user, const char* section, const char* name, const char* value) {
        auto* const wanted = static_cast<std::pair<const Question*, std::string>*>(user);
        if (section != wanted->first->section || name != wanted->first->key)
            return 1;
        wanted->second = value;
        return 0;
    };
    return [question, keep] {
        std::pair<const Question*, std::string> wanted(&question, {});
        benchmark::DoNotOptimize(ini_parse(question.file.c_str(), keep, &wanted));
    };
}

auto askSimpleIni(const Question& question)
{
    return [question] {
        CSimpleIniA file;
        file.LoadFile(question.file.c_str());
        benchmark::DoNotOptimize(file.GetValue(question.section.c_str(), question.key.c_str()));
    };
}

// The file is made when the row is measured.
template<class MakeQuestion>
Row addQuestion(const char* work, const char* size, MakeQuestion make)
{
    return Row(work, size)
        .library([=] { return askLibrary(make()); })
        .reference("open, read, memchr", [=] { return readAndScan(make()); });
}

template<class MakeQuestion>
void addOthers(const Row& row, MakeQuestion make)
{
    row.reference("QSettings", [=] { return askQt(make()); })
        .reference("GLib", [=] { return askGlib(make()); })
        .reference("inih", [=] { return askInih(make()); })
        .reference("SimpleIni", [=] { return askSimpleIni(make()); });
}

void addProfile(const char* size, std::size_t bytes)
{
    const auto last = [=] { return Profile(bytes).last(); };
    const auto missing = [=] { return Profile(bytes).missing(); };
    addQuestion("Profile, first key", size, [=] { return Profile(bytes).first(); });
    addOthers(addQuestion("Profile, last key", size, last), last);
    addOthers(addQuestion("Profile, missing key", size, missing), missing);
    addQuestion("Profile, missing key, first section", size,
                [=] { return Profile(bytes).missingFromFirst(); });
    addQuestion("Profile, common beginning", size,
                [=] { return Profile(bytes).commonBeginning(); });
}

} // namespace

void bench::addProfileRows()
{
    addProfile("1 KB", kKilobyte);
    addProfile("64 KB", 64 * kKilobyte);
    addProfile("1 MB", 1024 * kKilobyte);
    for (const std::size_t kilobytes : kGrowingKilobytes) {
        const std::string size = std::to_string(kilobytes) + " KB";
        addQuestion("Profile by size", size.c_str(),
                    [=] { return Profile(kilobytes * kKilobyte).last(); });
    }
}
