// SPDX-License-Identifier: MIT
//
// What was drawn is never lost: full disks, killed programs, files of other people.
#include "Host.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

using ktqtbase::test::readFile;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

// More than a kibibyte of drawing.
std::string drawMuch()
{
    std::string script = "tool freehand\ndrag";
    for (int i = 0; i < 300; ++i)
        script += " 1" + std::to_string(i % 90 + 10) + ",200";
    return script + "\n";
}

int filesIn(const fs::path& folder)
{
    return static_cast<int>(std::distance(fs::directory_iterator(folder), {}));
}

} // namespace

TEST(SketchpadSave, KeepsTheFilesPermissions)
{
    Host host;
    host.writeFile("a.sketch", "SKETCHPAD 1\n");
    const fs::path file = host.work() / "a.sketch";
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_EQ(host.play("open a.sketch\n" + kDrawSquare + "save\n").status, 0);
    EXPECT_EQ(readFile(file), kSquareFile);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(SketchpadSave, FollowsASymbolicLink)
{
    Host host;
    fs::create_directory(host.work() / "far");
    host.writeFile("far/real.sketch", "SKETCHPAD 1\n");
    fs::create_symlink("far/real.sketch", host.work() / "a.sketch");
    ASSERT_EQ(host.play("open a.sketch\n" + kDrawSquare + "save\n").status, 0);
    EXPECT_TRUE(fs::is_symlink(host.work() / "a.sketch"));
    EXPECT_EQ(host.file("far/real.sketch"), kSquareFile);
}

TEST(SketchpadSave, OnAFullDiskSaysSoAndLeavesTheFormerFile)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    const SessionResult result = host.playWithLimit(
        1, "open a.sketch\n" + drawMuch() + "answer ok\nsave\nanswer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be saved: the file would be too large. [ok]"));
    EXPECT_EQ(host.file("a.sketch"), kSquareFile);
    EXPECT_EQ(filesIn(host.work()), 2) << "the script and the drawing";
}

TEST(SketchpadPrint, OnAFullDiskSaysSoAndLeavesTheFormerFile)
{
    Host host;
    host.writeFile("a.pdf", "the former one");
    const SessionResult result = host.playWithLimit(
        1, kDrawSquare + "answer replace\nanswer ok\nprint a.pdf\nanswer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be printed to: the file would be too large. [ok]"));
    EXPECT_THAT(result.out, Not(HasSubstr("Printed to")));
    EXPECT_EQ(host.file("a.pdf"), "the former one");
    EXPECT_EQ(filesIn(host.work()), 2) << "the script and the former file";
}

TEST(SketchpadSave, KeepsTheOtherFileWithoutAnAnswer)
{
    Host host;
    host.writeFile("a.sketch", "former");
    EXPECT_EQ(host.play(kDrawSquare + "save a\nanswer discard\nmenu new\n").status, 1);
    EXPECT_EQ(host.file("a.sketch"), "former");
}

TEST(SketchpadSave, LeavesAPipe)
{
    Host host;
    const fs::path pipe = host.work() / "a.sketch";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const SessionResult result =
        host.play(kDrawSquare + "answer replace\nanswer ok\nsave a\nanswer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be saved: it is a device or a pipe"));
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(SketchpadSave, LeavesAWriteProtectedFile)
{
    Host host;
    host.writeFile("a.sketch", "SKETCHPAD 1\n");
    fs::permissions(host.work() / "a.sketch", fs::perms::owner_read);
    const SessionResult result =
        host.play("open a.sketch\n" + kDrawSquare + "answer ok\nsave\nanswer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be saved: it is write-protected"));
    EXPECT_EQ(host.file("a.sketch"), "SKETCHPAD 1\n");
}

