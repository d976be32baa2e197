// SPDX-License-Identifier: MIT
//
// The commands that change a drawing, and taking them back.
#include "Host.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

const std::string kEmptyFile = "SKETCHPAD 1\n";
const std::string kSquareLine = "polygon 0 3 000000 none 4 60,60 160,60 160,160 60,160\n";

struct EditRow
{
    const char* name;
    std::string commands; // after a square was drawn
    std::string after;
};

const EditRow kEdits[] = {
    {"Draw", "drag 10,10 20,20\n",
     kSquareLine + "polygon 0 3 000000 none 4 10,10 20,10 20,20 10,20\n"},
    {"Delete", "menu select-all\nkey delete\n", ""},
    {"Cut", "menu select-all\nmenu cut\n", ""},
    {"Paste", "menu select-all\nmenu copy\nmenu paste\n",
     kSquareLine + "polygon 0 3 000000 none 4 72,72 172,72 172,172 72,172\n"},
    {"PasteText", "clipboard some words\nmenu paste\n",
     kSquareLine + "text 0 3 000000 none 1 188,236 some words\n"},
    {"MoveByKey", "menu select-all\nkey right\n",
     "polygon 0 3 000000 none 4 61,60 161,60 161,160 61,160\n"},
    {"MoveByMouse", "tool select\ndrag 100,100 105,100 110,90\n",
     "polygon 0 3 000000 none 4 70,50 170,50 170,150 70,150\n"},
    {"Pen", "menu select-all\nmenu red-pen\n",
     "polygon 0 3 1e1ec8 none 4 60,60 160,60 160,160 60,160\n"},
    {"Fill", "menu select-all\nmenu blue-fill\n",
     "polygon 0 3 000000 be4614 4 60,60 160,60 160,160 60,160\n"},
    {"Type", "tool text\ndrag 20,20\ntype Words\nkey return\n",
     kSquareLine + "text 0 3 000000 none 1 20,20 Words\n"},
    {"PasteWhileTyping",
     "clipboard some words\ntool text\ndrag 20,20\ntype <>\nkey left\nmenu paste\nkey return\n",
     kSquareLine + "text 0 3 000000 none 1 20,20 <some words>\n"},
    {"Insert", "tool line\nmenu insert\n",
     kSquareLine + "line 0 3 000000 none 2 326,206 426,266\n"},
};

class SketchpadEdit : public testing::TestWithParam<EditRow>
{};

