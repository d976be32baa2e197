// SPDX-License-Identifier: MIT
//
// A host that a debugger looks at: values of each type that is shown, values that are unset or freed,
// and memory full of anything. With END_WITH_A_CORE set it ends in a way that leaves a core.
#include <KtQtBase/KtQtBase.h>
#include <KtQtBase/Porting.h>

#include <QtGui/QImage>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <random>

// Where the debugger stops.
extern "C" __attribute__((noinline)) void lookNow()
{
    if (std::getenv("END_WITH_A_CORE"))
        std::abort();
}

namespace {

using Text = CStdStr<wchar_t>;

struct Texts
{
    Text empty;
    Text brief = L"abc";
    Text beyond = L"clef \U0001D11E, \u00E9, \u4E2D";
    Text zeros = Text(L"a\0b\0", 4);
    Text escapes = L"\"back\\slash\"\t\r\n\x1B";
    Text wrong = Text(1, static_cast<wchar_t>(0x7FFFFFFF));
    Text half = Text(1, static_cast<wchar_t>(0xD800));
    Text full = Text(200, L'f');
    Text endless = Text(100000, L'x');
};

struct Volumes
{
    Volumes()
    {
        share.m_flags = 0x63;
        share.m_fsType = static_cast<FS_TYPE>(99);
        share.GetConnectionName();
        volumeList.append(new CRbUiNTFSVolumeDescriptor(Text(L"C:")));
    }

    CRbUiNTFSVolumeDescriptor drive{Text(L"D:")};
    CRbUiNTFSVolumeDescriptor share{Text(L"\\\\server\\share")};
};

struct Paths
{
    Paths()
    {
        g_CurrentDirPrefix.Parse(L"/", false);
        drive.Parse(L"c:\\docs\\report.txt", false);
        rooted.Parse(L"/", false);
        relative.Parse(L"*.txt", false);
        known.Parse(L"/somewhere", false);
        known.m_type = static_cast<path_type>(5);
    }

    CRbUiPathname unparsed;
    CRbUiPathname drive;
    CRbUiPathname rooted;
    CRnUiPathname relative;
    CRnUiPathname known;
};

struct Records
{
    Records()
    {
        font.lfHeight = -12;
        font.lfWeight = FW_BOLD;
        font.lfItalic = 1;
        font.lfUnderline = 1;
        std::wmemcpy(font.lfFaceName, L"DejaVu Sans", 12);
        std::wmemset(unended.lfFaceName, L'n', 32);
        question.lStructSize = sizeof question;
        question.lpstrFile = file;
        question.nMaxFile = 260;
        question.lpstrTitle = L"Open a report";
        question.lpstrFilter = L"Texts\0*.txt\0All\0*\0";
        question.nFilterIndex = 1;
        question.lpstrDefExt = L"txt";
        question.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | 0x40000000;
    }

    RECT edges = {-1, -2, 3, 4};
    CRect area{10, 20, 110, 220};
    POINT place = {7, -8};
    CPoint corner{1, 2};
    SIZE extent = {640, 480};
    CSize step{3, 4};
    LOGFONTW font = {};
    LOGFONTW unended = {};
    wchar_t file[260] = L"report.txt";
    OPENFILENAMEW question = {};
    OPENFILENAMEW zeros = {};
};

struct Drawing
{
    Drawing()
    {
        POINT points[] = {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {9, 9}, {19, 9}, {19, 19}, {9, 19}};
        unsigned int counts[] = {4, 4};
        painting.beginDraw();
        painting.beginPath();
        painting.setClipRegion(points, counts, 2);
    }

    ~Drawing()
    {
        painting.endPath();
        painting.endDraw();
    }

    QImage first{20, 20, QImage::Format_RGB32};
    QImage second{20, 20, QImage::Format_RGB32};
    QImage third{20, 20, QImage::Format_RGB32};
    KtQtPainterWrapper idle;
    KtQtPainterWrapper waiting{&first};
    KtQtPainterWrapper painting{&second};
    KtQtPrinterPainter printing{&third};
};

struct Messages
{
    QKtMsgEvent known{0x0111, 3, -4};
    QKtMsgEvent ofAClass{0x0400 + 7, 0x12345678, 0};
    QKtMsgEvent ofTheHost{0x8000, 0, 0x7FFFFFFFFFFF};
    QKtMsgEvent unknown{0xC123, 0, 0};
};

// A value that is no more than bytes.
template<class T>
union Bytes
{
    explicit Bytes(int byte) { std::memset(bytes, byte, sizeof bytes); }
    // A defaulted one would be deleted where the value has a destructor.
    // NOLINTNEXTLINE(modernize-use-equals-default)
    ~Bytes() {}

    unsigned char bytes[sizeof(T)];
    T value;
};

struct Unset
{
    explicit Unset(int byte)
        : text(byte), path(byte), volume(byte), area(byte), font(byte), question(byte),
          painter(byte), message(byte)
    {}

    Bytes<Text> text;
    Bytes<CRnUiPathname> path;
    Bytes<CRbUiNTFSVolumeDescriptor> volume;
    Bytes<CRect> area;
    Bytes<LOGFONTW> font;
    Bytes<OPENFILENAMEW> question;
    Bytes<KtQtPainterWrapper> painter;
    Bytes<QKtMsgEvent> message;
};

struct Freed
{
    Freed()
    {
        delete text;
        delete volume;
    }

    Text* text = new Text(L"a text that is too long to be inside");
    CRbUiVolumeDescriptor* volume = new CRbUiNTFSVolumeDescriptor(Text(L"E:"));
};

// Numbers of all sizes, and in every other place a pointer into this memory, so that much of it can
// be followed.
struct Anything
{
    Anything()
    {
        std::mt19937_64 random(17);
        for (std::size_t place = 0; place < 512; ++place) {
            words[place] = random() >> random() % 64;
            if (place % 2)
                words[place] = reinterpret_cast<std::size_t>(words + random() % 512);
        }
    }

    unsigned long long words[512];
};

} // namespace

int main()
{
    std::setlocale(LC_CTYPE, "C.UTF-8");
    Texts texts;
    Volumes volumes;
    Paths paths;
    Records records;
    Drawing drawing;
    Messages messages;
    Unset zeros(0);
    Unset ones(0xFF);
    Freed freed;
    Anything anything;
    lookNow();
}