// At a quarter of the size the window reaches farther than a drawing may.
TEST(SketchpadSave, WritesWhatCanBeOpenedAgain)
{
    Host host;
    std::string script = "tool line\n";
    for (int i = 0; i < 9; ++i)
        script += "menu zoom-out\n";
    const SessionResult result = host.play(
        script + "drag 60,60 7900,100 7900,100\nsave a\nopen a.sketch\nexpect shapes 1\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(host.file("a.sketch"), HasSubstr(" 30000,400\n"));
}

TEST(SketchpadSave, AsksBeforeItReplacesWhatAnotherProgramSaved)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\nsave b\n").status, 0);
    // A file whose time is not the one that it had when it was opened.
    fs::last_write_time(host.work() / "a.sketch", fs::file_time_type::clock::now());
    const std::string open = "open a.sketch\n" + kDrawSquare;
    EXPECT_EQ(host.play(open + "save\n").status, 0);
    EXPECT_EQ(host.play(open + "copy-over b.sketch a.sketch\nanswer cancel\nsave\n"
                               "answer discard\nmenu new\n")
                  .status,
              0);
    EXPECT_EQ(host.file("a.sketch"), kSquareFile);
    EXPECT_EQ(host.play(open + "copy-over b.sketch a.sketch\nanswer replace\nsave\n").status, 0);
    EXPECT_NE(host.file("a.sketch"), kSquareFile);
}

TEST(SketchpadPrint, WritesAWholeFile)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "print a\nanswer discard\nmenu new\n").status, 0);
    EXPECT_THAT(host.file("a.pdf"), StartsWith("%PDF-"));
    EXPECT_THAT(host.file("a.pdf"), EndsWith("%%EOF\n"));
}

// Asked when the program ends, too.
TEST(SketchpadClose, SavesDiscardsOrStays)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    ASSERT_EQ(host.play("open a.sketch\nkey delete\n" + kDrawSquare + "answer save\n").status, 0);
    EXPECT_THAT(host.file("a.sketch"), StartsWith(kSquareFile));
    const std::string saved = host.file("a.sketch");
    EXPECT_NE(saved, kSquareFile);
    ASSERT_EQ(host.play("open a.sketch\n" + kDrawSquare + "answer discard\n").status, 0);
    EXPECT_EQ(host.file("a.sketch"), saved);
    const SessionResult stays = host.play("open a.sketch\n" + kDrawSquare + "answer cancel\n");
    EXPECT_EQ(stays.status, 1);
    EXPECT_THAT(stays.err, HasSubstr("the window did not close"));
}

TEST(SketchpadClose, StaysWhereSavingFails)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    const SessionResult result =
        host.playWithLimit(1, "open a.sketch\n" + drawMuch() +
                                  "answer save\nanswer ok\nmenu new\nexpect shapes 2\n"
                                  "answer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
}

TEST(SketchpadAutosave, OutlivesAKilledProgramAndIsOfferedAtTheNextStart)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    ASSERT_EQ(host.play("open a.sketch\n" + drawMuch() + "autosave\ndie\n").status, 3);
    EXPECT_EQ(host.file("a.sketch"), kSquareFile);
    const SessionResult result =
        host.play("answer yes\nrecover\nexpect shapes 2\nsave\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("Go on with the drawing as it was? [yes]"));
    EXPECT_NE(host.file("a.sketch"), kSquareFile);
    EXPECT_EQ(filesIn(host.work()), 2) << "the script and the drawing";
    EXPECT_EQ(host.play("recover\nexpect shapes 0\n").status, 0);
}

TEST(SketchpadAutosave, StaysForAnotherTimeUntilItIsDeletedOrTaken)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "autosave\ndie\n").status, 3);
    EXPECT_EQ(host.play("answer later\nrecover\nexpect shapes 0\n").status, 0);
    EXPECT_EQ(host.play("recover\nexpect shapes 0\n").status, 1) << "the box was closed";
    EXPECT_EQ(host.play("answer delete\nrecover\nexpect shapes 0\nrecover\n").status, 0);
    EXPECT_EQ(filesIn(host.data()), 0);
}

TEST(SketchpadAutosave, IsNotOfferedOverADrawingThatIsNotSaved)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "autosave\ndie\n").status, 3);
    EXPECT_EQ(host.play(kDrawSquare + kDrawSquare +
                        "recover\nexpect shapes 2\nanswer discard\nmenu new\n")
                  .status,
              0);
}

TEST(SketchpadAutosave, ThatCannotBeReadIsToldAndStays)
{
    Host host;
    fs::create_directories(host.data());
    ktqtbase::test::writeFile(host.data() / "untitled.autosave", "damaged");
    const SessionResult result = host.play("answer yes\nanswer ok\nrecover\nexpect shapes 0\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be opened: it is not a drawing"));
    EXPECT_EQ(readFile(host.data() / "untitled.autosave"), "damaged");
}

