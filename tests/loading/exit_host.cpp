// SPDX-License-Identifier: MIT
//
// Calls exit(7) from inside a call of the library: exit-host WHERE MODULE, where the module does the
// same when it is loaded. A volume of the list tells when it dies.
#include <KtQtBase/KtQtBase.h>

#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

[[noreturn]] void leave()
{
    std::exit(7);
}

const char* g_where = "";

bool isWanted(const char* where)
{
    return std::strcmp(g_where, where) == 0;
}

class LeavingVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    LeavingVolume() : CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(L"C:")) {}
    ~LeavingVolume() override { std::puts("the volume dies"); }

    void VolCase(CStdStr<wchar_t>& name) const override
    {
        if (isWanted("VolCase"))
            leave();
        CRbUiNTFSVolumeDescriptor::VolCase(name);
    }

    const CStdStr<wchar_t>* GetLocalName() const override
    {
        if (isWanted("GetLocalName"))
            leave();
        return CRbUiNTFSVolumeDescriptor::GetLocalName();
    }

    bool IsCaseSensitive() const override
    {
        if (isWanted("IsCaseSensitive"))
            leave();
        return false;
    }
};

class LeavingWidget : public QWidget
{
public:
    bool event(QEvent* event) override
    {
        if (event->type() == QKtMsgEvent::eventType())
            leave();
        return QWidget::event(event);
    }
};

class LeavingImage : public QImage
{
public:
    LeavingImage() : QImage(8, 8, Format_ARGB32_Premultiplied) {}
    QPaintEngine* paintEngine() const override { leave(); }
};

void sendMessage()
{
    LeavingWidget widget;
    SendMessage(reinterpret_cast<HWND>(widget.winId()), 0x0400, 1, 2);
}

void postMessage()
{
    LeavingWidget widget;
    PostMessage(reinterpret_cast<HWND>(widget.winId()), 0x0400, 1, 2);
    QApplication::processEvents();
}

void draw()
{
    LeavingImage image;
    static KtQtPainterWrapper painter(&image);
    painter.beginDraw();
}

void leaveSoon()
{
    QTimer::singleShot(50, qApp, leave);
}

void showBox()
{
    leaveSoon();
    AfxMessageBox(L"text");
}

void showFileDialog()
{
    leaveSoon();
    KtQtFileDialog(true).DoModal();
}

void parse()
{
    CRbUiPathname name;
    name.ParseRelative(L"c:\\folder\\file", nullptr, false);
}

void match()
{
    const CStdStr<wchar_t> name(L"name");
    volumeList.first()->VolMatch(L"name", &name);
}

struct Place
{
    const char* name;
    void (*call)();
};

const Place kPlaces[] = {
    {"VolCase", parse},           {"GetLocalName", parse},      {"IsCaseSensitive", match},
    {"SendMessage", sendMessage}, {"PostMessage", postMessage}, {"beginDraw", draw},
    {"AfxMessageBox", showBox},   {"DoModal", showFileDialog},
};

void load(const char* module)
{
    LoadLibrary(QString::fromLocal8Bit(module).toStdWString().c_str());
}

} // namespace

// What is in use when the program ends is no leak.
extern "C" __attribute__((visibility("default"))) int __lsan_is_turned_off()
{
    return 1;
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    const QApplication application(argc, argv);
    volumeList.append(new LeavingVolume);
    g_where = argv[1];
    if (isWanted("LoadLibrary"))
        load(argv[2]);
    for (const Place& place : kPlaces) {
        if (isWanted(place.name))
            place.call();
    }
    return 3;
}
