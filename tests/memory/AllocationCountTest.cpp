// SPDX-License-Identifier: MIT
//
// How often the library asks for memory, and for how much, in the calls that hosts make most.
#include "support/AllocationCounter.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/PainterWrapper.h>
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Profiles.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>

namespace {

using support::AllocationCounter;

// The last of a few equal calls, for which every cache is filled.
template<class Call>
long allocationsOf(Call call)
{
    for (int i = 0; i < 3; ++i)
        call();
    const AllocationCounter counter;
    call();
    return counter.count();
}

template<class Call>
long bytesOf(Call call)
{
    for (int i = 0; i < 3; ++i)
        call();
    const AllocationCounter counter;
    call();
    return counter.bytes();
}

// ---- Path names ---------------------------------------------------------------------------------

// A kept string is an object and its characters; an empty one is an object alone.
constexpr long kString = 2;
constexpr long kEmptyString = 1;
constexpr long kScratch = 1;
constexpr long kNarrowBuffer = 1;

// Names of at most 1,023 characters of ASCII, prefix included, need neither of the last two.
struct ParseCase
{
    const char* row;
    std::wstring name;
    long kept;
    long passing;
};

std::wstring letters(std::size_t count)
{
    return std::wstring(count, L'x');
}

const ParseCase kParseCases[] = {
    {"rooted, short", L"/tmp/" + letters(15), kString + kEmptyString, 0},
    {"rooted, long", L"/tmp/" + letters(900), kString + kEmptyString, 0},
    {"rooted, too long", L"/tmp/" + letters(1100), kString + kEmptyString,
     kScratch + kNarrowBuffer},
    {"relative, short", letters(20), kString + kString, 0},
    {"relative, long", letters(900), kString + kString, 0},
    {"relative, too long", letters(1100), kString + kString, kScratch + kNarrowBuffer},
    {"drive, short", L"C:\\" + letters(17), kString, 0},
    {"drive, long", L"C:\\" + letters(900), kString, 0},
    {"drive, too long", L"C:\\" + letters(1100), kString, kNarrowBuffer},
    {"in quotes", L" \"/tmp/" + letters(15) + L"\" ", kString + kEmptyString, 0},
    {"wildcard", L"/tmp/*.some-extension", kString + kEmptyString, 0},
};

class ParseMemory : public ::testing::Test
{
protected:
    ParseMemory() { EXPECT_EQ(m_base.ParseRelative(L"/tmp/folder/", nullptr, false), 0); }

    CRbUiPathname m_base;
};

TEST_F(ParseMemory, IsTheStringsThatAreKeptAScratchStringAndANarrowBuffer)
{
    for (const ParseCase& test : kParseCases) {
        SCOPED_TRACE(test.row);
        const auto parse = [&] {
            CRbUiPathname path;
            path.ParseRelative(test.name.c_str(), &m_base, false);
        };
        EXPECT_LE(allocationsOf(parse), test.kept + test.passing);
    }
}

TEST_F(ParseMemory, IsNotTakenAnewForTheNextNameOfAnObject)
{
    for (const ParseCase& test : kParseCases) {
        SCOPED_TRACE(test.row);
        CRbUiPathname path;
        EXPECT_LE(allocationsOf([&] { path.ParseRelative(test.name.c_str(), &m_base, false); }),
                  test.passing);
    }
}

// Whether the folder of this program, and so the base of Parse, has letters beyond ASCII.
bool isBaseBeyondAscii()
{
    const QString folder = QCoreApplication::applicationDirPath();
    return std::any_of(folder.begin(), folder.end(), [](QChar ch) { return ch.unicode() > 127; });
}

// The base is a rooted name.
TEST_F(ParseMemory, OfParseIsTheStringsOfItsBaseBesides)
{
    // What one byte a character is too small for is converted into a larger buffer.
    const long larger = isBaseBeyondAscii() ? kNarrowBuffer : 0;
    for (const ParseCase& test : kParseCases) {
        SCOPED_TRACE(test.row);
        const auto parse = [&] {
            CRbUiPathname path;
            path.Parse(test.name.c_str(), false);
        };
        EXPECT_LE(allocationsOf(parse), test.kept + test.passing + larger + kString + kEmptyString);
    }
}

// ---- Messages -----------------------------------------------------------------------------------

class Receiver : public QWidget
{
public:
    HWND handle() const { return reinterpret_cast<HWND>(internalWinId()); }
};

class PlainEvent : public QEvent
{
public:
    PlainEvent() : QEvent(QEvent::User) {}

