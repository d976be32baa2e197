// SPDX-License-Identifier: MIT
#include "part.h"

namespace {

CRnUiPathname* makeName()
{
    auto* const name = new CRnUiPathname;
    name->Parse(L"/nowhere", false);
    return name;
}

bool appendAndDelete(CRnUiPathname* name)
{
    CStdStr<wchar_t> base;
    const bool appended = name->AppendComponent(L"report.txt") == 0;
    name->GetBasename(base);
    delete name;
    return appended && base == L"report.txt";
}

QEvent* makeMessage()
{
    return new QKtMsgEvent(1, 2, 3);
}

} // namespace

extern "C" __attribute__((visibility("default"))) void PART(Part* part)
{
    part->volumes = &volumeList;
    part->resources = AfxGetResourceHandle();
    part->eventType = QKtMsgEvent::eventType();
    part->makeName = makeName;
    part->appendAndDelete = appendAndDelete;
    part->makeMessage = makeMessage;
}
