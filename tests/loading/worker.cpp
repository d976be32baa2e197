// SPDX-License-Identifier: MIT
//
// A module that brings the library with it and calls each of its families once.
#include "worker.h"

#include <KtQtBase/FileDialog.h>
#include <KtQtBase/KtQtBase.h>

#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <cstring>
#include <cwchar>

namespace {

// Tells its name when the library deletes it.
class TellingVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    TellingVolume(const wchar_t* name, Tell tell)
        : CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(name)), m_name(name), m_tell(tell)
    {}
    ~TellingVolume() override { m_tell(static_cast<char>(m_name[0])); }

private:
    const wchar_t* m_name;
    Tell m_tell;
};

bool parses()
{
    if (!ktuiSetCurrentDirPrefix())
        return false;
    CRnUiPathname name;
    CRnUiPathname unique;
    const bool isDrive = name.Parse(L"d:\\folder\\file.txt", false) == 0 && name.m_pVolume;
    return isDrive && name.Parse(L"a relative name of some length.txt", false) == 0 &&
           name.GetUniqueName(unique, true);
}

bool findsItsProgram()
{
    wchar_t name[1024] = {};
    return GetModuleFileName(nullptr, name, 1024) == 0 && std::wcsstr(name, L"load-host");
}

bool reads()
{
    wchar_t text[16] = {};
    GetPrivateProfileString(L"S", L"k", L"none", text, 16, L"/no/such/file.ini");
    return std::wcscmp(text, L"none") == 0;
}

bool stores()
{
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, L"Software\\Worker");
    key.SetValue(L"stored", L"Value");
    wchar_t value[16] = {};
    unsigned int room = 15;
    key.QueryValue(value, L"Value", &room);
    return std::wcscmp(value, L"stored") == 0;
}

bool sendsAndLoads()
{
    wchar_t text[16] = {};
    SendMessage(nullptr, 0x0400, 1, 2);
    PostMessage(nullptr, 0x0400, 1, 2);
    return QKtMsgEvent::eventType() >= QEvent::User && !LoadLibrary(L"/no/such/module") &&
           LoadString(nullptr, 1, text, 16) == 0;
}

bool draws()
{
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.fillRect(QRect(0, 0, 10, 10), Qt::black);
    painter.beginPath();
    return painter.endDraw() && image.pixelColor(5, 5) == Qt::black;
}

QDialog* shownDialog()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<QDialog*>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

// Ends the dialog that comes up, once it does.
void rejectSoon()
{
    QTimer::singleShot(1, qApp, [] {
        if (QDialog* const dialog = shownDialog())
            dialog->reject();
        else
            rejectSoon();
    });
}

bool showsWindows()
{
    rejectSoon();
    if (AfxMessageBox(L"text") != IDABORT)
        return false;
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, L"Text (*.txt)");
    rejectSoon();
    return dialog.DoModal() == IDCANCEL;
}

} // namespace

bool work(Tell tell, unsigned int what)
{
    for (const wchar_t* name : {L"C:", L"D:", L"E:"})
        volumeList.append(new TellingVolume(name, tell));
    const bool asAlways = parses() && findsItsProgram() && reads() && sendsAndLoads();
    return asAlways && (!(what & kStore) || stores()) && (!(what & kPaint) || draws()) &&
           (!(what & kShow) || showsWindows());
}