    char m_values[sizeof(QKtMsgEvent) - sizeof(QEvent)] = {};
};

TEST(SendMessage, AllocatesNothing)
{
    Receiver receiver;
    receiver.winId();
    EXPECT_EQ(allocationsOf([&] { SendMessage(receiver.handle(), 0x0400, 1, 2); }), 0);
}

TEST(PostMessage, AllocatesOneEventAndQtsPlaceInTheQueue)
{
    Receiver receiver;
    receiver.winId();
    const auto posted = [&] {
        PostMessage(receiver.handle(), 0x0400, 1, 2);
        QCoreApplication::sendPostedEvents();
    };
    const auto plain = [&] {
        QCoreApplication::postEvent(&receiver, new PlainEvent);
        QCoreApplication::sendPostedEvents();
    };
    EXPECT_EQ(allocationsOf(posted), allocationsOf(plain));
}

// ---- Drawing ------------------------------------------------------------------------------------

TEST(BeginDraw, AllocatesWhatQtDoes)
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    KtQtPainterWrapper context(&image);
    const auto session = [&] {
        context.beginDraw();
        context.endDraw();
    };
    QPainter plain;
    const auto plainSession = [&] {
        plain.begin(&image);
        plain.save();
        plain.setPen(QPen(QBrush(QColor(0, 0, 0)), 0, Qt::SolidLine));
        plain.setBrush(QBrush(QColor(0, 0, 0), Qt::SolidPattern));
        plain.setClipRegion(QRegion(), Qt::NoClip);
        plain.restore();
        plain.end();
    };
    EXPECT_LE(allocationsOf(session), allocationsOf(plainSession));
    delete context.wrappedPainter();
}

TEST(BeginPath, AllocatesOnePath)
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    KtQtPainterWrapper context(&image);
    EXPECT_EQ(allocationsOf([&] {
                  context.beginPath();
                  context.endPath();
              }),
              1);
    delete context.wrappedPainter();
}

TEST(RepairFrontBuffer, AllocatesWhatQtDoes)
{
    QWidget widget;
    KtGrQtDoubleBufferImage buffer(&widget);
    buffer.createImages(64, 64, 4);
    const auto plain = [&] {
        QPainter painter(buffer.frontImage());
        painter.drawImage(0, 0, *buffer.memImage());
    };
    EXPECT_LE(allocationsOf([&] { buffer.repairFrontBuffer(); }), allocationsOf(plain));
}

// ---- Profiles -----------------------------------------------------------------------------------

constexpr long kFileSize = 256l * 1024;
constexpr long kSmallBuffers = 16l * 1024;

class ProfileMemory : public ::testing::Test
{
protected:
    void SetUp() override
    {
        std::ofstream file(name());
        file << "[Main]\nFirst=1\n";
        while (file.tellp() < kFileSize - 32)
            file << "Key" << file.tellp() << "=value\n";
        file << "Last=2\n";
    }

    std::string name() const { return m_folder.filePath("memory.ini").toStdString(); }

    long bytesOfReading(const char* section, const char* key)
    {
        std::string file = name();
        std::string wanted = key ? key : "";
        return bytesOf([&] {
            read_profile_string(section, key ? wanted.data() : nullptr, nullptr, m_result,
                                sizeof m_result, file.data());
        });
    }

    QTemporaryDir m_folder;
    char m_result[1024];
};

TEST_F(ProfileMemory, OfAValueIsTheFileAndSmallBuffers)
{
    for (const char* key : {"First", "Last", "Missing"}) {
        SCOPED_TRACE(key);
        EXPECT_LE(bytesOfReading("Main", key), kFileSize + kSmallBuffers);
    }
}

TEST_F(ProfileMemory, OfAListIsTheFileTheListAndSmallBuffers)
{
    const long list = sizeof m_result;
    EXPECT_LE(bytesOfReading("Main", nullptr), kFileSize + list + kSmallBuffers);
    EXPECT_LE(bytesOfReading(nullptr, nullptr), kFileSize + list + kSmallBuffers);
}

TEST_F(ProfileMemory, OfAMissingFileIsSmall)
{
    std::string file = name() + ".missing";
    char key[] = "First";
    EXPECT_LE(bytesOf([&] {
                  read_profile_string("Main", key, nullptr, m_result, sizeof m_result, file.data());
              }),
              kSmallBuffers);
}

} // namespace
