// SPDX-License-Identifier: MIT
//
// A string module with two texts of another language.
#include "app/Commands.h"

extern "C" __attribute__((visibility("default"))) const wchar_t* loadstring(unsigned int id)
{
    switch (id) {
    case ID_MENU_FILE:
        return L"&Datei";
    case ID_FILE_SAVE:
        return L"&Sichern\tCtrl+S\nSichert die Zeichnung";
    default:
        return nullptr;
    }
}
