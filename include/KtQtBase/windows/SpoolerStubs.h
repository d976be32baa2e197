// SPDX-License-Identifier: MIT
//
// Printer functions without a counterpart here: a host links and runs, but they do nothing.
//
//     HANDLE printer = nullptr;
//     if (OpenPrinterW(name, &printer, nullptr) == 0) { ... }     // always
//
// No function here reads, writes or keeps anything through its arguments, so every argument may be
// null. None sets an error code.
#ifndef KTQTBASE_WINDOWS_SPOOLERSTUBS_H
#define KTQTBASE_WINDOWS_SPOOLERSTUBS_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

// Opens a printer.
// Inert: returns 0; the handle is not written.
// On Windows: writes a handle for ClosePrinter; non-zero means success.
KTQTBASE_INERT("returns 0; the handle is not written.")
KTQTBASE_EXPORT int OpenPrinterW(wchar_t* pPrinterName, void** phPrinter,
                                 PRINTER_DEFAULTSW* pDefault);

// Closes a printer.
// Inert: returns 0 and closes nothing.
// On Windows: releases the handle; non-zero means success.
KTQTBASE_INERT("returns 0 and closes nothing.")
KTQTBASE_EXPORT int ClosePrinter(void* hPrinter);

// Describes a printer.
// Inert: returns 0; neither the buffer nor the size needed is written.
// On Windows: fills the buffer at the given level; non-zero means success.
KTQTBASE_INERT("returns 0; neither the buffer nor the size needed is written.")
KTQTBASE_EXPORT int GetPrinterW(void* hPrinter, unsigned int Level, unsigned char* pPrinter,
                                unsigned int cbBuf, unsigned int* pcbNeeded);

// Lists the paper forms of a printer.
// Inert: returns 0; neither the buffer, the size needed nor the count is written.
// On Windows: fills the buffer and writes the count; non-zero means success.
KTQTBASE_INERT("returns 0; neither the buffer, the size needed nor the count is written.")
KTQTBASE_EXPORT int EnumFormsW(void* hPrinter, unsigned int Level, unsigned char* pForm,
                               unsigned int cbBuf, unsigned int* pcbNeeded,
                               unsigned int* pcReturned);

// Reads or edits the settings of a printer.
// Inert: returns 0; the settings are not written and no dialog is shown.
// On Windows: the bytes needed, or an ID result or a negative error, by fMode.
KTQTBASE_INERT("returns 0; the settings are not written and no dialog is shown.")
KTQTBASE_EXPORT int DocumentPropertiesW(HWND hWnd, void* hPrinter, wchar_t* pDeviceName,
                                        DEVMODEW* pDevModeOutput, DEVMODEW* pDevModeInput,
                                        unsigned int fMode);

// What a printer can do.
// Inert: returns 0 for every capability; the output is not written.
// On Windows: the value or the count of items, which go to the output; -1 is a failure.
KTQTBASE_INERT("returns 0 for every capability; the output is not written.")
KTQTBASE_EXPORT int DeviceCapabilitiesW(const wchar_t* pDevice, const wchar_t* pPort,
                                        unsigned short fwCapability, wchar_t* pOutput,
                                        const DEVMODEW* pDevMode);

#endif
