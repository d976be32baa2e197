// SPDX-License-Identifier: MIT
//
// Files that are read though they come from elsewhere, and files that are no drawing.
#include "Host.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

const std::string kFirst = "SKETCHPAD 1\n";
const std::string kLine = "line 0 1 000000 none 2 1,1 5,5";

std::string lines(const std::string& line, int count)
{
    std::string all = kFirst;
    for (int i = 0; i < count; ++i)
        all += line + '\n';
    return all;
}

struct DamageRow
{
    const char* name;
    std::string content;
    const char* reason;
};

const DamageRow kDamage[] = {
    {"Empty", "", "it is not a drawing"},
    {"Foreign", "%PDF-1.4\n", "it is not a drawing"},
    {"OtherVersion", "SKETCHPAD 2\n", "it is not a drawing"},
    {"OnlyAByteOrderMark", "\xEF\xBB\xBF", "it is not a drawing"},
    {"TwoByteCharacters", std::string("S\0K\0E\0", 6), "it is not a drawing"},
    {"BlanksInFront", " SKETCHPAD 1\n", "it is not a drawing"},
    {"Binary", kFirst + "\x01\xFF\n", "line 2: no shape begins like this"},
    {"NulBytes", kFirst + std::string("line\0 0 1", 9), "line 2: it holds a NUL"},
    {"NulInAText", kFirst + std::string("text 0 1 000000 none 1 1,1 a\0b", 30), "it holds a NUL"},
    {"LowestPoint", kFirst + "line 0 1 000000 none 1 -2147483648,1\n", "line 2: a point"},
    {"LowestEllipse", kFirst + "ellipse 0 1 000000 none 2 0,-2147483648 0,0\n", "a point"},
    {"EmptyLine", kFirst + "\n" + kLine + "\n", "line 2: no shape"},
    {"UnknownKind", kFirst + "circle 0 1 000000 none 1 1,1\n", "line 2: no shape"},
    {"BadStyle", kFirst + "line 9 1 000000 none 1 1,1\n", "line 2: the pen"},
    {"NegativeStyle", kFirst + "line -1 1 000000 none 1 1,1\n", "line 2: the pen"},
    {"NegativeWidth", kFirst + "line 0 -1 000000 none 1 1,1\n", "line 2: the pen"},
    {"GreatWidth", kFirst + "line 0 101 000000 none 1 1,1\n", "a width is at most 100"},
    {"HugeWidth", kFirst + "line 0 99999999999 000000 none 1 1,1\n", "line 2: the pen"},
    {"BadColor", kFirst + "line 0 1 red none 1 1,1\n", "line 2: the pen"},
    {"ShortColor", kFirst + "line 0 1 0 none 1 1,1\n", "line 2: the pen"},
    {"LongColor", kFirst + "line 0 1 0000000 none 1 1,1\n", "line 2: the pen"},
    {"BadFill", kFirst + "line 0 1 000000 nothing 1 1,1\n", "line 2: the pen"},
    {"PointMissing", kFirst + "line 0 1 000000 none 2 1,1\n", "line 2: a point"},
    {"PointTooMany", kFirst + "line 0 1 000000 none 1 1,1 2,2\n", "one too many"},
    {"PointTooFar", kFirst + "line 0 1 000000 none 1 30001,1\n", "none is farther than 30,000"},
    {"PointBeyondNumbers", kFirst + "line 0 1 000000 none 1 99999999999,1\n", "line 2: a point"},
    {"PointOfLetters", kFirst + "line 0 1 000000 none 1 a,b\n", "line 2: a point"},
    {"PointWithoutComma", kFirst + "line 0 1 000000 none 1 1;1\n", "line 2: a point"},
    {"TooManyPoints", kFirst + "line 0 1 000000 none 2000000000 1,1\n", "at most 100,000"},
    {"NoPoint", kFirst + "line 0 1 000000 none 0\n", "line 2: a point"},
    {"EllipseOfThreePoints", kFirst + "ellipse 0 1 000000 none 3 1,1 2,2 3,3\n", "a point"},
    {"TextMissing", kFirst + "text 0 1 000000 none 1 1,1\n", "line 2: the text"},
    {"TextWithoutItsBlank", kFirst + "text 0 1 000000 none 1 1,1a b\n", "line 2: the text"},
    {"TextOfOtherBytes", kFirst + "text 0 1 000000 none 1 1,1 \xFF\xFE\n", "line 2: the text"},
    {"TextBeyondUnicode", kFirst + "text 0 1 000000 none 1 1,1 \xF6\x9F\x98\x80\n", "the text"},
    {"CutLastLine", kFirst + kLine + "\nline 0 1", "line 3: the pen"},
    {"EndlessLine", kFirst + std::string(2000001, 'x'), "line 2: longer than 2,000,000 bytes"},
    {"TooManyShapes", lines(kLine, 100001), "line 100002: a drawing has at most 100,000 shapes"},
    {"TooLarge", std::string(8000001, '\n'), "it is larger than 8 MB"},
};

