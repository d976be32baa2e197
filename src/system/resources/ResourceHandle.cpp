// SPDX-License-Identifier: MIT
#include <KtQtBase/Messages.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/windows/ResourceStrings.h>

#include "string/TextRoom.h"

using ktqtbase::kTextRoom;

HINSTANCE m_hCurrentResourceHandle = nullptr;

HINSTANCE AfxGetResourceHandle()
{
    return m_hCurrentResourceHandle;
}

void AfxSetResourceHandle(HINSTANCE hInstResource)
{
    m_hCurrentResourceHandle = hInstResource;
}

template<class T>
bool CStdStr<T>::LoadString(unsigned int id)
{
    if (this->size() < kTextRoom)
        this->resize(kTextRoom);
    return ::LoadString(m_hCurrentResourceHandle, id, this->data(), kTextRoom) > 0;
}

// WideString.cpp does not use resources, so this operation is instantiated here.
template bool CStdStr<wchar_t>::LoadString(unsigned int id);
