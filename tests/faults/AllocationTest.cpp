// SPDX-License-Identifier: MIT
//
// The families beside path names, with each allocation of the library's own failing in turn: the
// exception passes or the call ends as its header says, no block stays, and the same objects work
// afterwards.
#include "faults/OwnAllocations.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/KtQtBase.h>

#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::writeFile;
using support::failsAt;
using support::liveBlocks;

// Gives true where its results are what they always are.
using Call = std::function<bool()>;

// Sweeps a call. Result: how many allocations failed.
int sweep(const Call& call, long keptAtMost = 0)
{
    // What is made only once is made by now.
    EXPECT_TRUE(call() && call());
    for (int n = 1;; ++n) {
        SCOPED_TRACE(testing::Message() << "allocation " << n);
        const long before = liveBlocks();
        if (!failsAt(n, call))
            return n - 1;
        EXPECT_LE(liveBlocks() - before, keptAtMost);
        EXPECT_TRUE(call());
    }
}

const std::wstring kLongName = L"/no/such/" + std::wstring(2000, L'n');

// ---- Strings, volumes, files and modules --------------------------------------------------------

struct Row
{
    const char* name;
    int points;
    bool (*call)();
};

bool validates()
{
    const CRbUiNTFSVolumeDescriptor volume(CStdStr<wchar_t>(L"a volume with a long name"));
    const CStdStr<wchar_t> name(L"a name that no string keeps inside itself");
    return volume.ValidateFilename(&name, false) && volume.ValidateSegment(&name, true);
}

bool connects()
{
    CRbUiNTFSVolumeDescriptor volume(CStdStr<wchar_t>(L"C:"));
    volume.GetConnectionName();
    return volume.m_pConnectionName != nullptr;
}

bool makesATempFileName()
{
    wchar_t name[3000];
    return GetTempFileName(kLongName.c_str(), L"kt", 7, name) == kLongName.size() + 7;
}

bool asksForAText()
{
    wchar_t text[64] = {};
    return GetPrivateProfileString(kLongName.c_str(), kLongName.c_str(), kLongName.c_str(), text,
                                   64, kLongName.c_str()) == 0;
}

bool posts()
{
    QWidget widget;
    return PostMessage(reinterpret_cast<HWND>(widget.winId()), 0x0400, 1, 2);
}

const Row kRows[] = {
    {"CStdStr::LoadString", 1,
     [] {
         CStdStr<wchar_t> text;
         return !text.LoadString(1) && text.size() == 1024;
     }},
    {"volume and its rules", 2, validates},
    {"GetConnectionName", 2, connects},
    {"GetFileAttributes", 1,
     [] { return GetFileAttributes(kLongName.c_str()) == INVALID_FILE_ATTRIBUTES; }},
    {"CopyFile", 2, [] { return CopyFile(kLongName.c_str(), kLongName.c_str(), false); }},
    {"GetTempFileName", 0, makesATempFileName},
    {"LoadLibrary", 1, [] { return !LoadLibrary(kLongName.c_str()); }},
    {"GetModuleHandle", 1, [] { return !GetModuleHandle(kLongName.c_str()); }},
    {"GetPrivateProfileString", 4, asksForAText},
    {"PostMessage", 1, posts},
    {"AfxMessageBox of a resource", 1, [] { return AfxMessageBox(1u) == IDABORT; }},
    {"CRegKey", 1,
     [] {
         CRegKey key;
         return key.Create(HKEY_CURRENT_USER, L"Software") == 0;
     }},
    {"KtQtFileDialog", 0,
     [] {
         const KtQtFileDialog dialog(true, L"extension", L"a name", 0, L"a filter (*)");
         return dialog.GetPathName().empty();
     }},
};

// Ends whatever dialog comes up, with the result of a box that nobody answers.
class Closer : public QTimer
{
public:
    Closer()
    {
        callOnTimeout([] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                auto* const dialog = qobject_cast<QDialog*>(widget);
                if (dialog && dialog->isVisible())
                    dialog->done(0);
            }
        });
        start(1);
    }
};

TEST(Allocation, ThatFailsLeavesNothingBehind)
{
    const Closer closer;
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        EXPECT_GE(sweep(row.call), row.points);
    }
}

