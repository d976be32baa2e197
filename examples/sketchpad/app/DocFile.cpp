// SPDX-License-Identifier: MIT
#include "DocFile.h"

#include "Narrow.h"
#include "Reasons.h"
#include "SafeFile.h"
#include "ShapeText.h"
#include "Texts.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr char kSignature[] = "SKETCHPAD 1";
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr std::uintmax_t kLargestFile = 8'000'000;
constexpr std::size_t kMostShapes = 100'000;
constexpr std::size_t kLongestLine = 2'000'000;

// Reads no further than the longest line, whatever the file is.
// Result: false at the end.
bool ReadLine(std::istream& stream, std::string& line)
{
    line.clear();
    char byte = 0;
    if (!stream.get(byte))
        return false;
    for (; stream && byte != '\n' && line.size() <= kLongestLine; stream.get(byte))
        line += byte;
    // All of them: a text that kept one at its end would lose it when it is saved and read again.
    while (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

bool IsSignature(std::string line)
{
    if (line.rfind(kByteOrderMark, 0) == 0)
        line.erase(0, sizeof kByteOrderMark - 1);
    return line == kSignature;
}

bool AddShape(const std::string& line, std::vector<CShape>& shapes, std::wstring& problem)
{
    CShape shape;
    if (line.size() > kLongestLine)
        problem = Text(IDS_LINETOOLONG);
    else if (line.find('\0') != line.npos)
        problem = Text(IDS_HOLDSNUL);
    else if (shapes.size() == kMostShapes)
        problem = Text(IDS_TOOMANY);
    else if (ShapeFromText(line, shape, problem))
        shapes.push_back(shape);
    return problem.empty();
}

// A pipe would be waited for, and a device may have no end.
bool IsReadable(const std::string& name, std::wstring& reason)
{
    reason.clear();
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    if (error)
        reason = ReasonOf(error);
    else if (fs::is_directory(status))
        reason = Text(IDS_ISFOLDER);
    else if (!fs::is_regular_file(status))
        reason = Text(IDS_ISDEVICE);
    else if (fs::file_size(name, error) > kLargestFile)
        reason = Text(IDS_TOOLARGE);
    return reason.empty();
}

} // namespace

bool ReadSketch(std::istream& stream, std::vector<CShape>& shapes, std::wstring& reason)
{
    std::string line;
    if (!ReadLine(stream, line) || !IsSignature(line)) {
        reason = Text(IDS_NODRAWING);
        return false;
    }
    std::wstring problem;
    for (std::size_t number = 2; ReadLine(stream, line); ++number) {
        if (!AddShape(line, shapes, problem)) {
            reason = Text(IDS_INLINE, std::to_wstring(number), problem);
            return false;
        }
    }
    if (stream.bad())
        reason = LastErrorReason();
    return !stream.bad();
}

bool ReadSketch(const std::wstring& path, std::vector<CShape>& shapes, std::wstring& reason)
{
    const auto name = Narrow(path);
    if (!name) {
        reason = Text(IDS_UNUSABLENAME);
        return false;
    }
    if (!IsReadable(*name, reason))
        return false;
    errno = 0;
    std::ifstream stream(*name, std::ios::binary);
    if (!stream) {
        reason = LastErrorReason();
        return false;
    }
    return ReadSketch(stream, shapes, reason);
}

void WriteSketch(std::ostream& stream, const std::vector<CShape>& shapes)
{
    stream << kSignature << '\n';
    for (const CShape& shape : shapes)
        stream << TextFromShape(shape) << '\n';
}

// A drawing that could not be read again is not written.
bool WriteSketch(const std::wstring& path, const std::vector<CShape>& shapes, CFileMode mode,
                 std::wstring& reason)
{
    std::ostringstream text;
    WriteSketch(text, shapes);
    std::istringstream written(text.str());
    std::vector<CShape> read;
    if (text.str().size() > kLargestFile || shapes.size() > kMostShapes) {
        reason = Text(IDS_TOOMUCH);
        return false;
    }
    return ReadSketch(written, read, reason) && WriteSafely(path, text.str(), mode, reason);
}
