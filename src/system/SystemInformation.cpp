// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/SystemInformation.h>

#include "platform/Platform.h"

#include <KtOsBase/KtOsBase.h>

#include <cerrno>

#include <sys/time.h>

unsigned int GetTickCount()
{
    timeval now;
    gettimeofday(&now, nullptr);
    return static_cast<unsigned int>(now.tv_sec) * 1000u +
           static_cast<unsigned int>(now.tv_usec) / 1000u;
}

unsigned int GetLastError()
{
    return static_cast<unsigned int>(errno);
}

int GetSystemMetrics(int nIndex)
{
    switch (nIndex) {
    case SM_CXFULLSCREEN:
        return getDisplayWidth();
    case SM_CYFULLSCREEN:
        return getDiaplayHeight();
    default:
        return 0;
    }
}

int getDisplayWidth()
{
    return ktqtbase::platform::mainScreenWidth();
}

int getDiaplayHeight()
{
    return ktqtbase::platform::mainScreenHeight();
}

unsigned int KtKernel32::GetTickCount()
{
    return ::GetTickCount();
}

unsigned int KtKernel32::GetLastError()
{
    return ::GetLastError();
}

int KtKernel32::IsDBCSLeadByte(unsigned char TestChar)
{
    return ::IsDBCSLeadByte(TestChar);
}