TEST(SketchpadAutosave, IsNotWrittenOverByAnotherProgram)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "autosave\ndie\n").status, 3);
    ASSERT_EQ(host.play(drawMuch() + "autosave\ndie\n").status, 3);
    EXPECT_EQ(readFile(host.data() / "untitled.autosave"), kSquareFile);
    EXPECT_THAT(readFile(host.data() / "untitled-2.autosave"), HasSubstr("line"));
}

TEST(SketchpadAutosave, ThatIsOlderThanItsDrawingIsNotOffered)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    ASSERT_EQ(host.play("open a.sketch\n" + drawMuch() + "autosave\ndie\n").status, 3);
    fs::last_write_time(host.work() / "a.sketch",
                        fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_EQ(host.play("open a.sketch\nexpect shapes 1\n").status, 0);
    EXPECT_EQ(filesIn(host.work()), 2) << "the script and the drawing";
}

TEST(SketchpadAutosave, HoldsWhatIsBeingTypedAndIsPrivate)
{
    Host host;
    ASSERT_EQ(host.play("tool text\ndrag 20,20\ntype Words\nautosave\ndie\n").status, 3);
    const fs::path file = host.data() / "untitled.autosave";
    EXPECT_EQ(readFile(file), "SKETCHPAD 1\ntext 0 3 000000 none 1 20,20 Words\n");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(SketchpadAutosave, OfALongNameLiesInTheProgramsOwnFolder)
{
    Host host;
    const std::string name(245, 'n');
    ASSERT_EQ(host.play(kDrawSquare + "save " + name + "\n").status, 0);
    ASSERT_EQ(host.play("open " + name + ".sketch\n" + drawMuch() + "autosave\ndie\n").status, 3);
    EXPECT_EQ(host.play("answer yes\nopen " + name +
                        ".sketch\nexpect shapes 2\nanswer discard\n"
                        "menu new\n")
                  .status,
              0);
}

TEST(SketchpadAutosave, GoesWhenTheChangesAreUndone)
{
    Host host;
    EXPECT_EQ(host.play(kDrawSquare + "autosave\nmenu undo\nautosave\ndie\n").status, 3);
    EXPECT_FALSE(fs::exists(host.data() / "untitled.autosave"));
}

TEST(SketchpadAutosave, IsOfferedWhenItsDrawingIsOpened)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    ASSERT_EQ(host.play("open a.sketch\n" + drawMuch() + "autosave\ndie\n").status, 3);
    const SessionResult result =
        host.play("answer delete\nopen a.sketch\nexpect shapes 1\nopen a.sketch\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(filesIn(host.work()), 2) << "the script and the drawing";
}

TEST(SketchpadAutosave, OfADrawingWithoutANameLiesInTheProgramsOwnFolder)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "autosave\ndie\n").status, 3);
    EXPECT_EQ(readFile(host.data() / "untitled.autosave"), kSquareFile);
    const SessionResult result =
        host.play("answer yes\nrecover\nexpect shapes 1\nanswer discard\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(filesIn(host.data()), 0);
}

TEST(SketchpadAutosave, IsNotWrittenWithoutAChangeAndGoesWithTheProgram)
{
    Host host;
    ASSERT_EQ(host.play("autosave\n").status, 0);
    EXPECT_FALSE(fs::exists(host.data() / "untitled.autosave"));
    ASSERT_EQ(host.play(kDrawSquare + "autosave\nanswer discard\nmenu new\n").status, 0);
    EXPECT_EQ(filesIn(host.data()), 0);
}

TEST(SketchpadAutosave, OfAProgramThatStillRunsIsLeftAlone)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "autosave\ndie\n").status, 3);
    // The lock of a process that lives: this one's.
    const fs::path lock = host.data() / "untitled.autosave.lock";
    std::string content = readFile(lock);
    content.replace(0, content.find('\n'), std::to_string(getpid()));
    const std::size_t name = content.find('\n') + 1;
    content.replace(name, content.find('\n', name) - name, TEST_PROGRAM);
    ktqtbase::test::writeFile(lock, content);
    EXPECT_EQ(host.play("recover\nexpect shapes 0\n").status, 0);
    EXPECT_TRUE(fs::exists(host.data() / "untitled.autosave"));
}
