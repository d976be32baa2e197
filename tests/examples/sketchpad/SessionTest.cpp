// SPDX-License-Identifier: MIT
//
// Sessions by script, without a display.
#include "Host.h"
#include "support/ChildProcess.h"

#include <gmock/gmock.h>

#include <QtGui/QImage>

using ktqtbase::test::readFile;
using ktqtbase::test::writeFile;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

int countPixels(const QImage& image, QRgb color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color ? 1 : 0;
    return count;
}

} // namespace

TEST(SketchpadSession, PlaysItsOwnScript)
{
    Host host;
    const SessionResult result = host.play(readFile(SESSION_SCRIPT));
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("Save them? [discard]"));
    EXPECT_THAT(result.out, HasSubstr("Replace it? [cancel]"));
    EXPECT_EQ(host.file("session.sketch"), host.file("session-by-dialog.sketch"));
    EXPECT_THAT(host.file("session.pdf"), StartsWith("%PDF-"));
    EXPECT_THAT(host.file("session.pdf"), EndsWith("%%EOF\n"));
}

TEST(SketchpadSession, ShowsWhatItDrew)
{
    Host host;
    ASSERT_EQ(host.play(readFile(SESSION_SCRIPT)).status, 0);
    const QImage picture((host.work() / "session.png").c_str());
    EXPECT_GT(picture.width(), 700);
    EXPECT_GT(picture.height(), 500);
    EXPECT_GT(countPixels(picture, qRgb(0xAA, 0xCD, 0xF5)), 15000) << "the rectangle";
    EXPECT_GT(countPixels(picture, qRgb(0xFA, 0xC8, 0x3C)), 6000) << "the star";
    EXPECT_GT(countPixels(picture, qRgb(0xC8, 0x1E, 0x1E)), 800) << "the freehand line";
}