class DamagedDocument : public testing::TestWithParam<DamageRow>
{};

TEST_P(DamagedDocument, IsRefusedWithAReasonAndTheDrawingStays)
{
    Host host;
    host.writeFile("bad.sketch", GetParam().content);
    const SessionResult result = host.play(
        kDrawSquare + "answer discard\nanswer ok\nopen bad.sketch\nexpect shapes 1\nsave a\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("cannot be opened: "));
    EXPECT_THAT(result.out, HasSubstr(GetParam().reason));
    EXPECT_THAT(host.file("a.sketch"), HasSubstr("polygon"));
}

INSTANTIATE_TEST_SUITE_P(Sketchpad, DamagedDocument, testing::ValuesIn(kDamage),
                         [](const auto& row) { return std::string(row.param.name); });

void expectRefused(Host& host, const std::string& name, const char* reason)
{
    const SessionResult result = host.play(kDrawSquare + "answer discard\nanswer ok\nopen " + name +
                                           "\nexpect shapes 1\nsave a\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr(reason));
    EXPECT_THAT(host.file("a.sketch"), HasSubstr("polygon"));
}

TEST(SketchpadOpen, RefusesAPipeThatNobodyWritesTo)
{
    Host host;
    ASSERT_EQ(mkfifo((host.work() / "pipe").c_str(), 0600), 0);
    expectRefused(host, "pipe", "it is a device or a pipe, not a file");
}

TEST(SketchpadOpen, RefusesADeviceWithoutAnEnd)
{
    Host host;
    expectRefused(host, "/dev/zero", "it is a device or a pipe, not a file");
}

// It begins as a file, and reading it fails.
TEST(SketchpadOpen, RefusesAFileThatCannotBeReadToItsEnd)
{
    Host host;
    expectRefused(host, "/proc/self/mem", "cannot be opened: ");
}

TEST(SketchpadOpen, RefusesAFileOfAGigabyte)
{
    Host host;
    host.writeFile("large.sketch", kFirst);
    fs::resize_file(host.work() / "large.sketch", 1000000000);
    expectRefused(host, "large.sketch", "it is larger than 8 MB");
}

void expectOneShapeIn(const std::string& content)
{
    Host host;
    host.writeFile("in.sketch", content);
    const SessionResult result = host.play("open in.sketch\nexpect shapes 1\nsave out\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(host.file("out.sketch"), kFirst + kLine + "\n");
}

TEST(SketchpadOpen, ReadsTheLineEndsOfWindows)
{
    expectOneShapeIn("SKETCHPAD 1\r\n" + kLine + "\r\n");
}

// The last one of several would otherwise be saved, and be gone when that is read.
TEST(SketchpadOpen, KeepsNoCarriageReturnAtALinesEnd)
{
    Host host;
    const std::string text = "text 0 1 000000 none 1 1,1 a\rb";
    host.writeFile("in.sketch", kFirst + text + "\r\r\n");
    const SessionResult result = host.play("open in.sketch\nsave out\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_EQ(host.file("out.sketch"), kFirst + text + "\n");
}

TEST(SketchpadOpen, ReadsAByteOrderMark)
{
    expectOneShapeIn("\xEF\xBB\xBF" + kFirst + kLine + "\n");
}

TEST(SketchpadOpen, ReadsALastLineWithoutAnEnd)
{
    expectOneShapeIn(kFirst + kLine);
}

TEST(SketchpadOpen, ReadsAsManyShapesAsThereMayBe)
{
    Host host;
    host.writeFile("in.sketch", lines(kLine, 100000));
    const SessionResult result = host.play("open in.sketch\nexpect shapes 100000\n");
    EXPECT_EQ(result.status, 0) << result.out << result.err;
}

} // namespace
