// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/SpoolerStubs.h>

int OpenPrinterW(wchar_t*, void**, PRINTER_DEFAULTSW*)
{
    return 0;
}

int ClosePrinter(void*)
{
    return 0;
}

int GetPrinterW(void*, unsigned int, unsigned char*, unsigned int, unsigned int*)
{
    return 0;
}

int EnumFormsW(void*, unsigned int, unsigned char*, unsigned int, unsigned int*, unsigned int*)
{
    return 0;
}

int DocumentPropertiesW(HWND, void*, wchar_t*, DEVMODEW*, DEVMODEW*, unsigned int)
{
    return 0;
}

int DeviceCapabilitiesW(const wchar_t*, const wchar_t*, unsigned short, wchar_t*, const DEVMODEW*)
{
    return 0;
}
