/* SPDX-License-Identifier: MIT */
/* A program of Windows, linked as Windows' own compilers would: it imports four names, one of them
   late, and one of MFC's by its number. */
#define IMPORTED __declspec(dllimport)
#define CALLED __stdcall

IMPORTED int CALLED CopyFileW(const unsigned short*, const unsigned short*, int);
IMPORTED void* CALLED CreateThread(void*, unsigned long long, void*, void*, unsigned, unsigned*);
IMPORTED int CALLED MessageBoxA(void*, const char*, const char*, unsigned);
IMPORTED int CALLED ownFunction(void);
IMPORTED int CALLED createFrame(void);

/* What the linker calls to load a library late. */
long long CALLED __delayLoadHelper2(void* library, void* name)
{
    return library == name;
}

int CALLED start(void)
{
    CreateThread(0, 0, 0, 0, 0, 0);
    return CopyFileW(0, 0, 0) + MessageBoxA(0, 0, 0, 0) + ownFunction() + createFrame();
}
