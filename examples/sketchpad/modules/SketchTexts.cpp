// SPDX-License-Identifier: MIT
//
// The resource module: the program's texts by their numbers.
#include "../app/TextIds.h"

extern "C" __attribute__((visibility("default"))) const wchar_t* loadstring(unsigned int id)
{
    switch (id) {
    case IDS_APPTITLE:
        return L"Sketchpad";
    case IDS_UNTITLED:
        return L"New drawing";
    case IDS_DISCARD:
        return L"\u201c%ls\u201d has unsaved changes.\n\nDiscard the changes?";
    case IDS_OVERWRITE:
        return L"\u201c%ls\u201d already exists.\n\nReplace it?";
    case IDS_CANNOTOPEN:
        return L"\u201c%ls\u201d cannot be opened:\n%ls.";
    case IDS_CANNOTSAVE:
        return L"\u201c%ls\u201d cannot be saved:\n%ls.";
    case IDS_CANNOTPRINT:
        return L"\u201c%ls\u201d cannot be written, so nothing was printed.";
    case IDS_BADNAME:
        return L"\u201c%ls\u201d is no name for a file:\n%ls.";
    default:
        return nullptr;
    }
}