TEST(SketchpadDocument, IsWhatWasDrawn)
{
    Host host;
    const SessionResult result = host.play(kDrawSquare + "save a.sketch\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(host.file("a.sketch"), kSquareFile);
    EXPECT_THAT(result.out, HasSubstr("line: Saved a.sketch\n"));
}

TEST(SketchpadDocument, KeepsTextOfEveryScript)
{
    Host host;
    const std::string draw = "tool text\ndrag 60,60\ntype  \u00e4 \u4e2d \U0001F600\n";
    EXPECT_EQ(host.play(draw + "save a\nopen a.sketch\nexpect shapes 1\nsave b\n").status, 0);
    EXPECT_EQ(host.file("a.sketch"),
              "SKETCHPAD 1\ntext 0 3 000000 none 1 60,60 \u00e4 \u4e2d \U0001F600\n");
    EXPECT_EQ(host.file("b.sketch"), host.file("a.sketch"));
}

TEST(SketchpadDocument, IsReplacedOnlyWhenItsUserSaysSo)
{
    Host host;
    host.writeFile("a.sketch", "former");
    std::string script = kDrawSquare + "answer cancel\nsave a\nsave b\n";
    EXPECT_EQ(host.play(script).status, 0);
    EXPECT_EQ(host.file("a.sketch"), "former");
    script = kDrawSquare + "answer replace\nsave a\n";
    EXPECT_EQ(host.play(script).status, 0);
    EXPECT_EQ(host.file("a.sketch"), kSquareFile);
}

TEST(SketchpadDocument, IsNotDiscardedWithoutAnAnswer)
{
    Host host;
    const SessionResult result = host.play(kDrawSquare + "menu new\nexpect shapes 1\n" +
                                           "answer discard\nmenu new\nexpect shapes 0\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("no answer was ready for this box"));
    EXPECT_THAT(result.err, Not(HasSubstr("expect")));
}

TEST(SketchpadDocument, IsCopiedUnderAFreeName)
{
    Host host;
    EXPECT_EQ(host.play(kDrawSquare + "save a\ncopy\ncopy\n").status, 0);
    int copies = 0;
    for (const auto& entry : std::filesystem::directory_iterator(host.work())) {
        const std::string name = entry.path().filename();
        copies += name.size() == 13 && name[0] == 'a' && readFile(entry.path()) == kSquareFile;
    }
    EXPECT_EQ(copies, 2);
}

TEST(SketchpadMessages, ReachTheViewByNumber)
{
    Host host;
    const SessionResult result =
        host.play("message 1031 3 0\ndrag 60,60 160,160\nsave a\n"); // WM_USER + 7, a rectangle
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(host.file("a.sketch"), kSquareFile);
}

TEST(SketchpadMessages, OfUnknownNumbersDoNothing)
{
    Host host;
    EXPECT_EQ(host.play("message 40000 1 2\nmessage 1031 99 0\nexpect shapes 0\n").status, 0);
}

TEST(SketchpadSettings, KeepTheRecentFilesNewestFirst)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\nsave b\nopen a.sketch\n").status, 0);
    const std::string store = readFile(host.settings());
    const std::string work = host.work().string();
    EXPECT_THAT(store, HasSubstr("[Software%5CSketchpad%5CRecent]\nFile1=" + work + "/a.sketch\n" +
                                 "File2=" + work + "/b.sketch\n"));
}

TEST(SketchpadSettings, ForgetARecentFileThatIsGone)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\nsave b\n").status, 0);
    std::filesystem::remove(host.work() / "b.sketch");
    const SessionResult result =
        host.play("answer ok\nmenu recent\nmenu recent\nexpect shapes 1\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("Opened a.sketch"));
    EXPECT_THAT(readFile(host.settings()), Not(HasSubstr("b.sketch")));
}

TEST(SketchpadSettings, KeepARecentFileThatCannotBeReadNow)
{
    Host host;
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    host.writeFile("a.sketch", "damaged");
    ASSERT_EQ(host.play("answer ok\nmenu recent\n").status, 0);
    EXPECT_THAT(readFile(host.settings()),
                HasSubstr("File1=" + host.work().string() + "/a.sketch"));
}

TEST(SketchpadSettings, HoldNamesLongerThanTheFirstBuffer)
{
    Host host;
    const std::string name(200, 'n');
    ASSERT_EQ(host.play(kDrawSquare + "save " + name + "\n").status, 0);
    EXPECT_EQ(host.play("menu recent\nexpect shapes 1\n").status, 0);
    EXPECT_THAT(readFile(host.settings()), HasSubstr("/" + name + ".sketch\n"));
}

TEST(SketchpadSettings, PutTheWindowWhereItWas)
{
    Host host;
    std::filesystem::create_directories(host.settings().parent_path());
    const std::string place = "[Software%5CSketchpad%5CWindow]\nBottom=630\nLeft=20\n"
                              "Right=820\nTop=10\n";
    writeFile(host.settings(), place);
    ASSERT_EQ(host.play("screenshot a.png\n").status, 0);
    const QImage picture((host.work() / "a.png").c_str());
    EXPECT_EQ(picture.size(), QSize(800, 620));
    EXPECT_EQ(readFile(host.settings()), place);
}

TEST(SketchpadSettings, AreNotTakenWhereTheyMakeNoWindow)
{
    Host host;
    std::filesystem::create_directories(host.settings().parent_path());
    writeFile(host.settings(), "[Software%5CSketchpad%5CWindow]\nBottom=630\nLeft=9000\n"
                               "Right=9800\nTop=x\n");
    ASSERT_EQ(host.play("screenshot a.png\n").status, 0);
    EXPECT_EQ(QImage((host.work() / "a.png").c_str()).width(), 752);
}

TEST(SketchpadDefaults, ComeFromTheIniFileBesideIt)
{
    Host host;
    writeFile(host.program() / "sketchpad.ini", "[Sketchpad]\nPenWidth=7\nPenColor=0x0000ff\n");
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    EXPECT_EQ(host.file("a.sketch"),
              "SKETCHPAD 1\npolygon 0 7 0000ff none 4 60,60 160,60 160,160 60,160\n");
}

TEST(SketchpadDefaults, KeepToWhatAPenMayBe)
{
    Host host;
    writeFile(host.program() / "sketchpad.ini", "[Sketchpad]\nPenWidth=-5\nPenColor=red\n");
    ASSERT_EQ(host.play(kDrawSquare + "save a\n").status, 0);
    EXPECT_THAT(host.file("a.sketch"), HasSubstr("polygon 0 0 000000 none"));
}

TEST(SketchpadScript, IsRefusedWhereItCannotBeRead)
{
    const Host host;
    ChildProcess process;
    host.prepare(*process, {"--script", "none"});
    ASSERT_TRUE(process.start() && process->waitForFinished(ChildProcess::kPatience));
    EXPECT_EQ(process->exitCode(), 2);
    EXPECT_THAT(process->readAllStandardError().toStdString(), HasSubstr("none cannot be read"));
}

TEST(SketchpadScript, FailsWhereAFileDialogGetsNoName)
{
    Host host;
    EXPECT_EQ(host.play("menu open\n").status, 1);
}

TEST(SketchpadProgram, TellsItsUsageWithoutADisplay)
{
    const Host host;
    ChildProcess process;
    host.prepare(*process, {"--help"});
    QProcessEnvironment environment = process->processEnvironment();
    environment.insert("QT_QPA_PLATFORM", "none");
    process->setProcessEnvironment(environment);
    ASSERT_TRUE(process.start() && process->waitForFinished(ChildProcess::kPatience));
    EXPECT_EQ(process->exitCode(), 0);
    EXPECT_THAT(process->readAllStandardOutput().toStdString(), StartsWith("Usage: sketchpad"));
}

TEST(SketchpadScript, FailsWithAnUnknownCommandAndWithALeftoverAnswer)
{
    Host host;
    EXPECT_THAT(host.play("jump\n").err, HasSubstr("line 1: this command failed: jump"));
    const SessionResult leftover = host.play("answer yes\n");
    EXPECT_EQ(leftover.status, 1);
    EXPECT_THAT(leftover.err, HasSubstr("nothing asked"));
}
