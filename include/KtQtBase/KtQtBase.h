// SPDX-License-Identifier: MIT
//
// Everything of the library in one include, except headers of names that many hosts have too:
// windows/Packing.h, windows/MessageNumbers.h and Porting.h.
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
#include <KtQtBase/Version.h>
#include <KtQtBase/VolumeDescriptor.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/WindowsFunctions.h>
#include <KtQtBase/WindowsTypes.h>

#endif
