// SPDX-License-Identifier: MIT
//
// The drawing program under a window manager, with keys and mouse moves that come from the X
// server.
#include "Person.h"

#include <gmock/gmock.h>

using ktqtbase::test::readFile;
using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

bool appears(const fs::path& path)
{
    return Person::waitFor([&path] { return fs::exists(path) && fs::file_size(path) > 0; });
}

// A drawing of a rectangle and a text, saved through the dialog as mine.sketch.
void drawAndSave(const Person& person)
{
    person.press("ctrl+4");
    person.drag({100, 150}, {250, 230});
    person.press("ctrl+6");
    person.drag({300, 180}, {300, 180});
    person.type("typed by hand");
    person.press("ctrl+s");
    EXPECT_TRUE(person.answerDialog("Save the drawing", "mine"));
    EXPECT_TRUE(person.waitForTitle("mine.sketch - Sketchpad"));
}

} // namespace

TEST(SketchpadWindow, SavesWhatAHandDrew)
{
    const Host host;
    const Person person(host);
    drawAndSave(person);
    ASSERT_TRUE(appears(host.work() / "mine.sketch"));
    EXPECT_THAT(host.file("mine.sketch"), HasSubstr("polygon 0 3 000000 none 4 "));
    EXPECT_THAT(host.file("mine.sketch"), HasSubstr(" typed by hand\n"));
}

TEST(SketchpadWindow, AsksBeforeItDiscardsAndReopensThroughTheDialog)
{
    const Host host;
    const Person person(host);
    drawAndSave(person);
    person.press("ctrl+4");
    person.drag({300, 300}, {400, 400});
    EXPECT_TRUE(person.waitForTitle("mine.sketch* - Sketchpad"));
    person.press("ctrl+o");
    EXPECT_TRUE(person.answerDialog("Open a drawing", "mine.sketch"));
    person.press("alt+y");
    EXPECT_TRUE(person.waitForTitle("mine.sketch - Sketchpad"));
    person.press("ctrl+shift+s");
    EXPECT_TRUE(person.answerDialog("Save the drawing", "again"));
    ASSERT_TRUE(appears(host.work() / "again.sketch"));
    EXPECT_EQ(host.file("again.sketch"), host.file("mine.sketch"));
}

TEST(SketchpadWindow, PrintsThroughTheDialogAndEndsWithItsSettingsStored)
{
    const Host host;
    Person person(host);
    drawAndSave(person);
    person.press("ctrl+p");
    EXPECT_TRUE(person.answerDialog("Print to a PDF file", "mine"));
    ASSERT_TRUE(appears(host.work() / "mine.pdf"));
    EXPECT_THAT(host.file("mine.pdf"), StartsWith("%PDF-"));
    person.press("ctrl+q");
    EXPECT_TRUE(person.waitForEnd(0));
    EXPECT_THAT(readFile(host.settings()), HasSubstr("File1=" + host.work().string() + "/mine"));
}

TEST(SketchpadWindow, TakesNoInputWhileADialogRuns)
{
    const Host host;
    Person person(host);
    drawAndSave(person);
    person.press("ctrl+4");
    person.press("ctrl+o");
    ASSERT_TRUE(person.waitForTitle("Open a drawing"));
    person.drag({10, 515}, {40, 535});
    person.press("alt+F4");
    person.press("Escape");
    EXPECT_TRUE(Person::waitFor([] { return Person::activeTitle().endsWith("Sketchpad"); }));
    EXPECT_TRUE(person.waitForTitle("mine.sketch - Sketchpad"))
        << Person::activeTitle().toStdString();
}

TEST(SketchpadWindow, KeepsTheDrawingWhenItsUserDoesNotDiscardIt)
{
    const Host host;
    Person person(host);
    person.press("ctrl+4");
    person.drag({100, 150}, {250, 230});
    EXPECT_TRUE(person.waitForTitle("New drawing* - Sketchpad"));
    person.press("ctrl+q");
    EXPECT_TRUE(Person::waitFor([] { return !Person::activeTitle().endsWith("Sketchpad"); }));
    person.press("alt+n");
    EXPECT_TRUE(person.waitForTitle("New drawing* - Sketchpad"));
    person.press("ctrl+q");
    EXPECT_TRUE(Person::waitFor([] { return !Person::activeTitle().endsWith("Sketchpad"); }));
    person.press("alt+y");
    EXPECT_TRUE(person.waitForEnd(0));
}

TEST(SketchpadWindow, ComesBackWhereItWas)
{
    const Host host;
    QPoint before;
    {
        Person person(host);
        person.moveWindow({140, 90});
        before = person.windowPlace();
        person.press("ctrl+q");
        ASSERT_TRUE(person.waitForEnd(0));
    }
    const Person person(host);
    EXPECT_GT(before.x(), 130);
    EXPECT_TRUE(Person::waitFor([&] { return person.windowPlace() == before; }));
}

TEST(SketchpadWindow, LooksAsItsPictureShows)
{
    Host host;
    host.environment.insert("QT_QPA_PLATFORM", "offscreen");
    ASSERT_EQ(host.play(readFile(SESSION_SCRIPT)).status, 0);
    host.environment.insert("QT_QPA_PLATFORM", "xcb");
    const Person person(host, {"session.sketch"});
    EXPECT_TRUE(person.waitForTitle("session.sketch - Sketchpad"));
    person.press("ctrl+1");
    person.drag({300, 130}, {420, 240});
    const QRgb star = qRgb(0xFA, 0xC8, 0x3C);
    EXPECT_TRUE(Person::waitFor([&] {
        const QImage picture = person.picture().toImage();
        return picture.save(PICTURE) && picture.pixel(picture.width() - 170, 200) == star;
    }));
}
