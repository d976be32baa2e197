// SPDX-License-Identifier: MIT
#include "SafeFile.h"

#include "FileNames.h"
#include "Narrow.h"
#include "Reasons.h"
#include "Texts.h"

#include <KtQtBase/WindowsFunctions.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestFolder = 1000; // GetTempFileName does not know its buffer's size
constexpr int kMostLinks = 40;
constexpr int kTries = 10;
constexpr fs::perms kWritable =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

// A link may lead to a file that is not there yet, so each is followed by hand.
fs::path Target(fs::path path)
{
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i)
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

// A new file in the same folder, so that the rename stays on one file system. GetTempFileName looks
// for a free name in the working directory, so that another file may have it here.
// Result: its name, or nothing.
std::optional<std::string> MakeTemporary(const fs::path& path, mode_t mode)
{
    const auto folder = Widen(path.parent_path().string() + '/');
    if (!folder || folder->size() > kLongestFolder)
        return std::nullopt;
    for (int i = 0; i < kTries; ++i) {
        wchar_t name[1024] = {};
        GetTempFileName(folder->c_str(), L"sketch", 0, name);
        auto bytes = Narrow(name);
        const int file =
            bytes ? open(bytes->c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode) : -1;
        if (file >= 0) {
            // Nothing is in it yet that could be lost.
            close(file);
            return bytes;
        }
    }
    return std::nullopt;
}

// Nobody else may read a new state of a file that they may not read now.
mode_t FirstMode(const fs::path& target, CFileMode mode)
{
    std::error_code ignored;
    return mode == CFileMode::Private || fs::exists(target, ignored) ? 0600 : 0666;
}

// Only the stream, at its end, says whether it worked: no Windows call here reports a short write.
bool WriteBytes(const std::string& name, const std::string& bytes, std::wstring& reason)
{
    errno = 0;
    std::ofstream stream(name, std::ios::binary | std::ios::trunc);
    stream << bytes;
    stream.close();
    if (!stream)
        reason = LastErrorReason();
    return !stream.fail();
}

bool MayBeReplaced(const fs::path& path, std::wstring& reason)
{
    reason.clear();
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::exists(status) && !fs::is_regular_file(status))
        reason = Text(fs::is_directory(status) ? IDS_ISFOLDER : IDS_ISDEVICE);
    else if (fs::exists(status) && (status.permissions() & kWritable) == fs::perms::none)
        reason = Text(IDS_PROTECTED);
    else if (!fs::is_directory(path.parent_path(), error))
        reason = Text(IDS_NOFOLDER);
    return reason.empty();
}

// A new file gets what the system gives to new files.
bool TakePermissions(const fs::path& from, const fs::path& to, std::error_code& error)
{
    std::error_code missing;
    const fs::file_status status = fs::status(from, missing);
    if (fs::exists(status))
        fs::permissions(to, status.permissions(), error);
    return !error;
}

// After the rename a file that is only in memory would be lost with the power, and the former one
// with it.
bool IsOnDisk(const std::string& name)
{
    const int file = open(name.c_str(), O_RDONLY | O_CLOEXEC);
    const bool synced = file >= 0 && fsync(file) == 0;
    return file >= 0 && close(file) == 0 && synced;
}

bool PutInPlace(const std::string& from, const fs::path& to, std::wstring& reason)
{
    std::error_code error;
    if (!IsOnDisk(from)) {
        reason = LastErrorReason();
        return false;
    }
    if (TakePermissions(to, from, error))
        fs::rename(from, to, error);
    if (error)
        reason = ReasonOf(error);
    return !error;
}

} // namespace

bool WriteSafely(const std::wstring& path, const std::string& bytes, CFileMode mode,
                 std::wstring& reason)
{
    const auto name = Narrow(path);
    if (!name) {
        reason = Text(IDS_UNUSABLENAME);
        return false;
    }
    const fs::path target = Target(*name);
    if (!MayBeReplaced(target, reason))
        return false;
    errno = 0;
    const auto temporary = MakeTemporary(target, FirstMode(target, mode));
    if (!temporary) {
        reason = errno ? LastErrorReason() : Text(IDS_UNUSABLENAME);
        return false;
    }
    if (WriteBytes(*temporary, bytes, reason) && PutInPlace(*temporary, target, reason))
        return true;
    std::error_code ignored;
    fs::remove(*temporary, ignored);
    return false;
}
