// SPDX-License-Identifier: MIT
//
// What a host writes in place of a family whose calls do nothing here. The reference shows the lines
// between two marks on the page of the family that they name.
#include <KtQtBase/KtQtBase.h>

#include <QtCore/QBuffer>
#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryFile>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <mutex>

namespace {

TEST(FamilySnippets, ReadErrnoForTheLastError)
{
    // [errors]
    errno = 0; // no call resets it
    const DWORD mode = GetFileAttributes(L"/missing/report.txt");
    if (mode == INVALID_FILE_ATTRIBUTES && GetLastError() == ENOENT)
        std::puts("there is no such file");
    // [errors]
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ENOENT));
}

TEST(FamilySnippets, DrawInPlaceOfADeviceContext)
{
    // [gdi]
    QImage image(64, 32, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    std::unique_ptr<QPainter> owned; // the wrapper never deletes it
    KtQtPainterWrapper painter(&image);
    owned.reset(painter.wrappedPainter());
    painter.beginDraw();
    painter.setPen(PS_SOLID, 1, 0x000000FF);             // not CreatePen and SelectObject
    painter.setBrush(0x0000FFFFu);                       // not CreateSolidBrush
    const POINT corners[] = {{8, 8}, {40, 8}, {24, 28}}; // not Polygon
    painter.drawPolygon(corners, 3);
    painter.endDraw();
    // [gdi]
    EXPECT_EQ(image.pixelColor(24, 14), QColor(255, 255, 0));
}

// [memory]
bool HasText(const wchar_t* text)
{
    return text && *text; // IsBadReadPtr calls every pointer readable
}
// [memory]

TEST(FamilySnippets, TestAPointerForNull)
{
    EXPECT_FALSE(HasText(nullptr));
    EXPECT_TRUE(HasText(L"a"));
}

TEST(FamilySnippets, FindTheFolderOfTheUsersFiles)
{
    // [shell]
    wchar_t folder[MAX_PATH] = {}; // zeros: SHGetFolderPath writes nothing and returns S_OK
    const QString place = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    place.left(MAX_PATH - 1).toWCharArray(folder);
    // [shell]
    EXPECT_EQ(QString::fromWCharArray(folder), place);
}

TEST(FamilySnippets, PrintOnAnyPaintDevice)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    // [spooler]
    QPdfWriter printer(&file); // or a QPrinter, which OpenPrinterW never gives
    {
        std::unique_ptr<QPainter> owned; // the wrapper never deletes it
        KtQtPrinterPainter page(&printer);
        owned.reset(page.wrappedPainter());
        page.beginDraw();
        page.drawText(100, 200, L"Page 1", -1);
        page.endDraw();
    } // here the document is finished
    // [spooler]
    EXPECT_TRUE(file.data().startsWith("%PDF"));
}

TEST(FamilySnippets, ReadAVariableOfTheEnvironment)
{
    qputenv("KTQTBASE_SNIPPET", "fast");
    // [system]
    const bool fast = qEnvironmentVariable("KTQTBASE_SNIPPET") == QLatin1String("fast");
    const DWORD start = GetTickCount(); // for differences of two readings
    const DWORD milliseconds = GetTickCount() - start;
    // [system]
    EXPECT_TRUE(fast);
    EXPECT_LT(milliseconds, 60000u);
    qunsetenv("KTQTBASE_SNIPPET");
}

// [threads-and-locks]
std::recursive_mutex g_lock; // in place of a CRITICAL_SECTION, which protects nothing here
int g_jobs = 0;

void AddJob()
{
    const std::lock_guard<std::recursive_mutex> hold(g_lock); // not Enter- and LeaveCriticalSection
    ++g_jobs;
}
// [threads-and-locks]

TEST(FamilySnippets, LockByTheStandardLibrary)
{
    const int before = g_jobs;
    AddJob();
    EXPECT_EQ(g_jobs, before + 1);
}

TEST(FamilySnippets, AskQtForTheTimeOfAFile)
{
    QTemporaryFile report;
    ASSERT_TRUE(report.open());
    // [time]
    const QDateTime changed = QFileInfo(report.fileName()).lastModified().toLocalTime();
    const int year = changed.date().year(); // not FileTimeToSystemTime, which writes nothing
    // [time]
    EXPECT_GE(year, 2020);
}

} // namespace
