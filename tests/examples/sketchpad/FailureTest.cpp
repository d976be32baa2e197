// SPDX-License-Identifier: MIT
//
// What is missing, broken or forbidden is reported, and nothing that was drawn is lost.
#include "Host.h"

#include <gmock/gmock.h>

using ktqtbase::test::readFile;
using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

const std::string kDraw = "tool rectangle\ndrag 60,60 160,160\n";

struct CorruptRow
{
    const char* name;
    const char* content;
    const char* reason;
};

const CorruptRow kCorrupt[] = {
    {"Empty", "", "it is not a drawing"},
    {"Foreign", "%PDF-1.4\n", "it is not a drawing"},
    {"Binary", "SKETCHPAD 1\n\x01\xFF\n", "line 2: no shape begins like this"},
    {"UnknownKind", "SKETCHPAD 1\ncircle 0 1 000000 none 1 1,1\n", "line 2: no shape"},
    {"BadPen", "SKETCHPAD 1\nline 9 1 000000 none 1 1,1\n", "line 2: the pen"},
    {"BadColor", "SKETCHPAD 1\nline 0 1 red none 1 1,1\n", "line 2: the pen"},
    {"PointMissing", "SKETCHPAD 1\nline 0 1 000000 none 2 1,1\n", "line 2: a point"},
    {"PointTooFar", "SKETCHPAD 1\nline 0 1 000000 none 1 99999999999,1\n", "line 2: a point"},
    {"TooManyPoints", "SKETCHPAD 1\nline 0 1 000000 none 2000000000 1,1\n", "line 2: a point"},
    {"NoPoint", "SKETCHPAD 1\nline 0 1 000000 none 0\n", "line 2: a point"},
    {"ShortColor", "SKETCHPAD 1\nline 0 1 0 none 1 1,1\n", "line 2: the pen"},
    {"TextMissing", "SKETCHPAD 1\ntext 0 1 000000 none 1 1,1\n", "line 2: the text"},
    {"CutLastLine", "SKETCHPAD 1\nline 0 1 000000 none 1 1,1\nline 0 1", "line 3: the pen"},
};

class CorruptDocument : public testing::TestWithParam<CorruptRow>
{};

TEST_P(CorruptDocument, IsRefusedWithAReasonAndTheDrawingStays)
{
    Host host;
    host.writeFile("bad.sketch", GetParam().content);
    const SessionResult result =
        host.play(kDraw + "answer yes\nanswer yes\nopen bad.sketch\nexpect shapes 1\nsave a\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be opened: "));
    EXPECT_THAT(result.out, HasSubstr(GetParam().reason));
    EXPECT_THAT(host.file("a.sketch"), HasSubstr("polygon"));
}

INSTANTIATE_TEST_SUITE_P(Sketchpad, CorruptDocument, testing::ValuesIn(kCorrupt),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SketchpadOpen, TellsAMissingFileFromAFolder)
{
    Host host;
    const SessionResult result = host.play("answer yes\nopen none.sketch\nanswer no\nopen .\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("No such file or directory"));
    EXPECT_THAT(result.out, HasSubstr("it is a folder"));
}

TEST(SketchpadSave, BelowAFileSaysWhyAndKeepsTheDrawing)
{
    Host host;
    host.writeFile("file", "in the way");
    const SessionResult result =
        host.play(kDraw + "answer yes\nsave file/a.sketch\nexpect shapes 1\nsave b\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be saved: Not a directory"));
    EXPECT_EQ(host.file("file"), "in the way");
    EXPECT_THAT(host.file("b.sketch"), HasSubstr("polygon"));
}

TEST(SketchpadSave, OverAFolderLeavesNoTemporaryFile)
{
    Host host;
    fs::create_directory(host.work() / "a.sketch");
    const SessionResult result = host.play(kDraw + "answer yes\nanswer yes\nsave a\nsave b\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("Is a directory"));
    int files = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator(host.work()))
        ++files;
    EXPECT_EQ(files, 3) << "the script, the folder and b.sketch";
}

TEST(SketchpadSave, RefusesNamesThatWindowsWouldNotTake)
{
    Host host;
    const SessionResult result = host.play(
        kDraw + "answer no\nsave a:b\nanswer no\nsave what?\nanswer no\nsave c\\d\nsave good\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("a:b\u201d is no name for a file"));
    EXPECT_THAT(result.out, HasSubstr("what?\u201d is no name for a file"));
    EXPECT_THAT(result.out, HasSubstr("c\\d\u201d is no name for a file"));
    EXPECT_TRUE(fs::exists(host.work() / "good.sketch"));
}

TEST(SketchpadSave, LeavesTheFormerFileWhereTheNewOneCannotBeWritten)
{
    Host host;
    ASSERT_EQ(host.play(kDraw + "save a\n").status, 0);
    const std::string former = host.file("a.sketch");
    fs::create_directory(host.work() / "sub");
    const std::string longName = "sub/" + std::string(300, 'n');
    EXPECT_EQ(host.play("open a.sketch\n" + kDraw + "answer no\nsave " + longName +
                        "\nexpect shapes 2\nanswer yes\nmenu new\n")
                  .status,
              0);
    EXPECT_EQ(host.file("a.sketch"), former);
}

TEST(SketchpadPrint, BelowAFileIsToldThoughTheSessionBegins)
{
    Host host;
    host.writeFile("file", "in the way");
    const SessionResult result = host.play(kDraw + "answer no\nprint file/a.pdf\nsave b\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be written, so nothing was printed"));
    EXPECT_EQ(host.file("file"), "in the way");
}

TEST(SketchpadTexts, AreBuiltInWhereTheModuleIsMissing)
{
    Host host;
    fs::remove(host.textsModule());
    const SessionResult result = host.play(kDraw + "answer yes\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("The built-in texts are used: no "));
    EXPECT_THAT(result.out, HasSubstr("Discard the changes to Untitled? [yes]"));
}

TEST(SketchpadTexts, AreFoundInAFolderOfAnyNameInAnyLocale)
{
    Host host("\u4e2d\u6587");
    host.environment.insert("LC_ALL", "C");
    const SessionResult result = host.play(kDraw + "answer yes\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("has unsaved changes.  Discard the changes? [yes]"));
}

TEST(SketchpadPlugIn, MayBeMissing)
{
    Host host;
    fs::remove(host.plugIn());
    const SessionResult result = host.play("tool star\ndrag 60,60 160,160\nexpect shapes 0\n");
    EXPECT_EQ(result.status, 0) << result.err;
}

TEST(SketchpadDefaults, AreBuiltInWhereTheIniFileIsAFolder)
{
    Host host;
    fs::remove(host.program() / "sketchpad.ini");
    fs::create_directory(host.program() / "sketchpad.ini");
    const SessionResult result = host.play(kDraw + "save a\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("sketchpad.ini is a folder"));
    EXPECT_THAT(host.file("a.sketch"), HasSubstr("polygon 0 2 000000 none"));
}

TEST(SketchpadDefaults, AreBuiltInWhereTheIniFileIsMissing)
{
    Host host;
    fs::remove(host.program() / "sketchpad.ini");
    const SessionResult result = host.play(kDraw + "save a\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("sketchpad.ini is missing or may not be written"));
}

} // namespace
