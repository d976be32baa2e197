// SPDX-License-Identifier: MIT
//
// No code, but a description of the library's types for debuggers. Compilers describe a class with
// virtual functions only where these are compiled, so a host has no such description, and neither
// has a library without debug information.
#include <KtQtBase/KtQtBase.h>

#include <QtGui/QPaintDevice>

namespace ktqtbase_types {

CStdStr<wchar_t>* text;
CRbUiPathname* pathname;
CRnUiPathname* applicationPathname;
CRbUiVolumeDescriptor* volume;
CRbUiNTFSVolumeDescriptor* ntfsVolume;
KtQtPainterWrapper* painter;
KtQtPrinterPainter* printerPainter;
QPaintDevice* device;
QKtMsgEvent* message;

} // namespace ktqtbase_types