// ---- Profiles -----------------------------------------------------------------------------------

TEST(ProfileAllocation, ThatFailsGivesTheEmptyTextAndThenTheValue)
{
    const TemporaryFolder folder;
    writeFile(folder / "a.ini", "[S]\nk=5\n");
    std::string file = folder / "a.ini";
    char key[] = "k";
    char none[] = "none";
    char text[16];
    const auto read = [&] {
        return read_profile_string("S", key, none, text, sizeof text, file.data());
    };
    ASSERT_TRUE(failsAt(1, [&] { EXPECT_EQ(read(), 0); }));
    EXPECT_STREQ(text, "");
    EXPECT_FALSE(failsAt(2, [&] { EXPECT_EQ(read(), 1); }));
    EXPECT_STREQ(text, "5");
}

// ---- Drawing ------------------------------------------------------------------------------------

// A wrapper's painter and the private part of it, which are kept on purpose.
constexpr long kPainter = 2;

TEST(DrawingAllocation, ThatFailsLeavesNoPathOpen)
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    KtQtPainterWrapper wrapper(&image);
    EXPECT_EQ(sweep([&] {
                  const bool isOpen = wrapper.beginPath();
                  return isOpen && wrapper.endPath();
              }),
              1);
    EXPECT_EQ(wrapper.getPainterPath(), nullptr);
    delete wrapper.wrappedPainter();
}

TEST(DrawingAllocation, ThatFailsLeavesNoWrapper)
{
    EXPECT_EQ(sweep([] {
                  const KtQtPainterWrapper wrapper;
                  delete wrapper.wrappedPainter();
                  return true;
              }),
              1);
}

TEST(DrawingAllocation, ThatFailsInADoubleBufferLeavesOnlyPaintersBehind)
{
    QWidget widget;
    const auto make = [&] {
        const KtGrQtDoubleBufferImage buffer(&widget);
        delete buffer.memPainter()->wrappedPainter();
        delete buffer.frontPainter()->wrappedPainter();
        return true;
    };
    EXPECT_EQ(sweep(make, 2 * kPainter), 5);
}

TEST(DrawingAllocation, ThatFailsLeavesADoubleBufferWithoutImages)
{
    QWidget widget;
    KtGrQtDoubleBufferImage buffer(&widget);
    int refused = 0;
    while (failsAt(refused + 1, [&] { buffer.createImages(20, 10, 4); })) {
        EXPECT_FALSE(buffer.m_bCreated);
        EXPECT_EQ(buffer.memBits(), nullptr);
        EXPECT_EQ(buffer.memPainter()->wrappedDevice(), nullptr);
        ++refused;
    }
    EXPECT_GE(refused, 2);
    EXPECT_TRUE(buffer.m_bCreated);
    EXPECT_EQ(buffer.memImage()->size(), QSize(20, 10));
}

// ---- The file dialog ----------------------------------------------------------------------------

TEST(FileDialogAllocation, ThatFailsLeavesNoDialogThatIsNotWatched)
{
    const Closer closer;
    int refused = 0;
    for (bool goesOn = true; goesOn; refused += goesOn) {
        auto parent = std::make_unique<QWidget>();
        KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, parent.get());
        goesOn = failsAt(refused + 1, [&] { EXPECT_EQ(dialog.DoModal(), IDCANCEL); });
        parent.reset();
        EXPECT_EQ(dialog.m_pDialog, nullptr) << "allocation " << refused + 1;
    }
    EXPECT_GE(refused, 2);
}

TEST(FileDialogAllocation, ThatFailsLeavesTheNamesReadable)
{
    KtQtFileDialog dialog(false);
    dialog.m_listSelectedFiles = QStringList(QStringLiteral(
        "/a folder with a name/and a file that no string keeps inside.an extension, a long one"));
    const auto parse = [&] {
        dialog.PraseFileInfo();
        return dialog.GetFileExt() == L"an extension, a long one";
    };
    EXPECT_GE(sweep(parse), 3);
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): without a folder there is nothing to test.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    const TemporaryFolder settings;
    qputenv("XDG_CONFIG_HOME", settings.path().c_str());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
