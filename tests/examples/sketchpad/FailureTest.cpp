// SPDX-License-Identifier: MIT
//
// What is missing, broken or forbidden is reported, and nothing that was drawn is lost.
#include "Host.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

TEST(SketchpadOpen, TellsAMissingFileFromAFolder)
{
    Host host;
    const SessionResult result = host.play("answer ok\nopen none.sketch\nanswer ok\nopen .\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("there is no such file or folder"));
    EXPECT_THAT(result.out, HasSubstr("it is a folder"));
}

TEST(SketchpadSave, BelowAFileSaysWhyAndKeepsTheDrawing)
{
    Host host;
    host.writeFile("file", "in the way");
    const SessionResult result =
        host.play(kDrawSquare + "answer ok\nsave file/a.sketch\nexpect shapes 1\nsave b\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be saved: there is no such folder"));
    EXPECT_EQ(host.file("file"), "in the way");
    EXPECT_THAT(host.file("b.sketch"), HasSubstr("polygon"));
}

TEST(SketchpadSave, OverAFolderLeavesNoTemporaryFile)
{
    Host host;
    fs::create_directory(host.work() / "a.sketch");
    const SessionResult result =
        host.play(kDrawSquare + "answer replace\nanswer ok\nsave a\nsave b\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be saved: it is a folder"));
    int files = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator(host.work()))
        ++files;
    EXPECT_EQ(files, 3) << "the script, the folder and b.sketch";
}

TEST(SketchpadSave, RefusesNamesThatWindowsWouldNotTake)
{
    Host host;
    const SessionResult result =
        host.play(kDrawSquare +
                  "answer ok\nsave a:b\nanswer ok\nsave what?\nanswer ok\nsave c\\d\nsave good\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("a:b\u201d is no name for a file"));
    EXPECT_THAT(result.out, HasSubstr("what?\u201d is no name for a file"));
    EXPECT_THAT(result.out, HasSubstr("c\\d\u201d is no name for a file"));
    EXPECT_TRUE(fs::exists(host.work() / "good.sketch"));
}

TEST(SketchpadSave, LeavesTheFormerFileWhereTheNewOneCannotBeWritten)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    const std::string former = host.file("a.sketch");
    fs::create_directory(host.work() / "sub");
    const std::string longName = "sub/" + std::string(300, 'n');
    EXPECT_EQ(host.play("open a.sketch\n" + kDrawSquare + "answer ok\nsave " + longName +
                        "\nexpect shapes 2\nanswer discard\nmenu new\n")
                  .status,
              0);
    EXPECT_EQ(host.file("a.sketch"), former);
}

TEST(SketchpadPrint, BelowAFileSaysWhyNothingWasPrinted)
{
    Host host;
    host.writeFile("file", "in the way");
    const SessionResult result = host.play(kDrawSquare + "answer ok\nprint file/a.pdf\nsave b\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be printed to: there is no such folder"));
    EXPECT_EQ(host.file("file"), "in the way");
}

TEST(SketchpadTexts, AreBuiltInWhereTheModuleIsMissing)
{
    Host host;
    fs::remove(host.textsModule());
    const SessionResult result = host.play(kDrawSquare + "answer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("The built-in texts are used: "));
    EXPECT_THAT(result.err, HasSubstr(host.textsModule().string() + ": "));
    EXPECT_THAT(result.out, HasSubstr("has unsaved changes.  Save them? [discard]"));
}

// The loader's own words come behind the file's name.
TEST(SketchpadTexts, AreBuiltInWhereTheModuleIsNoneAndSaysWhy)
{
    for (const std::string& content : {std::string("garbage"), std::string("\x7f"
                                                                           "ELF")}) {
        Host host;
        host.replaceFile(host.textsModule(), content);
        const SessionResult result = host.play(kDrawSquare + "answer discard\nmenu new\n");
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_THAT(result.err, HasSubstr("The built-in texts are used: "));
        EXPECT_THAT(result.err, HasSubstr(host.textsModule().string() + ": "));
    }
}

TEST(SketchpadTexts, AreFoundInAFolderOfAnyNameInAnyLocale)
{
    Host host("\u4e2d\u6587");
    host.environment.insert("LC_ALL", "C");
    const SessionResult result = host.play(kDrawSquare + "answer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, HasSubstr("has unsaved changes.  Save them? [discard]"));
}

TEST(SketchpadSave, SaysThatANameIsTooLong)
{
    Host host;
    const SessionResult result = host.play(kDrawSquare + "answer ok\nsave " +
                                           std::string(256, 'n') + "\nanswer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("the name is too long"));
}

TEST(SketchpadPlugIn, MayBeMissing)
{
    Host host;
    fs::remove(host.plugIn());
    const SessionResult result = host.play("tool star\ndrag 60,60 160,160\nexpect shapes 0\n");
    EXPECT_EQ(result.status, 0) << result.err;
}

TEST(SketchpadPlugIn, IsNamedWithTheReasonWhereItIsNone)
{
    Host host;
    host.replaceFile(host.plugIn(), "garbage");
    const SessionResult result = host.play("tool star\ndrag 60,60 160,160\nexpect shapes 0\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("There are no stars: " + host.plugIn().string() + ": "));
}

TEST(SketchpadDefaults, AreBuiltInWhereTheIniFileIsAFolder)
{
    Host host;
    fs::remove(host.program() / "sketchpad.ini");
    fs::create_directory(host.program() / "sketchpad.ini");
    const SessionResult result = host.play(kDrawSquare + "save a\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("sketchpad.ini is a folder"));
    EXPECT_THAT(host.file("a.sketch"), HasSubstr("polygon 0 2 000000 none"));
}

TEST(SketchpadDefaults, AreBuiltInWhereTheIniFileIsMissing)
{
    Host host;
    fs::remove(host.program() / "sketchpad.ini");
    const SessionResult result = host.play(kDrawSquare + "save a\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("sketchpad.ini is missing or may not be written"));
}

} // namespace
