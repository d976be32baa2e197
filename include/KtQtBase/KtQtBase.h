// SPDX-License-Identifier: MIT
//
// Everything of the library in one include, except two headers of short names that many hosts have
// too: windows/Packing.h and windows/MessageNumbers.h.
//
//     #include <KtQtBase/KtQtBase.h>
#ifndef KTQTBASE_KTQTBASE_H
#define KTQTBASE_KTQTBASE_H

#include <KtQtBase/Export.h>
#include <KtQtBase/FileDialog.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/Messages.h>
#include <KtQtBase/PainterWrapper.h>
#include <KtQtBase/PathName.h>
#include <KtQtBase/RegistryKey.h>
#include <KtQtBase/VolumeDescriptor.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/WindowsFunctions.h>
#include <KtQtBase/WindowsTypes.h>

#endif
