// SPDX-License-Identifier: MIT
//
// The drawing program under a window manager, with keys and mouse moves that come from the X
// server.
#include "Person.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>

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
    EXPECT_TRUE(person.waitForBox());
    person.press("alt+d");
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
    person.press("ctrl+shift+p");
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

TEST(SketchpadWindow, KeepsTheDrawingWhenItsUserCancels)
{
    const Host host;
    Person person(host);
    person.press("ctrl+4");
    person.drag({100, 150}, {250, 230});
    EXPECT_TRUE(person.waitForTitle("New drawing* - Sketchpad"));
    person.press("ctrl+q");
    EXPECT_TRUE(person.waitForBox());
    person.press("Escape");
    EXPECT_TRUE(person.waitForNoBox());
    person.press("ctrl+q");
    EXPECT_TRUE(person.waitForBox());
    person.press("alt+d");
    EXPECT_TRUE(person.waitForEnd(0));
}

TEST(SketchpadWindow, SavesWhenItsUserOnlyPressesReturn)
{
    const Host host;
    Person person(host);
    drawAndSave(person);
    const std::string former = host.file("mine.sketch");
    person.press("ctrl+4");
    person.drag({300, 300}, {400, 400});
    EXPECT_TRUE(person.waitForTitle("mine.sketch* - Sketchpad"));
    person.press("ctrl+q");
    EXPECT_TRUE(person.waitForBox());
    person.press("Return");
    EXPECT_TRUE(person.waitForEnd(0));
    EXPECT_NE(host.file("mine.sketch"), former);
}

TEST(SketchpadWindow, ProposesANameToSaveUnder)
{
    const Host host;
    const Person person(host);
    person.press("ctrl+4");
    person.drag({100, 150}, {250, 230});
    person.press("ctrl+s");
    EXPECT_TRUE(person.answerDialog("Save the drawing", ""));
    EXPECT_TRUE(person.waitForTitle("New drawing.sketch - Sketchpad"));
    EXPECT_TRUE(appears(host.work() / "New drawing.sketch"));
}

TEST(SketchpadWindow, ZoomsWithCtrlAndTheWheel)
{
    const Host host;
    const Person person(host);
    person.press("ctrl+4");
    person.turnWheelWithCtrl({300, 250}, 1);
    person.drag({200, 150}, {325, 275});
    person.press("ctrl+s");
    EXPECT_TRUE(person.answerDialog("Save the drawing", "zoomed"));
    ASSERT_TRUE(appears(host.work() / "zoomed.sketch"));
    int left = 0;
    int top = 0;
    int right = 0;
    const std::string shape = host.file("zoomed.sketch").substr(12);
    ASSERT_EQ(std::sscanf(shape.c_str(), "polygon 0 3 000000 none 4 %d,%d %d", &left, &top, &right),
              3);
    EXPECT_EQ(right - left, 100);
}

TEST(SketchpadWindow, DrawsMovesAndDeletesWithoutAMouse)
{
    const Host host;
    const Person person(host);
    person.press("ctrl+4");
    person.press("Insert");
    person.press("Right");
    person.press("shift+Down");
    person.press("Insert");
    person.press("Tab");
    person.press("Tab");
    person.press("Delete");
    person.press("ctrl+s");
    EXPECT_TRUE(person.answerDialog("Save the drawing", "keys"));
    ASSERT_TRUE(appears(host.work() / "keys.sketch"));
    EXPECT_EQ(host.file("keys.sketch"),
              "SKETCHPAD 1\npolygon 0 3 000000 none 4 327,216 427,216 427,276 327,276\n");
}

TEST(SketchpadWindow, CopiesCutsAndPastes)
{
    const Host host;
    const Person person(host);
    person.press("ctrl+4");
    person.drag({100, 150}, {250, 230});
    for (const char* keys : {"ctrl+a", "ctrl+x", "ctrl+v", "ctrl+v", "ctrl+z", "ctrl+y"})
        person.press(keys);
    person.press("ctrl+s");
    EXPECT_TRUE(person.answerDialog("Save the drawing", "pasted"));
    ASSERT_TRUE(appears(host.work() / "pasted.sketch"));
    const std::string file = host.file("pasted.sketch");
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 3);
}

// By the keys of the menu alone.
TEST(SketchpadWindow, ShowsThePageBeforeItIsPrinted)
{
    const Host host;
    const Person person(host);
    person.press("alt+f");
    person.press("v");
    EXPECT_TRUE(person.waitForTitle("Print Preview"));
    person.press("Escape");
    EXPECT_TRUE(person.waitForNoBox());
}

TEST(SketchpadWindow, OffersAtItsStartWhatAKilledProgramLeft)
{
    Host host;
    host.environment.insert("QT_QPA_PLATFORM", "offscreen");
    ASSERT_EQ(host.play(kDrawSquare + "autosave\ndie\n").status, 3);
    host.environment.insert("QT_QPA_PLATFORM", "xcb");
    const Person person(host, {}, "Sketchpad");
    EXPECT_TRUE(Person::waitFor([] { return Person::activeTitle() == "Sketchpad"; }));
    person.press("Return");
    EXPECT_TRUE(person.waitForTitle("New drawing* - Sketchpad"));
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
