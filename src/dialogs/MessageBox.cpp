// SPDX-License-Identifier: MIT
#include <KtQtBase/Messages.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/windows/Constants.h>

#include "dialogs/WidgetApplication.h"
#include "string/QtText.h"

#include <QtWidgets/QMessageBox>

namespace {

int windowsResult(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Ok:
        return IDOK;
    case QMessageBox::Cancel:
        return IDCANCEL;
    case QMessageBox::Retry:
        return IDRETRY;
    case QMessageBox::Ignore:
        return IDIGNORE;
    case QMessageBox::Yes:
        return IDYES;
    case QMessageBox::No:
        return IDNO;
    default:
        return IDABORT;
    }
}

} // namespace

int AfxMessageBox(const wchar_t* lpszText, unsigned int, unsigned int)
{
    if (!ktqtbase::hasWidgetApplication())
        return IDABORT;
    return windowsResult(QMessageBox::critical(nullptr, QString(), ktqtbase::toQt(lpszText),
                                               QMessageBox::Yes | QMessageBox::No,
                                               QMessageBox::Yes));
}

int AfxMessageBox(unsigned int nIDPrompt, unsigned int nType, unsigned int nIDHelp)
{
    CStdStr<wchar_t> prompt;
    prompt.LoadString(nIDPrompt);
    return AfxMessageBox(prompt.c_str(), nType, nIDHelp);
}
