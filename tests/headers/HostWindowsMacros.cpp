// SPDX-License-Identifier: MIT
//
// A host that says what a Windows build says on its command line and in <windows.h>, before the
// library's headers. WIN32 and _WIN32 are not among them: Qt would take the system for Windows.
#define UNICODE
#define _UNICODE
#define _WINDOWS
#define STRICT
#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#define WINVER 0x0601
#define _WIN32_WINNT 0x0601

#undef NULL
#define NULL 0
#define TRUE 1
#define FALSE 0
#define CONST const
#define VOID void
#define IN
#define OUT
#define OPTIONAL
#define FAR
#define NEAR
#define far
#define near
#define interface struct
#define small char
#define ERROR 0
#define DELETE 0x00010000
#define PASCAL
#define WINAPI
#define CALLBACK
#define APIENTRY
#define __stdcall
#define __cdecl
#define __declspec(what)
#define TEXT(text) L##text
#define _T(text) L##text

#include <KtQtBase/KtQtBase.h>
#include <KtQtBase/Porting.h>

static_assert(TRUE == 1 && FALSE == 0, "the host's macros are lost");
static_assert(ERROR == 0, "the host's macros are lost");
