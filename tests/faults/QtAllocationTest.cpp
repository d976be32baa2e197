// SPDX-License-Identifier: MIT
//
// Calls that use Qt, with each block failing that anybody asks malloc for. Qt does not promise to go
// on then, so that each call runs in a child, which may be ended by Qt. One that goes on must not
// have lost or displaced anything.
#include "faults/InChild.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/KtQtBase.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>
#include <QtGui/QImage>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <initializer_list>
#include <new>

#include <dlfcn.h>
#include <execinfo.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

using faults::inChild;

int g_countdown = 0;

bool isRefused()
{
    if (g_countdown == 0 || --g_countdown > 0)
        return false;
    errno = ENOMEM;
    return true;
}

// Whether the countdown ended.
template<class Call>
bool failsAt(int n, Call call)
{
    g_countdown = n;
    try {
        call();
    } catch (const std::bad_alloc&) {
    }
    const bool wasRefused = g_countdown == 0;
    g_countdown = 0;
    return wasRefused;
}

struct Row
{
    const char* name;
    void (*call)();
    void (*check)(); // what must hold afterwards
};

CRegKey* g_key = nullptr;

void setValue()
{
    g_key->SetValue(L"a value of some length", L"A name");
}

void checkValue()
{
    setValue();
    EXPECT_EQ(g_key->m_pSettings->group(), QString());
    EXPECT_EQ(g_key->m_pSettings->value("Software/A name").toString(),
              QString("a value of some length"));
}

void queryValue()
{
    wchar_t text[64] = {};
    unsigned int room = 63;
    g_key->QueryValue(text, L"Another name", &room);
}

void checkQuery()
{
    queryValue();
    EXPECT_EQ(g_key->m_pSettings->group(), QString());
}

KtQtPainterWrapper* g_painter = nullptr;

void draw()
{
    POINT corners[] = {{0, 0}, {8, 0}, {8, 8}};
    unsigned int count = 3;
    g_painter->setClipRegion(corners, &count, 1);
    g_painter->setPen(PS_DASH, 2, 0xFF);
    g_painter->drawPolygon(corners, 3);
}

void checkDrawing()
{
    draw();
    EXPECT_EQ(g_painter->getPen().widthF(), 2);
}

KtQtFileDialog* g_dialog = nullptr;

void parseNames()
{
    g_dialog->PraseFileInfo();
}

void checkNames()
{
    parseNames();
    EXPECT_STREQ(g_dialog->GetFileName().c_str(), L"a file of some length.extension");
}

const Row kRows[] = {
    {"CRegKey::SetValue", setValue, checkValue},
    {"CRegKey::QueryValue", queryValue, checkQuery},
    {"drawing", draw, checkDrawing},
    {"PraseFileInfo", parseNames, checkNames},
    {"PostMessage", [] { PostMessage(nullptr, 1, 2, 3); }, [] {}},
};

constexpr int kNotReached = 3;

bool lies(void* address, const char* module)
{
    Dl_info info;
    return dladdr(address, &info) && info.dli_fname && std::strstr(info.dli_fname, module);
}

// Where the process is to end in the library itself, the test fails; elsewhere it ends as it would.
void expectNotHere(int signal)
{
    void* frames[64];
    const int count = backtrace(frames, 64);
    int i = 2; // behind this function and the system's return from it
    while (i < count && (lies(frames[i], "/libc.") || lies(frames[i], "/libstdc++") ||
                         lies(frames[i], "/libc++") || lies(frames[i], "/libgcc")))
        ++i;
    if (i == count || lies(frames[i], "/libKtQtBase"))
        _exit(1);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void watchTheEnd()
{
    void* frame = nullptr;
    backtrace(&frame, 1);
    for (int signal : {SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV})
        std::signal(signal, expectNotHere);
}

// Result: what became of the child.
int runWithFailure(const Row& row, int n)
{
    return inChild([&] {
        std::freopen("/dev/null", "w", stderr);
        watchTheEnd();
        if (!failsAt(n, row.call))
            _exit(kNotReached);
        row.check();
    });
}

void sweep(const Row& row)
{
    int ended = 0;
    int n = 1;
    for (int status = 0; status != kNotReached; ++n) {
        status = runWithFailure(row, n);
        EXPECT_NE(status, 1) << row.name << ", block " << n;
        ended += status > 256;
    }
    std::printf("%s: %d blocks refused, %d of them ended the process in Qt\n", row.name, n - 2,
                ended);
}

TEST(AnyBlock, ThatIsRefusedDisplacesNothing)
{
    const ktqtbase::test::TemporaryFolder folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path().c_str());
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, L"Software");
    g_key = &key;
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    g_painter = &painter;
    KtQtFileDialog dialog(false);
    dialog.m_listSelectedFiles =
        QStringList("/a folder of some length/a file of some length.extension");
    g_dialog = &dialog;
    for (const Row& row : kRows)
        sweep(row);
    painter.endDraw();
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) void* malloc(std::size_t size)
{
    return isRefused() ? nullptr : __libc_malloc(size);
}

__attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size)
{
    return isRefused() ? nullptr : __libc_calloc(count, size);
}

__attribute__((visibility("default"))) void* realloc(void* block, std::size_t size)
{
    return isRefused() ? nullptr : __libc_realloc(block, size);
}
}
