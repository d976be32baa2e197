// SPDX-License-Identifier: MIT
//
// Opens the input as a document of the sketchpad and asks a plain second reading what it holds. A
// document that was read is saved and read again; one that is refused leaves the drawing alone.
#include "support/Expect.h"
#include "support/MemoryFile.h"
#include "support/PlainSketch.h"

#include "examples/sketchpad/app/DocFile.h"
#include "examples/sketchpad/app/SketchDoc.h"

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <filesystem>
#include <sstream>

using namespace ktqtbase::fuzz;

namespace {

using Shapes = std::vector<CShape>;

constexpr wchar_t kFormerPath[] = L"former.sketch";
constexpr std::size_t kSavedToDisk = 16; // one size of so many, since it takes long

bool areSame(const Shapes& a, const Shapes& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSame);
}

Shapes formerShapes()
{
    CShape shape;
    shape.points = {{1, 2}, {3, 4}};
    return {shape};
}

CSketchDoc formerDocument()
{
    CSketchDoc document;
    document.SetPathName(kFormerPath);
    document.AddShapes(IDS_UNDO_MOVE, formerShapes());
    return document;
}

void checkRefused(const CSketchDoc& document, const CSketchDoc& former)
{
    expect("a refused document leaves the shapes",
           areSame(document.GetShapes(), former.GetShapes()));
    expect("a refused document leaves the path", document.GetPathName() == kFormerPath);
    expect("a refused document changes nothing", document.GetRevision() == former.GetRevision());
    expect("a refused document leaves the edits", document.IsModified() && document.GetUndoName());
}

void checkTaken(const CSketchDoc& document, const std::wstring& path, const Shapes& expected)
{
    expect("both readings find the same shapes", areSame(document.GetShapes(), expected));
    expect("a document knows its path", document.GetPathName() == path);
    expect("a document that was just read has no edits",
           !document.IsModified() && !document.GetUndoName() && !document.GetRedoName());
}

void checkStreams(const Shapes& shapes)
{
    std::stringstream stream;
    WriteSketch(stream, shapes);
    Shapes again;
    std::wstring reason;
    expect("a document that was written is read", ReadSketch(stream, again, reason));
    expect("a document reads equal again", areSame(again, shapes));
}

void checkDisk(const CSketchDoc& document)
{
    static const auto file = std::filesystem::current_path() / "saved.sketch";
    static const std::wstring path = file.wstring();
    std::wstring reason;
    expect("a document that was read is saved", document.OnSaveDocument(path, reason));
    CSketchDoc again;
    expect("a document that was saved is read", again.OnOpenDocument(path, reason));
    checkTaken(again, path, document.GetShapes());
    expect("the saved file is there", std::filesystem::remove(file));
}

std::wstring pathOf(const MemoryFile& file)
{
    const std::string name = file.name();
    return std::wstring(name.begin(), name.end());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    expect("there is UTF-8", std::setlocale(LC_CTYPE, "C.UTF-8"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const MemoryFile file;
    static const std::wstring path = pathOf(file);
    static const CSketchDoc former = formerDocument();
    const std::string content(reinterpret_cast<const char*>(data), size);
    file.setContent(content);
    CSketchDoc document = former;
    std::wstring reason;
    const bool isTaken = document.OnOpenDocument(path, reason);
    const auto expected = plain::readSketch(content);
    expect("both readings take the same documents", isTaken == expected.has_value());
    expect("a refused document has a reason", isTaken == reason.empty());
    if (!isTaken) {
        checkRefused(document, former);
        return 0;
    }
    checkTaken(document, path, *expected);
    checkStreams(*expected);
    if (size % kSavedToDisk == 0)
        checkDisk(document);
    return 0;
}
