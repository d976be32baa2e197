// SPDX-License-Identifier: MIT
//
// Derives a class, hands strings over and makes a message; ends with 0 where that works.
#include "Drive.h"

#include <KtQtBase/KtQtBase.h>

namespace {

bool findsItsDrive()
{
    auto* const drive = new Drive(L"K:");
    volumeList.append(drive);
    CRnUiPathname name;
    CStdStr<wchar_t> base;
    const bool parsed = name.Parse(L"K:\\nowhere\\report.txt", false) == 0;
    name.GetBasename(base);
    return parsed && base == L"report.txt" && name.m_pVolume == drive;
}

bool knowsItsMessages()
{
    const QKtMsgEvent message(1, 2, 3);
    const QEvent& event = message;
    return event.type() == QKtMsgEvent::eventType() && message.wParam() == 2;
}

} // namespace

int main()
{
    return findsItsDrive() && knowsItsMessages() ? 0 : 1;
}
