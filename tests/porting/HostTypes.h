// SPDX-License-Identifier: MIT
//
// Types and macros that a host's own header of Windows names defines, with the meanings of Windows.

typedef char CHAR;
typedef wchar_t WCHAR;
typedef wchar_t TCHAR;
typedef const wchar_t* LPCWSTR;
typedef const wchar_t* LPCTSTR;
typedef wchar_t* LPTSTR;
typedef const char* LPCSTR;
typedef unsigned int ULONG;
typedef int INT;
typedef void* LPVOID;
typedef unsigned long long DWORD_PTR;
typedef unsigned char BYTE;
typedef BYTE* LPBYTE;
typedef RECT* LPRECT;
typedef LOGFONTW LOGFONT;

#define TRUE 1
#define FALSE 0
#define __T(x) L##x
#define _T(x) __T(x)
#define TEXT(quote) __TEXT(quote)
#define __TEXT(quote) L##quote
#define WINAPI
#define CALLBACK
#define APIENTRY
#define PASCAL
#define FAR
#define CONST const
#define IN
#define OUT
