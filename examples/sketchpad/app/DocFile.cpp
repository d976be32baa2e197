// SPDX-License-Identifier: MIT
#include "DocFile.h"

#include "FileNames.h"
#include "Narrow.h"
#include "Reasons.h"
#include "ShapeText.h"

#include <KtQtBase/WindowsFunctions.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

namespace {

constexpr char kSignature[] = "SKETCHPAD 1";
constexpr std::size_t kLongestFolder = 1000; // GetTempFileName does not know its buffer's size

std::wstring NumberedReason(int line, const std::wstring& what)
{
    return L"line " + std::to_wstring(line) + L": " + what;
}

bool ReadLines(std::istream& stream, std::vector<CShape>& shapes, std::wstring& reason)
{
    std::string line;
    if (!std::getline(stream, line) || line != kSignature) {
        reason = L"it is not a drawing of this program";
        return false;
    }
    for (int number = 2; std::getline(stream, line); ++number) {
        CShape shape;
        std::wstring problem;
        if (!ShapeFromText(line, shape, problem)) {
            reason = NumberedReason(number, problem);
            return false;
        }
        shapes.push_back(shape);
    }
    return true;
}

// A name in the same folder, so that the rename stays on one file system.
std::wstring TemporaryNameFor(const std::wstring& path)
{
    const std::wstring folder = FolderOf(path);
    if (folder.size() > kLongestFolder)
        return std::wstring();
    wchar_t name[1024] = {};
    GetTempFileName(folder.c_str(), L"sketch", 0, name);
    return name;
}

// Only the stream, at its end, says whether it worked: no Windows call here reports a short write.
bool WriteLines(const std::string& path, const std::vector<CShape>& shapes, std::wstring& reason)
{
    errno = 0;
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream << kSignature << '\n';
    for (const CShape& shape : shapes)
        stream << TextFromShape(shape) << '\n';
    stream.close();
    if (!stream)
        reason = LastErrorReason();
    return !stream.fail();
}

bool MoveIntoPlace(const std::string& from, const std::string& to, std::wstring& reason)
{
    std::error_code error;
    std::filesystem::rename(from, to, error);
    if (error)
        reason = ReasonOf(error);
    return !error;
}

} // namespace

bool ReadSketch(const std::wstring& path, std::vector<CShape>& shapes, std::wstring& reason)
{
    const auto name = Narrow(path);
    if (!name || IsFolder(path)) {
        reason = name ? L"it is a folder" : kUnusableName;
        return false;
    }
    errno = 0;
    std::ifstream stream(*name, std::ios::binary);
    if (!stream) {
        reason = LastErrorReason();
        return false;
    }
    return ReadLines(stream, shapes, reason);
}

bool WriteSketch(const std::wstring& path, const std::vector<CShape>& shapes, std::wstring& reason)
{
    const auto name = Narrow(path);
    const auto temporary = Narrow(TemporaryNameFor(path));
    if (!name || !temporary || temporary->empty()) {
        reason = kUnusableName;
        return false;
    }
    if (WriteLines(*temporary, shapes, reason) && MoveIntoPlace(*temporary, *name, reason))
        return true;
    std::error_code ignored;
    std::filesystem::remove(*temporary, ignored);
    return false;
}