TEST_P(SketchpadEdit, IsUndoneAndMadeAgain)
{
    Host host;
    const SessionResult result = host.play(kDrawSquare + GetParam().commands +
                                           "save after\nmenu undo\nsave before\nmenu undo\n" +
                                           "save empty\nmenu redo\nmenu redo\nsave again\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(host.file("after.sketch"), kEmptyFile + GetParam().after);
    EXPECT_EQ(host.file("before.sketch"), kEmptyFile + kSquareLine);
    EXPECT_EQ(host.file("empty.sketch"), kEmptyFile);
    EXPECT_EQ(host.file("again.sketch"), host.file("after.sketch"));
}

INSTANTIATE_TEST_SUITE_P(Each, SketchpadEdit, testing::ValuesIn(kEdits),
                         [](const auto& row) { return std::string(row.param.name); });

std::string savedAfter(const std::string& script)
{
    Host host;
    const SessionResult result = host.play(script + "save a\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    return host.file("a.sketch").substr(kEmptyFile.size());
}

} // namespace

TEST(SketchpadUndo, OfADeletionBringsEachShapeBackToItsPlace)
{
    const std::string three = kDrawSquare + "drag 300,60 320,80\ndrag 60,300 80,320\n";
    const std::string drawn = savedAfter(three);
    EXPECT_EQ(savedAfter(three + "tool select\ndrag 50,50 70,400\nexpect selected 2\nkey delete\n"
                                 "expect shapes 1\nmenu undo\n"),
              drawn);
}

TEST(SketchpadUndo, EndsWithTheFirstOfAHundred)
{
    std::string script;
    for (int i = 0; i < 103; ++i)
        script += kDrawSquare;
    for (int i = 0; i < 110; ++i)
        script += "menu undo\n";
    Host host;
    EXPECT_EQ(host.play(script + "expect shapes 3\nanswer discard\nmenu new\n").status, 0);
}

TEST(SketchpadUndo, BackToTheSavedStateLeavesNothingToSave)
{
    Host host;
    EXPECT_EQ(host.play(kDrawSquare + "save a\n" + kDrawSquare + "menu undo\nmenu new\n").status,
              0);
}

TEST(SketchpadUndo, BehindTheSavedStateLeavesSomethingToSave)
{
    Host host;
    const std::string script =
        kDrawSquare + "save a\nmenu undo\n" + kDrawSquare + "menu undo\nmenu redo\n";
    EXPECT_EQ(host.play(script + "answer discard\nmenu new\n").status, 0);
}

TEST(SketchpadUndo, TakesMovesOfTheSameShapesForOne)
{
    std::string script = kDrawSquare + "menu select-all\n";
    for (int i = 0; i < 30; ++i)
        script += "key right\n";
    EXPECT_EQ(savedAfter(script + "menu undo\n"), kSquareLine);
    EXPECT_EQ(savedAfter(script + "menu undo\nmenu undo\n"), "");
}

TEST(SketchpadUndo, ComesBackToTheSavedStateBetweenMoves)
{
    const std::string moved = kDrawSquare + "menu select-all\nkey right\nsave b\n";
    EXPECT_EQ(savedAfter(moved + "key right\nmenu undo\n"), savedAfter(moved));
}

TEST(SketchpadUndo, JoinsNoMoveToOneThatWasUndone)
{
    EXPECT_EQ(savedAfter(kDrawSquare + "menu select-all\nkey right\nmenu undo\nmenu select-all\n"
                                       "key down\nmenu undo\n"),
              kSquareLine);
}

TEST(SketchpadUndo, CountsNothingThatChangesNothing)
{
    Host host;
    const SessionResult result =
        host.play(kDrawSquare + "menu select-all\nmenu red-pen\nsave a\nmenu red-pen\nmenu undo\n"
                                "save b\nmenu new\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(host.file("b.sketch"), kEmptyFile + kSquareLine);
}

TEST(SketchpadRedo, IsForgottenWithANewChange)
{
    EXPECT_EQ(savedAfter(kDrawSquare + "menu undo\ndrag 10,10 20,20\nmenu redo\n"),
              "polygon 0 3 000000 none 4 10,10 20,10 20,20 10,20\n");
}

TEST(SketchpadText, IsTypedWithACaret)
{
    EXPECT_EQ(savedAfter("tool text\ndrag 20,20\ntype abd\nkey left\ntype c\nkey home\nkey delete\n"
                         "type A\nkey right\nkey right\nkey right\nkey right\nkey backspace\n"
                         "type D\nkey end\ntype !\nkey return\n"),
              "text 0 3 000000 none 1 20,20 AbcD!\n");
}

TEST(SketchpadText, IsChangedByAClickOnIt)
{
    const std::string words = "tool text\ndrag 20,50\ntype words\nkey return\n";
    EXPECT_EQ(savedAfter(words + "drag 25,45\nkey home\ntype >\nkey return\nexpect shapes 1\n"),
              "text 0 3 000000 none 1 20,50 >words\n");
    EXPECT_EQ(savedAfter(words + "drag 25,45\ntype x\nkey escape\n"),
              "text 0 3 000000 none 1 20,50 words\n");
    EXPECT_EQ(savedAfter(words +
                         "drag 25,45\nkey home\nkey delete\nkey delete\nkey delete\n"
                         "key delete\nkey delete\nkey return\nexpect shapes 0\nmenu undo\n"),
              "text 0 3 000000 none 1 20,50 words\n");
}

TEST(SketchpadPaste, TakesWhatAnotherProgramCopied)
{
    EXPECT_EQ(savedAfter("clipboard  a\tb\nmenu paste\n"), "text 0 3 000000 none 1 188,236 ab\n");
    EXPECT_EQ(savedAfter("clipboard \nmenu paste\n"), "");
}

TEST(SketchpadPaste, RefusesADamagedDrawing)
{
    Host host;
    const SessionResult result =
        host.play("clipboard SKETCHPAD 7\nanswer ok\nmenu paste\nexpect shapes 0\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be pasted: it is not a drawing of this program"));
}

TEST(SketchpadDraw, MakesNothingOfAClick)
{
    for (const char* tool : {"freehand", "line", "rectangle", "ellipse", "star"})
        EXPECT_EQ(savedAfter(std::string("tool ") + tool + "\ndrag 60,60\n"), "") << tool;
}

TEST(SketchpadSelect, GoesFromShapeToShapeByKey)
{
    EXPECT_EQ(savedAfter(kDrawSquare + "drag 10,10 20,20\nmenu select-next\nmenu select-next\n"
                                       "menu select-next\nkey delete\n"),
              "polygon 0 3 000000 none 4 10,10 20,10 20,20 10,20\n");
}

// A file with a point that is farther away could not be read again.
TEST(SketchpadMove, StopsWhereADrawingEnds)
{
    Host host;
    host.writeFile("in.sketch", "SKETCHPAD 1\nline 0 1 000000 none 2 29999,1 29998,1\n");
    const SessionResult result = host.play(
        "open in.sketch\nmenu select-all\nkey right\nkey right\nmenu copy\nmenu paste\nsave out\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(host.file("out.sketch"), "SKETCHPAD 1\nline 0 1 000000 none 2 30000,1 29999,1\n"
                                       "line 0 1 000000 none 2 30000,1 29999,1\n");
}

TEST(SketchpadZoom, KeepsThePlacesOfTheDrawing)
{
    Host host;
    const SessionResult result =
        host.play("menu zoom-in\nmenu zoom-out\nexpect zoom 100\nmenu zoom-in\nexpect zoom 125\n"
                  "tool rectangle\ndrag 100,100 200,200\nmenu zoom-full\nsave a\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(host.file("a.sketch"),
              "SKETCHPAD 1\npolygon 0 3 000000 none 4 80,80 160,80 160,160 80,160\n");
}

TEST(SketchpadZoom, ComesBackToTheFullSize)
{
    Host host;
    EXPECT_EQ(host.play("menu zoom-in\nmenu zoom-in\nmenu zoom-out\nmenu zoom-out\n"
                        "expect zoom 100\n")
                  .status,
              0);
}

TEST(SketchpadZoom, FitsTheWindowAndHasLimits)
{
    Host host;
    std::string script = "resize 376,700\nmenu zoom-fit\nexpect zoom 50\n";
    for (int i = 0; i < 12; ++i)
        script += "menu zoom-in\n";
    script += "expect zoom 400\n";
    for (int i = 0; i < 20; ++i)
        script += "menu zoom-out\n";
    EXPECT_EQ(host.play(script + "expect zoom 25\n").status, 0);
}
